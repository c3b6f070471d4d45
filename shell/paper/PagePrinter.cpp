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
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer, orientation);
    const PageFrame frame{m_program.paperHeading(), title};
    const DrawPages framed = [&](QPagedPaintDevice& device, QPainter& painter) {
        const QRectF sheet(0, 0, device.width(), device.height());
        frame.drawHead(painter, sheet);
        frame.drawFoot(painter, sheet, 1, 1);
        const double head = PageFrame::headHeight(painter);
        const double high = sheet.height() - head - PageFrame::footHeight(painter);
        painter.save();
        painter.translate(0, head);
        draw(painter, QRect(0, 0, device.width(), qFloor(high)));
        painter.restore();
    };
    if (letChoose(title, printer, framed)) paint(printer, framed);
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
