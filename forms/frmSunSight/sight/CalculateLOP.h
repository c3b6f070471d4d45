// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"
#include "forms/frmSunSight/sight/BodySight.h"
#include "forms/frmSunSight/sight/SightInput.h"

#include <string>
#include <vector>

namespace korvel
{

/// One line of the worksheet: what is applied, and by how much.
struct WorksheetLine {
    std::string caption;
    std::string text; ///< minutes with sign, "-2.9'"; angles "24.-31'3"
};

/// What the line of position was calculated from; absent is what an unusable input left out.
struct LOPFigures {
    Observation observation;
    Track track;
    std::optional<NavFunc113::Position> DR;      ///< run to the time of the sight
    std::optional<NavFunc113::HorizonPlace> sun; ///< from there
    bool isByQuotient = true;                    ///< the azimuth; else by the four-quadrant form
};

struct LOPResult {                        ///< an empty text blanks the label
    std::string body;                     ///< what is known of it, or what else it may have been
    std::string UTC;                      ///< resolved, with its date
    std::string SMT;                      ///< the same with TD, when the watch keeps SMT
    std::string watchError;               ///< how it was applied
    std::vector<WorksheetLine> worksheet; ///< Hs to Ho, every term; empty when it cannot be made
    std::string Ho;
    std::string declination;
    std::string GHA; ///< 0 to 360
    std::string DR;  ///< the dead-reckoned position at the sight
    std::string Hc;
    std::string intercept; ///< "10'.8 T" towards, "3'.8 A" away
    std::string Zn;
    std::optional<NavFunc113::Degrees> azimuth; ///< the same in full
    LOPFigures figures;
    BodyDoubt doubt;    ///< whether it was that body at all; empty without a DR position
    std::string notice; ///< every input that cannot be used, then what the officer should know
    NoticeLevel level = NoticeLevel::Remark; ///< of the notice
};

/// The line of position of the sight being entered. What an unusable input does not touch is shown.
LOPResult CalculateLOP(const SightTexts& sight, const TrackTexts& track,
                       const SightContext& context);

} // namespace korvel
