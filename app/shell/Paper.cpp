// SPDX-License-Identifier: MIT
#include "app/shell/Paper.h"

#include "app/shell/Program.h"

#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr QMarginsF pageMargins(15, 15, 15, 15); // millimetres

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

Paper::Paper(Program& program, QWidget& window) : m_program(program), m_window(window) {}

void Paper::printWidget(QWidget& widget) const
{
    print(QPageLayout::Portrait, [&](QPainter& painter, const QRect& room) {
        const double scale = std::min(double(room.width()) / widget.width(),
                                      double(room.height()) / widget.height());
        painter.scale(scale, scale);
        widget.render(&painter);
    });
}

void Paper::print(QPageLayout::Orientation orientation, const Draw& draw) const
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_window.windowTitle());
    printer.setPageOrientation(orientation);
    printer.setPageMargins(pageMargins, QPageLayout::Millimeter);
    QPrintDialog dialog(&printer, &m_window);
    if (dialog.exec() != QDialog::Accepted) return;
    const QString file = printer.outputFileName();
    QPainter painter;
    if (!painter.begin(&printer)) {
        say(file.isEmpty() ? QString("The printer cannot be used.")
                           : QString("\"%1\" cannot be written.").arg(file));
        return;
    }
    draw(painter, painter.viewport());
    const bool printed = painter.end();
    if (!file.isEmpty() && (!printed || !isWholePDF(file)))
        say(QString("\"%1\" could not be written whole.").arg(file));
}

void Paper::say(const QString& text) const
{
    m_program.questions().ask({text.toStdString(), programTitle, Buttons::Ok});
}

} // namespace korvel
