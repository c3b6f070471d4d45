// SPDX-License-Identifier: MIT
#include "shell/paper/PagePrinter.h"

#include "shell/machine/ExecOwned.h"
#include "shell/paper/PageFrame.h"
#include "shell/paper/PaperDocument.h"
#include "shell/paper/PdfBytes.h"
#include "shell/paper/PrintPreview.h"
#include "shell/program/Program.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QtMath>

namespace korvel
{
namespace
{

constexpr QMarginsF printMargins(15, 15, 15, 15); // millimetres

} // namespace

PagePrinter::PagePrinter(Program& program, QWidget& window) : m_program(program), m_window(window)
{
}

void PagePrinter::setUp(QPrinter& printer, QPageLayout::Orientation orientation) const
{
    printer.setDocName(m_window.windowTitle());
    printer.setPageOrientation(orientation);
    printer.setPageMargins(printMargins, QPageLayout::Millimeter);
}

bool PagePrinter::letChoose(const QString& title, QPrinter& printer, const DrawPages& draw) const
{
    if (execOwned(new PrintPreview(title, draw, printer, &m_window)) != QDialog::Accepted)
        return false;
    return execOwned(new QPrintDialog(&printer, &m_window)) == QDialog::Accepted;
}

void PagePrinter::print(const PaperDocument& document) const
{
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer, QPageLayout::Portrait);
    const DrawPages draw = [&](QPagedPaintDevice& device, QPainter& painter) {
        document.drawPages(device, painter, std::max(printer.fromPage(), 1), printer.toPage());
    };
    if (letChoose(document.title(), printer, draw)) paint(printer, draw);
}

void PagePrinter::print(const QString& title, QPageLayout::Orientation orientation,
                        const Draw& draw) const
{
    print(title, orientation, std::vector{draw});
}

void PagePrinter::print(const QString& title, QPageLayout::Orientation orientation,
                        const std::vector<Draw>& pages) const
{
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer, orientation);
    const DrawPages draw = framed(title, pages);
    if (letChoose(title, printer, draw)) paint(printer, draw);
}

QByteArray PagePrinter::PDF(const QString& title, const std::vector<Draw>& pages) const
{
    const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, printMargins,
                             QPageLayout::Millimeter);
    return pdfBytes(title, programTitle, layout, framed(title, pages));
}

/// The pages in the frame of all papers.
DrawPages PagePrinter::framed(const QString& title, const std::vector<Draw>& pages) const
{
    const PageFrame frame{m_program.paperHeading(), title};
    return [frame, pages](QPagedPaintDevice& device, QPainter& painter) {
        const QRectF sheet(0, 0, device.width(), device.height());
        const int count = static_cast<int>(pages.size());
        for (int page = 1; page <= count; ++page) {
            if (page > 1) device.newPage();
            frame.drawHead(painter, sheet);
            frame.drawFoot(painter, sheet, page, count);
            const double head = PageFrame::headHeight(painter);
            const double high = sheet.height() - head - PageFrame::footHeight(painter);
            painter.save();
            painter.translate(0, head);
            pages[static_cast<std::size_t>(page - 1)](painter,
                                                      QRect(0, 0, device.width(), qFloor(high)));
            painter.restore();
        }
    };
}

void PagePrinter::paint(QPrinter& printer, const DrawPages& draw) const
{
    const QString file = printer.outputFileName();
    if (printer.outputFormat() == QPrinter::PdfFormat && !file.isEmpty()) {
        // The printer's own engine would empty a file that exists before the first page, and
        // answer that all is well also when the disk is full.
        write(file.toStdString(),
              pdfBytes(printer.docName(), programTitle, printer.pageLayout(), draw).toStdString());
        return;
    }
    QPainter painter;
    if (!painter.begin(&printer)) return say("The printer cannot be used.");
    draw(printer, painter);
    if (!painter.end()) say("The printer did not take all pages.");
}

bool PagePrinter::write(const std::string& path, const std::string& bytes) const
{
    const auto reason = m_program.files().saveAnywhere(path, bytes);
    if (reason) say('"' + path + "\" could not be written: " + *reason);
    return !reason;
}

void PagePrinter::say(const std::string& text) const
{
    m_program.questions().ask({text, programTitle, Buttons::Ok});
}

} // namespace korvel
