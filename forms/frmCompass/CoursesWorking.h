// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmCompass/CalculateCourses.h"

namespace korvel
{

/// How the courses came about.
/// @param curve where the deviation comes from, in words
std::vector<Working> coursesWorkings(const CourseInput& input, const CourseResult& result,
                                     const std::string& curve);

} // namespace korvel
