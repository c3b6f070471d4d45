// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmSunSight/fix/SightFix.h"
#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "forms/frmSunSight/sight/MeridianPassage.h"

namespace korvel
{

/// How time, place of the Sun, corrections and line of position of a sight came about.
std::vector<Working> sightWorkings(const SightTexts& texts, const LOPResult& line);

/// The same parts of a sight of another body than the Sun.
Working bodyPlaceWorking(const LOPResult& line);
Working bodyAltitudeWorking(const LOPResult& line);
Working bodyMeridianWorking(const MeridianResult& noon);

/// How the meridian passage and the latitude by the sight came about; nothing without them.
std::optional<Working> meridianWorking(const MeridianResult& noon);

/// How the fix came about: lines, run, passes, residuals, what does not fit, ellipse.
Working fixWorking(const SightFixResult& fix);

/// Series of shots, and the longitude by equal altitudes; nothing without them.
std::optional<Working> seriesWorking(const SightFixResult& fix);
std::optional<Working> equalAltitudeWorking(const SightFixResult& fix);

/// The table that the corrections are added up in, as the window shows it.
PaperTable worksheetTable(const LOPResult& line);

} // namespace korvel
