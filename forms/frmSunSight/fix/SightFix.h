// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"
#include "app/records/ObservedFix.h"
#include "forms/frmSunSight/sight/SightList.h"
#include "navlib/sky/line_checks.h"

#include <optional>
#include <string>
#include <vector>

namespace korvel
{

/// One recorded sight that is on, as a line of the fix.
struct FixLine {
    std::size_t index{}; ///< in the list
    NavFunc113::DateTime UTC{};
    std::string body; ///< its name; empty for the Sun
    NavFunc113::DegMin Ho;
    NavFunc113::Sight sight;
    NavFunc113::LineOfPosition line; ///< referred to the DR position
    NavFunc113::Position DR;         ///< run to the time of the sight
    std::string text;                ///< intercept, Zn, and the residual once there is a fix
    int shots = 1;                   ///< of which it was made
};

/// Two sights of one body at nearly the same altitude, to the east and to the west of the meridian.
struct EqualAltitudePair {
    NavFunc113::DateTime first{}; ///< UTC
    NavFunc113::DateTime second{};
    NavFunc113::DateTime passage{};
    NavFunc113::Degrees longitude;   ///< of the ship at the passage
    NavFunc113::Degrees byAltitudes; ///< standard deviation of it
    NavFunc113::Degrees byRun;       ///< the same, by the errors of course and speed
};

/// Shots of one body that were made one line.
struct SeriesShot {
    std::size_t index{}; ///< in the list
    NavFunc113::DateTime UTC{};
    NavFunc113::Miles residual; ///< observed less fitted
    bool isWild = false;
};
struct SightSeries {
    std::string body;           ///< empty for the Sun
    NavFunc113::DateTime UTC{}; ///< the mean
    NavFunc113::DegMin Ho;      ///< fitted, at that time
    NavFunc113::Miles intercept;
    NavFunc113::Miles scatter; ///< standard deviation of a shot, by the residuals
    NavFunc113::Miles sigma;   ///< of the line, as it goes into the fix
    std::vector<SeriesShot> shots;
};

/// A position that the lines give, with what it is called.
struct FixPoint {
    NavFunc113::Position position;
    std::optional<NavFunc113::ErrorEllipse> ellipse; ///< absent when it would claim too much
    std::string label;                               ///< "R FIX 1530", "without 1145"
};

struct SightFixResult {
    /// Time of the last sight that is on; in a round of stars that of the DR position, where this
    /// lies within the round.
    std::optional<NavFunc113::DateTime> UTC;
    std::optional<NavFunc113::Position> DR; ///< run to that time: the middle of the plot. With
                                            ///< no sight on, as typed
    NavFunc113::Motion motion;
    std::vector<FixLine> lines;
    std::vector<SightSeries> series; ///< those of the lines that were made of several shots

    std::optional<NavFunc113::Fix> solution; ///< what all below follows from
    NavFunc113::Agreement agreement;
    NavFunc113::ErrorModel errors;

    std::optional<FixPoint> fix;
    std::vector<FixPoint> without; ///< when lines do not agree: the fix of the rest, or the fixes
                                   ///< without one each that may be out
    std::string latitude;          ///< "14-.06'0N"
    std::string longitude;         ///< "052-.25'8W"
    std::string time;              ///< "R FIX 2020/12/17 15:30:00 UTC"
    std::string memoLatitude;      ///< DegMin in full, for the Position Memo
    std::string memoLongitude;
    std::string ellipseText;
    std::string sigmaText;   ///< where the sigma of the ellipse comes from
    std::string withoutText; ///< the fixes without what does not fit
    std::vector<EqualAltitudePair> equalPairs;
    std::string equalText;                   ///< passage and longitude by equal altitudes
    std::string seriesText;                  ///< what the series came to
    std::string notice;                      ///< why there is no fix, and warnings
    NoticeLevel level = NoticeLevel::Remark; ///< of the notice
};

/// The fix from all recorded sights that are on.
/// @param now  UTC, for sights that lie ahead of it
SightFixResult CalculateFix(const SightList& list, const TrackTexts& track,
                            const SightFixOptions& options,
                            std::optional<NavFunc113::DateTime> now);

/// A fix as the position record takes it; nothing without one.
std::optional<ObservedFix> fixForRecord(const SightFixResult& fix);

/// The track that goes on from a fix, with the course and speed of the one before.
/// @param fix with a position
TrackTexts trackFrom(const SightFixResult& fix, const TrackTexts& before);

} // namespace korvel
