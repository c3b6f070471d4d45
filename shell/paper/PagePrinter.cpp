// SPDX-License-Identifier: MIT
#include "shell/paper/PagePrinter.h"

#include "shell/machine/ExecOwned.h"
#include "shell/paper/PaperDocument.h"
#include "shell/paper/PdfBytes.h"
#include "shell/paper/PrintPreview.h"
#include "shell/program/Program.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

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

bool PagePrinter::letChoose(QPrinter& printer) const
{
    return execOwned(new QPrintDialog(&printer, &m_window)) == QDialog::Accepted;
}

void PagePrinter::print(const PaperDocument& document) const
{
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer, QPageLayout::Portrait);
    const int wanted = execOwned(new PrintPreview(document, printer, &m_window));
    if (wanted != QDialog::Accepted || !letChoose(printer)) return;
    paint(printer, [&](QPagedPaintDevice& device, QPainter& painter) {
        document.drawPages(device, painter, std::max(printer.fromPage(), 1), printer.toPage());
    });
}

void PagePrinter::print(QPageLayout::Orientation orientation, const Draw& draw) const
{
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer, orientation);
    if (!letChoose(printer)) return;
    paint(printer,
          [&](QPagedPaintDevice&, QPainter& painter) { draw(painter, painter.viewport()); });
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
