// SPDX-License-Identifier: MIT
#pragma once

/// What reader and writer of GPX share.
namespace korvel::gpx
{

inline constexpr const char* ofVersion11 = "http://www.topografix.com/GPX/1/1";
inline constexpr const char* ofVersion10 = "http://www.topografix.com/GPX/1/0";

// Names under which they keep what they do not understand.
inline constexpr const char* inRoute = "gpx route/";
inline constexpr const char* inPoint = "gpx point/";

} // namespace korvel::gpx
