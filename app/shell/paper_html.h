// SPDX-License-Identifier: MIT
#pragma once

#include "app/WorkingPaper.h"

#include <QString>

namespace korvel
{

/// A paper in the toolkit's rich text.
/// @param pictures how many there are; each stands in the text as pictureMark()
QString paperHtml(const PaperHeading& heading, const WorkingPaper& paper, std::size_t pictures);

/// What stands in the text in the place of a picture.
QString pictureMark(std::size_t picture);

} // namespace korvel
