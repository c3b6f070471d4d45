// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"
#include "forms/frmSunSight/fix/SightFix.h"

/// What the window says of a fix that was found.
namespace korvel
{

/// Position, time and residuals of a fix that was found.
void describeFix(const NavFunc113::Fix& fix, SightFixResult& result);

/// The ellipse and where its sigma comes from; no ellipse when the lines do not agree, unless it is
/// scaled by their residuals.
void describeEllipse(const NavFunc113::Fix& fix, const NavFunc113::ErrorModel& errors,
                     const SightFixOptions& options, bool agrees, SightFixResult& result);

/// Names the sights that do not fit the others, with how far, and shows the fix without them.
void describeAgreement(const NavFunc113::Agreement& agreement, SightFixResult& result,
                       Remarks& remarks);

/// Names sights that lie ahead of now or more than a day from the fix.
void warnOfTimes(std::optional<NavFunc113::DateTime> now, const SightFixResult& result,
                 Remarks& remarks);

/// Warns of lines that cut at a small angle, and of a fix far from the DR position.
void warnOfGeometry(const NavFunc113::Fix& fix, const SightFixResult& result, Remarks& remarks);

} // namespace korvel
