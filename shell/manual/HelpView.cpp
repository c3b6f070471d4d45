// SPDX-License-Identifier: MIT
#include "shell/manual/HelpView.h"

#include "shell/manual/Manual.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>

namespace korvel
{
namespace
{

constexpr int mostMarked = 400; // a single letter stands in every line

} // namespace

HelpView::HelpView(const Manual& manual, QWidget* parent) : QTextBrowser(parent), m_manual(manual)
{
    setObjectName("txtManual");
    setAccessibleName("Page of the manual");
    setOpenExternalLinks(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    // The toolkit's own source() is the old one yet.
    connect(this, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& url) { m_page = url.path().section('.', 0, 0); });
}

/// In one edit, which is laid out once: a long table would be laid out with every cell.
void HelpView::changePage(const std::function<void()>& change)
{
    m_leftAt[m_page] = verticalScrollBar()->value();
    QTextCursor all(document());
    all.beginEditBlock();
    change();
    all.endEditBlock();
    all.beginEditBlock(); // a second one: the tables are known only now
    dressPage(*document(), palette());
    all.endEditBlock();
}

void HelpView::doSetSource(const QUrl& name, QTextDocument::ResourceType type)
{
    changePage([&] { QTextBrowser::doSetSource(name, type); });
    if (const auto place = placeOf(*document(), name.fragment(QUrl::FullyDecoded)))
        scrollTo(*place);
    emit pageShown(m_page);
}

/// A page is seen again where it was left; the toolkit would scroll before it is laid out.
void HelpView::showAgain(const std::function<void()>& step)
{
    changePage(step);
    verticalScrollBar()->setValue(m_leftAt[m_page]);
    emit pageShown(m_page);
}

void HelpView::backward()
{
    showAgain([this] { QTextBrowser::backward(); });
}

void HelpView::forward()
{
    showAgain([this] { QTextBrowser::forward(); });
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
    for (const QString& word : wordsToFind(words))
        for (QTextCursor at = document()->find(word); !at.isNull() && marked.size() < mostMarked;
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
        changePage([] {});
}

} // namespace korvel
