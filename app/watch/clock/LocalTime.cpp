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

#ifndef _WIN32
std::time_t instantOfLocalTime(NavFunc113::DateTime shown)
{
    const NavFunc113::CivilDate date = NavFunc113::DateOf(shown);
    const NavFunc113::TimeOfDay time = NavFunc113::TimeOf(shown);
    std::tm civil{};
    civil.tm_year = date.year - 1900;
    civil.tm_mon = date.month - 1;
    civil.tm_mday = date.day;
    civil.tm_hour = time.hour;
    civil.tm_min = time.minute;
    civil.tm_sec = time.second;
    civil.tm_isdst = -1;
    return std::mktime(&civil);
}
#endif

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
