// SPDX-License-Identifier: MIT
#include "app/watch/clock/LocalTime.h"

#include "navlib/datetime.h"

#include <cmath>
#include <ctime>

#ifdef _WIN32
#include <windows.h>
#endif

namespace korvel
{
namespace
{

#ifdef _WIN32
NavFunc113::DateTime dateTime(const SYSTEMTIME& time)
{
    return NavFunc113::MakeDateTime({time.wYear, time.wMonth, time.wDay},
                                    time.wHour * 3600 + time.wMinute * 60 + time.wSecond);
}
#else
NavFunc113::DateTime dateTime(const std::tm& time)
{
    return NavFunc113::MakeDateTime({time.tm_year + 1900, time.tm_mon + 1, time.tm_mday},
                                    time.tm_hour * 3600 + time.tm_min * 60 + time.tm_sec);
}
#endif

} // namespace

LocalTime localTime()
{
#ifdef _WIN32
    // The C library asks for the zone once; these two follow it.
    SYSTEMTIME utc{};
    SYSTEMTIME local{};
    GetSystemTime(&utc);
    SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
#else
    tzset(); // localtime_r alone keeps to the zone that it met first
    const std::time_t instant = std::time(nullptr);
    std::tm utc{};
    std::tm local{};
    gmtime_r(&instant, &utc);
    localtime_r(&instant, &local);
#endif
    const NavFunc113::DateTime time = dateTime(local);
    return {time, std::round((time - dateTime(utc)) * 1440) / 60};
}

} // namespace korvel
