// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"

#include <QByteArray>

namespace korvel
{

/// A route or a track as GPX 1.1, which chart programs open.
/// Its name and those of its points are of their own: a chart program would take the points of
/// another day with the same names for these.
/// @param creator name and version of the program
/// @param SMT     when it is made, by ship's time
QByteArray gpxText(const ExportLine& line, const QString& creator, NavFunc113::DateTime SMT);

} // namespace korvel
