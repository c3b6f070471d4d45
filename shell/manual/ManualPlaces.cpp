// SPDX-License-Identifier: MIT
#include "shell/manual/ManualPlaces.h"

#include <QAbstractButton>
#include <QAction>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPalette>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>

namespace korvel
{
namespace
{

/// How many letters of a name a line of the manual gives, the dots that stand for any left out; 0
/// when it is none of its names.
qsizetype lettersOfName(const QString& words, const QString& name)
{
    qsizetype most = 0;
    for (const QString& each : words.split(" / ")) {
        if (each.compare(name, Qt::CaseInsensitive) == 0) return name.size();
        if (!each.contains(QChar(u'…'))) continue;
        QStringList parts = each.split(QChar(u'…'));
        const qsizetype letters = parts.join(QString()).size();
        for (QString& part : parts)
            part = QRegularExpression::escape(part);
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(parts.join(".+")),
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::DotMatchesEverythingOption);
        if (pattern.match(name).hasMatch()) most = std::max(most, letters);
    }
    return most;
}

/// Calls a function with every block: its row's whole text, and whether it is one that gives
/// names. It ends with the first call that returns true.
template <typename Function>
void forEachBlock(const QTextDocument& page, Function function)
{
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        QStringList row(block.text());
        bool givesNames = block.blockFormat().headingLevel() > 0;
        if (QTextTable* table = QTextCursor(block).currentTable()) {
            const QTextTableCell cell = table->cellAt(block.position());
            if (cell.column() > 0) continue;
            row.clear();
            for (int column = 0; column < table->columns(); ++column)
                row << table->cellAt(cell.row(), column).firstCursorPosition().block().text();
            row.removeAll("");
            givesNames = cell.row() > 0;
        }
        if (function(block, row.join(" – "), givesNames)) return;
    }
}

QString withoutMnemonic(QString text)
{
    text.remove(QRegularExpression("\\(&\\w\\)|&(?=[^&])"));
    text.remove(QRegularExpression("\\s*(\\.\\.+|…)$"));
    return text.trimmed();
}

} // namespace

/// Of several lines that may be meant it is the one that says the most of the name.
std::optional<PagePlace> placeOf(const QTextDocument& page, const QString& name)
{
    std::optional<PagePlace> place;
    std::optional<PagePlace> entry; // a button does what an entry of its name does
    qsizetype most = 0;
    if (name.isEmpty()) return place;
    forEachBlock(page, [&](const QTextBlock& block, const QString& text, bool givesName) {
        if (!givesName) return false;
        const QString words = block.text();
        if (const qsizetype letters = lettersOfName(words, name); letters > most) {
            most = letters;
            place = {block.position(), text};
        }
        if (!entry && words.contains(": ") && lettersOfName(words.section(": ", 1), name) > 0)
            entry = {block.position(), text};
        return most == name.size();
    });
    return place ? place : entry;
}

std::vector<PagePlace> sectionsOf(const QTextDocument& page)
{
    std::vector<PagePlace> sections;
    forEachBlock(page, [&](const QTextBlock& block, const QString& text, bool) {
        if (block.blockFormat().headingLevel() == 2) sections.push_back({block.position(), text});
        return false;
    });
    return sections;
}

std::vector<PagePlace> linesOf(const QTextDocument& page)
{
    std::vector<PagePlace> lines;
    forEachBlock(page, [&](const QTextBlock& block, const QString& text, bool) {
        if (!text.isEmpty()) lines.push_back({block.position(), text});
        return false;
    });
    return lines;
}

QStringList wordsToFind(const QString& typed)
{
    QStringList words = typed.split(' ', Qt::SkipEmptyParts);
    words.removeDuplicates();
    return words;
}

bool holdsWords(const QString& text, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

QString manualName(const QWidget& control)
{
    static const QRegularExpression howItIsWritten("[,;:].*$");
    static const QRegularExpression row("^Row \\d+, ");
    const QString name = control.accessibleName().remove(row);
    if (!name.isEmpty()) return QString(name).remove(howItIsWritten).trimmed();
    if (auto* button = qobject_cast<const QAbstractButton*>(&control))
        return withoutMnemonic(button->text());
    if (auto* group = qobject_cast<const QGroupBox*>(&control))
        return withoutMnemonic(group->title());
    return {};
}

QString manualName(const QAction& entry)
{
    QStringList path(withoutMnemonic(entry.text()));
    for (const QObject* above = entry.parent(); above; above = above->parent())
        if (auto* menu = qobject_cast<const QMenu*>(above))
            path.prepend(withoutMnemonic(menu->title()));
    return path.join(": ");
}

void dressPage(QTextDocument& page, const QPalette& palette)
{
    const double room = QFontMetricsF(page.defaultFont()).height() / 4;
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (!part.fragment().charFormat().isAnchor()) continue;
            QTextCursor link(block);
            link.setPosition(part.fragment().position());
            link.setPosition(part.fragment().position() + part.fragment().length(),
                             QTextCursor::KeepAnchor);
            QTextCharFormat colour;
            colour.setForeground(palette.link());
            link.mergeCharFormat(colour);
        }
    for (QTextFrame* frame : page.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (!table) continue;
        QTextTableFormat format = table->format();
        format.setBorder(1);
        format.setBorderCollapse(true);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(palette.placeholderText()); // seen by night too
        format.setCellPadding(room);
        format.setTopMargin(2 * room);
        format.setBottomMargin(2 * room);
        table->setFormat(format);
    }
}

} // namespace korvel
