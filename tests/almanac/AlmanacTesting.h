// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/angles.h"
#include "navlib/datetime.h"

#include <cmath>
#include <cstdio>
#include <string>

namespace almanac
{

/// Instant of "2026-11-22T04:10:00Z" as the tables of cases have it.
inline NavFunc113::DateTime instantOf(const std::string& text)
{
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    std::sscanf(text.c_str(), "%d-%d-%dT%d:%d:%dZ", &year, &month, &day, &hour, &minute, &second);
    return NavFunc113::MakeDateTime({year, month, day}, hour * 3600 + minute * 60 + second);
}

/// How far two angles are apart, minutes of arc; 359.99 and 0 are near each other.
inline double minutesApart(NavFunc113::Degrees angle, double degrees)
{
    return std::fabs(std::remainder(angle.value() - degrees, 360)) * 60;
}

} // namespace almanac
