// SPDX-License-Identifier: MIT
#pragma once

#include "shell/manual/HelpView.h"

#include <QWidget>

#include <map>
#include <memory>

class QAbstractItemDelegate;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace korvel
{

class FoundLines;

/// The manual on the screen: a page, beside it the contents or, while something is searched for,
/// where in all pages it stands. Everything goes by keyboard too.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    /// @param manual must outlive the window
    /// @param parent a question that keeps the keyboard from all other windows, or nullptr
    HelpWindow(const Manual& manual, QWidget* parent);
    ~HelpWindow() override;

    HelpView& view() { return *m_view; }

    /// Opens the first of some pages that has a place for a name; without any the first page.
    void openAt(const QStringList& pages, const QString& name);

private:
    void layOut();
    void addKeys();
    void showList();
    void showContents();
    void showFound(const QString& words);
    QListWidgetItem* addItem(const QString& text, const QString& page, int position);
    void addHead(const QString& text);
    void go(const QListWidgetItem& item);
    void findInPage(bool backwards);
    void readAll();
    QTextDocument& document(const QString& page);

    const Manual& m_manual;
    HelpView* m_view;
    QPushButton* m_cmdBack;
    QPushButton* m_cmdForward;
    QLineEdit* m_txtFind;
    QListWidget* m_lstFound;
    FoundLines* m_foundLines;
    QAbstractItemDelegate* m_contentLines;                         ///< the list's own
    std::map<QString, std::unique_ptr<QTextDocument>> m_documents; ///< for places, by page

    /// What a search goes through; empty before the first one.
    struct Line {
        QString page;
        QString title;
        PagePlace place;
    };
    std::vector<Line> m_lines;
};

} // namespace korvel
