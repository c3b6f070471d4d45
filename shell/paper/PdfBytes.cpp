// SPDX-License-Identifier: MIT
#include "shell/paper/PdfBytes.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace korvel
{
QByteArray pdfBytes(const QString& title, const QString& creator, const QPageLayout& layout,
                    const DrawPages& draw)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setCreator(creator);
    writer.setPageLayout(layout);
    QPainter painter(&writer);
    draw(writer, painter);
    painter.end();
    return bytes;
}

} // namespace korvel
