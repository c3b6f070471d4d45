// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace korvel
{

/// What every sheet has around what stands on it, so that it can be told where it belongs when it
/// lies alone: ship and voyage with the times above, title, program and page below.
struct PageFrame {
    PaperHeading heading;
    QString title;

    /// The letters of a frame, and of small print.
    static QFont letters();
    /// @param painter in its font the frame was or will be drawn
    static double headHeight(const QPainter& painter);
    static double footHeight(const QPainter& painter);

    void drawHead(QPainter& painter, const QRectF& sheet) const;
    void drawFoot(QPainter& painter, const QRectF& sheet, int page, int of) const;
};

} // namespace korvel
