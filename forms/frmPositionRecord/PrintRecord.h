// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QPrinter;

namespace korvel
{

/// Prints a record on as many pages as it takes, each with its number.
/// @param record  positionRecordText: lines of columns parted by tabs
/// @param printed when, by ship's time, so that two printouts can be told apart
void printRecord(QPrinter& printer, const QString& record, const QString& printed);

/// The page as a document of the toolkit's rich text.
QString recordAsPage(const QString& record, const QString& printed);

} // namespace korvel
