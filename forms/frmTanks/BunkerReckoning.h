// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/BunkersNow.h"
#include "forms/frmTanks/TankReckoning.h"

namespace korvel
{

/// What was consumed of each fuel between the surveys: before, and received, less remaining. A fuel
/// is what parcels of one line of the noon report are; a parcel without a line is of the first.
/// @param list of bunkers, of which reckoning has taken everything
BunkersNow bunkersNow(const TankList& list, const TankReckoning& reckoning);
/// The same of a sheet as it was kept.
BunkersNow bunkersNow(const TankSheet& sheet);

} // namespace korvel
