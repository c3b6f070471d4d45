// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/SettingsRecord.h"
#include "forms/frmSunSight/sight/SightList.h"

namespace korvel
{

/// What the sun sight window keeps from one run to the next.
struct SightSettings {
    SightTexts sight; ///< being entered
    TrackTexts track;
    SightFixOptions options;
    SightList list;
};

/// The record of "KV_SunSight.ini": the sight being entered (date, time, SMT tick, TD, watch error,
/// Hs, index error, upper limb tick, height of eye, air, sea, pressure), the track (DR latitude,
/// longitude, time, course, speed), sigma, errors of run and course, tick for the measured sigma,
/// then the texts of SightList::most sights. A sight is one text
/// "SIGHT;on;UTC;L;date;time;TD;watch error;Hs;index error;height of eye;air;sea;pressure" with
/// "off", "SMT" and "U" for the upper limb where they apply.
Record recordOf(const SightSettings& settings);
std::vector<FieldKind> sightKinds();

/// @param record as sightKinds() describes it
SightSettings settingsOf(const Record& record);

} // namespace korvel
