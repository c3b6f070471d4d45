// SPDX-License-Identifier: MIT
#include "shell/paper/PaperDocument.h"

#include "shell/machine/AsQString.h"
#include "shell/paper/PageFrame.h"
#include "shell/paper/PaperHtml.h"
#include "shell/paper/PaperPages.h"
#include "shell/paper/PdfBytes.h"
#include "shell/paper/PictureObjects.h"

#include <QAbstractTextDocumentLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace korvel
{
namespace
{

constexpr double paperLetters = 8.5;              // points
constexpr QMarginsF paperMargins(18, 15, 15, 12); // millimetres; the left one for the file

constexpr std::size_t linesOfWindow = 40; // what the paper's window shows at first, about
constexpr int aboveTitle = 8;             // pixels
constexpr int belowTitle = 2;

QString paperStyle()
{
    return QString("h2 { font-size: large } "
                   "h3 { font-size: medium; margin-top: %1px; margin-bottom: %2px } "
                   "th { text-align: left; background-color: #e0e0e0; padding-right: 6px } "
                   "td { padding-right: 6px } ul { margin-top: 0px }")
        .arg(aboveTitle)
        .arg(belowTitle);
}

QFont paperFont(double points)
{
    QFont font;
    font.setPointSizeF(points);
    font.setStyleStrategy(QFont::PreferNoShaping); // a search for "fix" finds no ligature
    return font;
}

void insertPictures(QTextDocument& document, const std::vector<PaperPicture>& pictures)
{
    document.documentLayout()->registerHandler(PictureObject,
                                               new PictureObjects(pictures, &document));
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        QTextCursor at = document.find(pictureMark(i));
        QTextCharFormat format;
        format.setObjectType(PictureObject);
        format.setProperty(PictureNumber, static_cast<int>(i));
        at.insertText(QString(QChar::ObjectReplacementCharacter), format);
        at.insertBlock();
        at.insertText(pictures[i].caption);
    }
}

/// Draws a stretch of a document at a height of the page.
void drawSlice(QTextDocument& document, QPainter& painter, const PaperSlice& slice, double top)
{
    if (slice.height() <= 0) return;
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = QPalette(Qt::black, Qt::white);
    const QRectF room(0, slice.top, document.textWidth(), slice.height());
    context.clip = room.adjusted(0, 1, 0, -1); // what only touches it would be in the file, unseen
    painter.save();
    painter.translate(0, top - slice.top);
    painter.setClipRect(room);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

} // namespace

PaperDocument::PaperDocument(PaperHeading heading, WorkingPaper paper,
                             std::vector<PaperPicture> pictures)
    : m_title(asQString(paper.kind)), m_heading(std::move(heading)), m_paper(std::move(paper)),
      m_pictures(std::move(pictures))
{
}

PaperDocument::PaperDocument(PaperHeading heading, QString title, QString plainText)
    : m_title(std::move(title)), m_heading(std::move(heading)), m_plainText(std::move(plainText))
{
}

QString PaperDocument::htmlFrom(std::size_t part) const
{
    QString html;
    const std::vector<PaperPart> parts = paperParts(m_heading, m_paper, m_pictures.size());
    for (std::size_t i = part; i < parts.size(); ++i)
        html += parts[i].html();
    return html;
}

void PaperDocument::fill(QTextDocument& document) const
{
    write(document, m_plainText.isNull() ? htmlFrom(0) : QString());
}

QFont PaperDocument::letters(int zoom)
{
    return paperFont(paperLetters * zoom / 100);
}

std::size_t PaperDocument::fillBeginning(QTextDocument& document, int zoom) const
{
    const std::vector<PaperPart> parts = paperParts(m_heading, m_paper, m_pictures.size());
    QString html = parts.front().html();
    std::size_t lines = parts.front().lines;
    std::size_t part = 1;
    for (; part < parts.size() && lines + parts[part].lines <= linesOfWindow; ++part) {
        html += parts[part].html();
        lines += parts[part].lines;
    }
    write(document, html, zoom);
    return part < parts.size() ? part : 0;
}

void PaperDocument::fillRest(QTextDocument& document, std::size_t from) const
{
    const QString html = htmlFrom(from);
    QTextBlockFormat first; // the first text goes into the paragraph that is there
    if (html.startsWith("<h3")) {
        first.setHeadingLevel(3);
        first.setTopMargin(aboveTitle);
        first.setBottomMargin(belowTitle);
    }
    QTextCursor end(&document);
    end.movePosition(QTextCursor::End);
    end.beginEditBlock();
    end.insertBlock(first); // the one behind a table has no room above it
    end.insertHtml(html);
    end.endEditBlock();
}

void PaperDocument::write(QTextDocument& document, const QString& html, int zoom) const
{
    document.setUndoRedoEnabled(false);
    document.setDefaultFont(letters(zoom));
    if (!m_plainText.isNull()) {
        document.setPlainText(m_plainText);
        return;
    }
    document.setDefaultStyleSheet(paperStyle());
    // In one edit, which is laid out once: where a picture is put into a document that has its
    // layout already, texts between the tables behind it are lost.
    QTextCursor all(&document);
    all.beginEditBlock();
    document.setHtml(html);
    insertPictures(document, m_pictures);
    all.endEditBlock();
}

void PaperDocument::drawPages(QPagedPaintDevice& device, QPainter& painter, int first,
                              int last) const
{
    painter.setFont(PageFrame::letters());
    const PageFrame frame{m_heading, m_title};
    const QRectF room(0, 0, device.width(), device.height());
    const double head = PageFrame::headHeight(painter);
    QTextDocument document;
    document.setDocumentMargin(0); // the paper has margins of its own
    document.documentLayout()->setPaintDevice(&device);
    document.setTextWidth(room.width());
    fill(document);
    const std::vector<PaperPage> pages =
        pagesOf(document, room.height() - head - PageFrame::footHeight(painter));

    const int all = static_cast<int>(pages.size());
    const int end = last > 0 ? std::min(last, all) : all;
    for (int number = first; number <= end; ++number) {
        if (number > first) device.newPage();
        const PaperPage& page = pages[static_cast<std::size_t>(number - 1)];
        frame.drawHead(painter, room);
        drawSlice(document, painter, page.heading, head);
        drawSlice(document, painter, page.body, head + page.heading.height());
        frame.drawFoot(painter, room, number, all);
    }
}

QByteArray PaperDocument::PDF() const
{
    const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, paperMargins,
                             QPageLayout::Millimeter);
    return pdfBytes(
        m_title, asQString(m_heading.program), layout,
        [this](QPagedPaintDevice& device, QPainter& painter) { drawPages(device, painter); });
}

} // namespace korvel
