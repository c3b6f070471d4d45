// SPDX-License-Identifier: MIT
#include "tests/navlib/accuracy/ErfaReference.h"

#include <erfa.h>
#include <erfam.h>

#include <algorithm>
#include <cmath>

namespace erfareference
{
namespace
{

constexpr double degree = ERFA_DD2R;
constexpr double astronomicalUnitKm = ERFA_DAU / 1000;
constexpr double serialZero = 2415018.5; ///< Julian date of 1899-12-30 00:00
constexpr double lightDaysPerUnit = ERFA_AULT / ERFA_DAYSEC;

double secondsOfLeap(double day)
{
    int year, month, dayOfMonth;
    double fraction, deltaAT;
    eraJd2cal(serialZero, day, &year, &month, &dayOfMonth, &fraction);
    eraDat(year, month, dayOfMonth, 0, &deltaAT);
    return deltaAT;
}

/// From the Earth's centre, on the axes of the celestial reference system, astronomical units.
void geocentric(Body body, double tt, double position[3])
{
    double pv[2][3], barycentric[2][3];
    if (body == Body::Moon) {
        eraMoon98(serialZero, tt, pv);
        const double delay = eraPm(pv[0]) * lightDaysPerUnit;
        eraMoon98(serialZero, tt - delay, pv);
        eraCp(pv[0], position);
        return;
    }
    eraEpv00(serialZero, tt, pv, barycentric);
    // Light time and the Earth's own motion together: the place of a light-time ago.
    eraEpv00(serialZero, tt - eraPm(pv[0]) * lightDaysPerUnit, pv, barycentric);
    eraSxp(-1, pv[0], position);
}

struct Orientation {
    double matrix[3][3];
    double siderealTime;
};

Orientation orientation(double ut1, double tt)
{
    Orientation result;
    eraPnm06a(serialZero, tt, result.matrix);
    result.siderealTime = eraGst06(serialZero, ut1, serialZero, tt, result.matrix);
    return result;
}

double terrestrialTime(double utc)
{
    return utc + (secondsOfLeap(utc) + 32.184) / ERFA_DAYSEC;
}

} // namespace

Place apparentPlace(Body body, double utc)
{
    const double tt = terrestrialTime(utc);
    const Orientation frame = orientation(utc, tt);
    double position[3], ofDate[3], rightAscension, declination;
    geocentric(body, tt, position);
    eraRxp(const_cast<double(*)[3]>(frame.matrix), position, ofDate);
    eraC2s(ofDate, &rightAscension, &declination);
    return {eraAnp(frame.siderealTime - rightAscension) / degree, declination / degree,
            eraPm(position) * astronomicalUnitKm};
}

DayOfEvents::DayOfEvents(Body body, double date, double TD) : m_body(body), m_date(date)
{
    double last = 0;
    for (std::size_t i = 0; i < m_hourly.size(); ++i) {
        m_hourly[i] = apparentPlace(body, date + (static_cast<double>(i) - margin - TD) / 24);
        while (m_hourly[i].GHA < last)
            m_hourly[i].GHA += 360;
        last = m_hourly[i].GHA;
    }
}

/// Third-degree Lagrange through the four hours around.
Place DayOfEvents::at(double hour) const
{
    const double base = std::floor(hour);
    const double x = hour - base;
    const auto first = static_cast<std::size_t>(base + margin - 1);
    const std::array weights{-x * (x - 1) * (x - 2) / 6, (x + 1) * (x - 1) * (x - 2) / 2,
                             -(x + 1) * x * (x - 2) / 2, (x + 1) * x * (x - 1) / 6};
    Place place;
    for (std::size_t k = 0; k < weights.size(); ++k) {
        place.GHA += weights[k] * m_hourly[first + k].GHA;
        place.declination += weights[k] * m_hourly[first + k].declination;
        place.distanceKm += weights[k] * m_hourly[first + k].distanceKm;
    }
    return place;
}

std::optional<double> DayOfEvents::event(bool rising, double latitude, double longitude,
                                         Horizon horizon) const
{
    const auto above = [&](double hour) {
        const Place place = at(hour);
        double eventAltitude = m_body == Body::Sun ? -0.9033 : 0;
        if (horizon == Horizon::Almanac) {
            const double parallax = std::asin(6378.14 / place.distanceKm) / degree;
            const double radiusKm = m_body == Body::Sun ? 696000 : 1737.4;
            eventAltitude = parallax - std::asin(radiusKm / place.distanceKm) / degree - 34.0 / 60;
        }
        const double hourAngle = (place.GHA + longitude) * degree;
        const double sine = std::sin(latitude * degree) * std::sin(place.declination * degree) +
                            std::cos(latitude * degree) * std::cos(place.declination * degree) *
                                std::cos(hourAngle);
        return std::asin(sine) / degree - eventAltitude;
    };
    constexpr double step = 1.0 / 6;
    for (double from = 0; from < 24 - step / 2; from += step) {
        const double to = std::min(from + step, 24.0);
        const bool crosses =
            rising ? above(from) < 0 && above(to) >= 0 : above(from) >= 0 && above(to) < 0;
        if (!crosses) continue;
        double low = from, high = to;
        for (int i = 0; i < 24; ++i) {
            const double middle = (low + high) / 2;
            ((above(middle) < 0) == rising ? low : high) = middle;
        }
        return m_date + low / 24;
    }
    return std::nullopt;
}

} // namespace erfareference
