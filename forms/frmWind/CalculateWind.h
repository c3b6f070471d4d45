// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmWind/WindPicture.h"
#include "navlib/sea/wind.h"

#include <array>
#include <optional>
#include <string>

namespace korvel
{

struct WindResult {                     ///< an empty text blanks the label
    std::array<std::string, 2> lblWind; ///< direction of the true wind; Beaufort number and speed
    std::optional<WindFigures> figures; ///< for the picture; nothing: rings only
    std::optional<NavFunc113::TrueWindSteps> steps; ///< of the direction
    std::string notice; ///< why the labels are blank, and what else is to be said of the boxes
};

/// True wind from the apparent wind. An input that fails its check blanks both labels.
/// @param txtWind ship's course 0 .. 360 and speed from 0, apparent wind's direction from the bow
///                -180 .. 180 and speed from 0
/// @throws ArithmeticError from the library; the window base shows it.
WindResult CalculateWind(const std::array<std::string, 4>& txtWind);

} // namespace korvel
