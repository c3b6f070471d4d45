// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/StationLines.h"
#include "forms/frmTIDE/day/TideTables.h"

#include <QPainter>
#include <QString>

#include <vector>

namespace korvel
{

/// The printed page of seven days: every high and low water by both ways, the Moon, the source.
struct TideWeekPage {
    QString place;
    TideKind kind;
    QString zone;
    std::vector<WeekDay> week;
    StationLines lines;

    /// @param room of the paper, in device pixels
    void draw(QPainter& painter, const QRect& room) const;
};

} // namespace korvel
