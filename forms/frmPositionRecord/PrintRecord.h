// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>

class QPainter;

namespace korvel
{

/// Draws a record on one sheet.
/// @param room    of the page, in device pixels
/// @param record  positionRecordText: lines of columns parted by tabs
/// @param printed when, by ship's time, so that two printouts can be told apart
void printRecord(QPainter& painter, const QRect& room, const QString& record,
                 const QString& printed);

/// The page as a document of the toolkit's rich text.
QString recordAsPage(const QString& record, const QString& printed);

} // namespace korvel
