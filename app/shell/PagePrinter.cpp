// SPDX-License-Identifier: MIT
#include "app/shell/PagePrinter.h"

#include "app/shell/PaperDocument.h"
#include "app/shell/PrintPreview.h"
#include "app/shell/Program.h"
#include "app/shell/execOwned.h"

#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace korvel
{
namespace
{

constexpr QMarginsF printMargins(15, 15, 15, 15); // millimetres

/// The printer's engine answers that all is well also when the disk is full: a page that is there
/// ends with the mark that every such file ends with.
bool isWholePDF(const QString& name)
{
    QFile file(name);
    constexpr qint64 tail = 16;
    if (!file.open(QIODevice::ReadOnly) || file.size() < tail || !file.seek(file.size() - tail))
        return false;
    return file.readAll().contains("%%EOF");
}

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
    paint(printer, [&](QPainter& painter) {
        const int first = std::max(printer.fromPage(), 1);
        document.drawPages(printer, painter, first, printer.toPage());
    });
}

void PagePrinter::print(QPageLayout::Orientation orientation, const Draw& draw) const
{
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer, orientation);
    if (!letChoose(printer)) return;
    paint(printer, [&](QPainter& painter) { draw(painter, painter.viewport()); });
}

void PagePrinter::paint(QPrinter& printer, const std::function<void(QPainter&)>& draw) const
{
    const QString file = printer.outputFileName();
    QPainter painter;
    if (!painter.begin(&printer)) {
        say(file.isEmpty() ? QString("The printer cannot be used.")
                           : QString("\"%1\" cannot be written.").arg(file));
        return;
    }
    draw(painter);
    const bool printed = painter.end();
    if (!file.isEmpty() && (!printed || !isWholePDF(file)))
        say(QString("\"%1\" could not be written whole.").arg(file));
}

void PagePrinter::say(const QString& text) const
{
    m_program.questions().ask({text.toStdString(), programTitle, Buttons::Ok});
}

} // namespace korvel
