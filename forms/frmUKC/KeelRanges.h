// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"
#include "forms/frmUKC/KeelModel.h"

namespace korvel
{

/// Says where a squat lies outside what its formula was drawn from.
/// @param tide at which there is water, and in a channel more than the ship fills
void tellRanges(const KeelModel& model, NavFunc113::Knots speed, NavFunc113::Metres tide,
                Remarks& remarks);

} // namespace korvel
