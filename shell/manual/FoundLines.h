// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

namespace korvel
{

/// One line of what holds the words of a search: from shortly before the first of them that stands
/// there, so that a narrow list shows it. The end is left to the list.
QString foundLine(const QString& text, const QStringList& words);

/// Shows the entries of a list on one line each, with the words of a search marked. Entries that
/// cannot be chosen are heads of those below them.
class FoundLines : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setWords(const QStringList& words) { m_words = words; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    QStringList m_words;
};

} // namespace korvel
