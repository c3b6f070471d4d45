// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/StationLines.h"
#include "forms/frmTIDE/day/TideWaters.h"

#include <QPainter>

#include <functional>

namespace korvel
{

/// The printed page of a day: heading, figures, waters, curve, a table of the half hours, the
/// station's source.
struct frmTIDEPage {
    QString place;
    QString date;
    TideDayShown day;
    StationLines lines;
    /// Draws the curve at a size, in the units of the page.
    std::function<void(QPainter&, const QSize&)> drawCurve;

    /// @param room of the paper, in device pixels
    void draw(QPainter& painter, const QRect& room) const;

private:
    double drawHeading(QPainter& painter, double pageHeight) const;
    double drawWaters(QPainter& painter, double top) const;
    double tableHeight(const QPainter& painter) const;
    void drawTable(QPainter& painter, double top) const;
    double footHeight(const QPainter& painter) const;
    void drawFoot(QPainter& painter, double top) const;
    QString footText() const;
};

} // namespace korvel
