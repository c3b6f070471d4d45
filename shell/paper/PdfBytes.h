// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <QString>

#include <functional>

class QPagedPaintDevice;
class QPainter;

namespace korvel
{

/// Draws onto pages; the painter is active on the device.
using DrawPages = std::function<void(QPagedPaintDevice&, QPainter&)>;

/// Pages as the bytes of a PDF file, fonts embedded: whole before a byte of a file is touched.
QByteArray pdfBytes(const QString& title, const QString& creator, const QPageLayout& layout,
                    const DrawPages& draw);

} // namespace korvel
