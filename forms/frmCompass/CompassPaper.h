// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmCompass/DeviationCurve.h"

namespace korvel
{

/// Tells the book in a paper that has nothing as yet: its lines as the window lists them.
/// @param kind of which compass; nothing: of all
void tellBook(WorkingPaper& paper, const CompassBook& book, std::optional<CompassKind> kind);

/// Tells the curve of a compass: its lines, its coefficients and the card.
void tellDeviation(WorkingPaper& paper, const DeviationCurve& curve, const CompassBook& book,
                   CompassKind kind);

/// A line in a few words, for a question.
std::string lineInWords(const CompassLine& line);

} // namespace korvel
