// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/SightList.h"

#include <optional>
#include <vector>

namespace korvel
{

/// How good sights and run are held to be, as typed.
struct SightFixOptions {
    std::string sigma;     ///< miles, of one line; empty: 1
    std::string runAlong;  ///< per cent of the distance run; empty: 5
    std::string runCourse; ///< degrees of the course made good; empty: 2
    bool measured = false; ///< scale the ellipse by the residuals (three lines or more)
};

/// One recorded sight that is on, as a line of the fix.
struct FixLine {
    std::size_t index = 0; ///< in the list
    NavFunc113::DateTime UTC = 0;
    NavFunc113::Sight sight;
    NavFunc113::LineOfPosition line; ///< referred to the DR position
    NavFunc113::Position DR;         ///< run to the time of the sight
    std::string text;                ///< Hc, intercept, Zn, and the residual once there is a fix
};

struct SightFixResult {
    std::optional<NavFunc113::DateTime> UTC; ///< time of the last sight that is on
    std::optional<NavFunc113::Position> DR;  ///< run to that time: the middle of the plot. With
                                             ///< no sight on, as typed
    NavFunc113::Motion motion;
    std::vector<FixLine> lines;

    std::optional<NavFunc113::Position> fix;
    NavFunc113::ErrorEllipse ellipse; ///< valid with a fix
    std::string latitude;             ///< "14-.06'0N"
    std::string longitude;            ///< "052-.25'8W"
    std::string time;                 ///< "R FIX 2020/12/17 15:30:00 UTC"
    std::string memoLatitude;         ///< DegMin in full, for the Position Memo
    std::string memoLongitude;
    std::string ellipseText;
    std::string sigmaText; ///< where the sigma of the ellipse comes from
    std::string notice;    ///< why there is no fix, and warnings
};

/// The fix from all recorded sights that are on, at the time of the last of them.
SightFixResult CalculateFix(const SightList& list, const TrackTexts& track,
                            const SightFixOptions& options);

} // namespace korvel
