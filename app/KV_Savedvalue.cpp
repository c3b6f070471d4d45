// SPDX-License-Identifier: MIT
#include "app/KV_Savedvalue.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

constexpr float defaultTD = 9;

} // namespace

KV_Savedvalue::KV_Savedvalue()
{
    (*this)(0) = true;
    for (int n = 1; n <= alarms; ++n)
        setAlarmTime(n, "00:00");
    setUnitOfLatitude(true);
    for (int memo = 23; memo <= 25; ++memo)
        (*this)(memo) = 0.0;
    setTD(defaultTD);
}

ClockZone KV_Savedvalue::clockZone() const
{
    for (int zone = 0; zone < 3; ++zone)
        if (tickOf((*this)(zone))) return static_cast<ClockZone>(zone);
    return ClockZone::JST;
}

void KV_Savedvalue::setClockZone(ClockZone zone)
{
    for (int i = 0; i < 3; ++i)
        (*this)(i) = i == static_cast<int>(zone);
}

int KV_Savedvalue::timeSignalMinutes() const
{
    const double minutes = numberOf((*this)(19));
    return minutes >= 0 && minutes <= 59 ? static_cast<int>(minutes) : 0;
}

float KV_Savedvalue::TD() const
{
    return static_cast<float>(numberOf((*this)(26)));
}

void KV_Savedvalue::take(const Record& record)
{
    std::copy_n(record.begin(), count, m_values.begin());
    setClockZone(clockZone());
    const double hours = numberOf((*this)(26));
    setTD(std::fabs(hours) <= 12 ? static_cast<float>(hours) : defaultTD);
}

} // namespace korvel
