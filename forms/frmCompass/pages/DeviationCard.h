// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmCompass/DeviationCurve.h"
#include "shell/paper/PaperPicture.h"

#include <QRect>

class QPainter;

namespace korvel
{

/// What a deviation card says beside its curve.
struct DeviationCard {
    QString compass; ///< "Standard"
    QString ship;    ///< empty: a line to write on
    QString printed; ///< when, as papers have it
    PaperPicture picture;
};

/// Draws a deviation card on one sheet.
/// @param room  of the page, in device pixels
/// @param curve has a fit
void drawDeviationCard(QPainter& painter, const QRect& room, const DeviationCard& card,
                       const DeviationCurve& curve, const CompassBook& book);

} // namespace korvel
