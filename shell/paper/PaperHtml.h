// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"

#include <QString>

#include <functional>
#include <vector>

namespace korvel
{

/// A part of a paper in the toolkit's rich text, made when it is wanted.
struct PaperPart {
    std::size_t lines; ///< about
    std::function<QString()> html;
};

/// The parts of a paper in their order; all pictures are in the first.
/// @param heading, paper must outlive the parts
/// @param pictures how many there are; each stands in the text as pictureMark()
std::vector<PaperPart> paperParts(const PaperHeading& heading, const WorkingPaper& paper,
                                  std::size_t pictures);

/// What stands in the text in the place of a picture.
QString pictureMark(std::size_t picture);

} // namespace korvel
