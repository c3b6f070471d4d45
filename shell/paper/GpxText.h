// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"

#include <QByteArray>

namespace korvel
{

/// A route or a track as GPX 1.1, which chart programs open.
/// @param creator name and version of the program
QByteArray gpxText(const ExportLine& line, const QString& creator);

} // namespace korvel
