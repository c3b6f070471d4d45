// SPDX-License-Identifier: MIT
#include "app/shell/HelpView.h"

#include "app/shell/Manual.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>

namespace korvel
{

HelpView::HelpView(const Manual& manual, QWidget* parent) : QTextBrowser(parent), m_manual(manual)
{
    setObjectName("txtManual");
    setAccessibleName("Page of the manual");
    setOpenExternalLinks(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
        m_page = url.path().section('.', 0, 0); // the toolkit's own source() is the old one yet
        dressPage(*document(), palette());
        if (const auto place = placeOf(*document(), url.fragment(QUrl::FullyDecoded)))
            scrollTo(*place);
        emit pageShown(m_page);
    });
}

QVariant HelpView::loadResource(int, const QUrl& name)
{
    // Neither pictures nor anything from elsewhere: the manual is text that lies with the program.
    const QString file = name.path();
    return file.endsWith(".md") ? m_manual.text(file.chopped(3)) : QVariant();
}

void HelpView::showPage(const QString& page)
{
    if (page != m_page) setSource(QUrl(page + ".md"));
}

void HelpView::scrollTo(const PagePlace& place)
{
    QTextCursor cursor(document());
    cursor.setPosition(place.position);
    setTextCursor(cursor);
    // The place at the top: what belongs to it stands below.
    const QRectF at = document()->documentLayout()->blockBoundingRect(cursor.block());
    verticalScrollBar()->setValue(static_cast<int>(at.top()) - fontMetrics().height());
}

bool HelpView::openAt(const QString& page, const QString& name)
{
    showPage(page);
    const auto place = placeOf(*document(), name);
    if (!place) {
        moveCursor(QTextCursor::Start);
        verticalScrollBar()->setValue(0);
        return false;
    }
    scrollTo(*place);
    mark({});
    // The line itself is set apart, wherever the page's end lets it stand.
    QTextCursor line(document());
    line.setPosition(place->position);
    line.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    setTextCursor(line);
    return true;
}

void HelpView::openAt(const QString& page, const PagePlace& place, const QString& words)
{
    showPage(page);
    scrollTo(place);
    mark(words);
}

bool HelpView::findNext(const QString& words, bool backwards)
{
    if (words.isEmpty()) return false;
    const auto flags = backwards ? QTextDocument::FindFlags(QTextDocument::FindBackward)
                                 : QTextDocument::FindFlags();
    if (find(words, flags)) return true;
    const QTextCursor before = textCursor();
    moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    if (find(words, flags)) return true;
    setTextCursor(before);
    return false;
}

void HelpView::mark(const QString& words)
{
    QList<ExtraSelection> marked;
    for (const QString& word : words.split(' ', Qt::SkipEmptyParts))
        for (QTextCursor at = document()->find(word); !at.isNull();
             at = document()->find(word, at)) {
            ExtraSelection selection;
            selection.cursor = at;
            selection.format.setFontUnderline(true); // seen in every colour scheme
            selection.format.setFontWeight(QFont::Bold);
            marked << selection;
        }
    setExtraSelections(marked);
}

void HelpView::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        dressPage(*document(), palette());
}

} // namespace korvel
