// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

/// Weights of lines, the same in all pictures, in heights of a line of text.
namespace korvel::LineWeight
{

inline constexpr double fine = 0.06;    ///< grids, frames, what helps to read
inline constexpr double second = 0.12;  ///< what the subject is compared with
inline constexpr double subject = 0.16; ///< what the picture is about

/// Width of a line in pixels, whole ones: the painter has a short way for a line of one pixel.
inline double inPixels(double weight, double lineHeight)
{
    return std::max(1.0, std::floor(weight * lineHeight));
}

} // namespace korvel::LineWeight
