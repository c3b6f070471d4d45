// SPDX-License-Identifier: MIT
#include "app/shell/PaperDocument.h"

#include "app/shell/PictureObjects.h"
#include "app/shell/asQString.h"
#include "app/shell/paper_html.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>

namespace korvel
{
namespace
{

constexpr double paperLetters = 8.5;  // points
constexpr double footLetters = 7.5;   // points
constexpr double pictureLetters = 11; // pixels
constexpr int PDFDots = 1200;
constexpr QMarginsF paperMargins(18, 15, 15, 12); // millimetres; the left one for the file

QFont paperFont(double points)
{
    QFont font;
    font.setPointSizeF(points);
    font.setStyleStrategy(QFont::PreferNoShaping); // a search for "fix" finds no ligature
    return font;
}

void insertPictures(QTextDocument& document, const std::vector<PaperPicture>& pictures)
{
    if (pictures.empty()) return;
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

} // namespace

PaperPicture makePaperPicture(const QString& caption, const QSize& size,
                              const std::function<void(QPainter&, const QSize&)>& draw)
{
    PaperPicture picture{caption, size, QPicture()};
    QPainter painter(&picture.drawing);
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(pictureLetters));
    painter.setFont(font);
    draw(painter, size);
    return picture;
}

PaperDocument::PaperDocument(PaperHeading heading, WorkingPaper paper,
                             std::vector<PaperPicture> pictures)
    : m_title(asQString(paper.kind)), m_heading(std::move(heading)), m_paper(std::move(paper)),
      m_pictures(std::move(pictures))
{
}

PaperDocument::PaperDocument(QString title, QString plainText)
    : m_title(std::move(title)), m_plainText(std::move(plainText))
{
}

void PaperDocument::fill(QTextDocument& document) const
{
    document.setUndoRedoEnabled(false);
    document.setDefaultFont(paperFont(paperLetters));
    if (!m_plainText.isNull()) {
        document.setPlainText(m_plainText);
        return;
    }
    document.setDefaultStyleSheet("h2 { font-size: large } h3 { font-size: medium; "
                                  "margin-top: 8px; margin-bottom: 2px } th { text-align: left; "
                                  "background-color: #e0e0e0 } ul { margin-top: 0px }");
    // In one edit, which is laid out once: where a picture is put into a document that has its
    // layout already, texts between the tables behind it are lost.
    QTextCursor all(&document);
    all.beginEditBlock();
    document.setHtml(paperHtml(m_heading, m_paper, m_pictures.size()));
    insertPictures(document, m_pictures);
    all.endEditBlock();
}

void PaperDocument::drawPages(QPagedPaintDevice& device, QPainter& painter, int first,
                              int last) const
{
    const QFont footFont = paperFont(footLetters);
    painter.setFont(footFont);
    const QRectF room(0, 0, device.width(), device.height());
    const QSizeF page(room.width(), room.height() - 2.0 * painter.fontMetrics().height());
    QTextDocument document;
    document.setDocumentMargin(0); // the paper has margins of its own
    document.documentLayout()->setPaintDevice(&device);
    document.setPageSize(page);
    fill(document);
    const int pages = document.pageCount();

    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = QPalette(Qt::black, Qt::white);
    const int end = last > 0 ? std::min(last, pages) : pages;
    for (int number = first; number <= end; ++number) {
        if (number > first) device.newPage();
        painter.save();
        context.clip = QRectF(0, (number - 1) * page.height(), page.width(), page.height());
        painter.translate(0, -context.clip.top());
        painter.setClipRect(context.clip);
        document.documentLayout()->draw(&painter, context);
        painter.restore();
        painter.setFont(footFont);
        painter.setPen(Qt::black);
        painter.drawText(room, Qt::AlignBottom | Qt::AlignLeft, m_title);
        painter.drawText(room, Qt::AlignBottom | Qt::AlignRight,
                         QString("Page %1 of %2").arg(number).arg(pages));
    }
}

QByteArray PaperDocument::PDF() const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(m_title);
    writer.setCreator(asQString(m_heading.program));
    writer.setResolution(PDFDots);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(paperMargins, QPageLayout::Millimeter);
    QPainter painter(&writer);
    drawPages(writer, painter);
    painter.end();
    return bytes;
}

} // namespace korvel
