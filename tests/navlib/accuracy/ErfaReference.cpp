// SPDX-License-Identifier: MIT
#include "tests/navlib/accuracy/ErfaReference.h"

#include "tests/SourceFolder.h"

#include <erfa.h>
#include <erfam.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace erfareference
{
namespace
{

constexpr double degree = ERFA_DD2R;
constexpr double astronomicalUnitKm = ERFA_DAU / 1000;
constexpr double serialZero = 2415018.5; ///< Julian date of 1899-12-30 00:00
constexpr double lightDaysPerUnit = ERFA_AULT / ERFA_DAYSEC;

/// TT - UT1 before the leap seconds, seconds: Stephenson and Morrison 1984, as the almanacs print
/// it.
constexpr double earlyYears[] = {-2.7, 3.9,  10.5, 17.2, 21.2, 23.6, 24.0, // 1900, 1905 ..
                                 23.9, 24.3, 26.8, 29.2, 31.1, 33.2};

/// TT - UTC; for 1900 to 1959 TT - UT1. The leap seconds of today are kept for all later dates.
double secondsAhead(double day)
{
    constexpr double startOf1900 = 2, startOf1960 = 21916;
    if (day < startOf1960) {
        const double place = std::max(0.0, (day - startOf1900) / 365.25 / 5);
        const auto i = std::min(static_cast<std::size_t>(place), std::size(earlyYears) - 2);
        return earlyYears[i] +
               (place - static_cast<double>(i)) * (earlyYears[i + 1] - earlyYears[i]);
    }
    int year, month, dayOfMonth;
    double fraction, deltaAT;
    eraJd2cal(serialZero, day, &year, &month, &dayOfMonth, &fraction);
    eraDat(year, month, dayOfMonth, 0, &deltaAT);
    return 32.184 + deltaAT;
}

/// The Moon's series: terms of longitude and latitude in seconds of arc, of the distance in km.
struct Term {
    int power;
    double amplitude, phase, rate, square;
};
struct MoonTerms {
    std::vector<Term> longitude, latitude, distance;
};

MoonTerms readMoonTerms()
{
    MoonTerms terms;
    std::istringstream lines(korvel::contentOf(korvel::sourceFile("data/sky/moon.csv")));
    for (std::string line; std::getline(lines, line);) {
        std::replace(line.begin(), line.end(), ',', ' ');
        std::istringstream cells(line);
        std::string coordinate;
        Term term{};
        if (!(cells >> coordinate >> term.power >> term.amplitude >> term.phase >> term.rate >>
              term.square))
            continue;
        (coordinate == "L"   ? terms.longitude
         : coordinate == "B" ? terms.latitude
                             : terms.distance)
            .push_back(term);
    }
    if (terms.distance.empty()) throw std::runtime_error("data/sky/moon.csv cannot be read");
    return terms;
}

double sum(const std::vector<Term>& terms, double T)
{
    double result = 0;
    for (const Term& term : terms)
        result += std::pow(T, term.power) * term.amplitude *
                  std::sin(term.phase + (term.rate + term.square * T) * T);
    return result;
}

constexpr double julianCentury = 36525;

/// Geometric place of the Moon, km, on the axes of the celestial reference system.
void moon(double tt, double position[3])
{
    static const MoonTerms terms = readMoonTerms();
    const double T = (serialZero - ERFA_DJ00 + tt) / julianCentury;
    const double mean =
        3.8103440908308803 +
        (8399.68473007193 +
         (-0.00003318952042550094 + (3.1102494491060616e-8 - 2.0328237648922845e-10 * T) * T) * T) *
            T;
    double ofDate[3], ecliptic[3];
    eraS2p(mean + sum(terms.longitude, T) * ERFA_DAS2R, sum(terms.latitude, T) * ERFA_DAS2R,
           sum(terms.distance, T), ofDate);
    // The ecliptic of date to that of J2000 (Laskar 1986), and that to the equator as eraEpv00
    // does.
    const double p =
        (0.10180391e-4 +
         (0.47020439e-6 + (-0.5417367e-9 + (-0.2507948e-11 + 0.463486e-14 * T) * T) * T) * T) *
        T;
    const double q =
        (-0.113469002e-3 +
         (0.12372674e-6 + (0.12654170e-8 + (-0.1371808e-11 - 0.320334e-14 * T) * T) * T) * T) *
        T;
    const double k = std::sqrt(1 - p * p - q * q);
    double toJ2000[3][3] = {{1 - 2 * p * p, 2 * p * q, 2 * p * k},
                            {2 * p * q, 1 - 2 * q * q, -2 * q * k},
                            {-2 * p * k, 2 * q * k, 1 - 2 * p * p - 2 * q * q}};
    double toEquator[3][3] = {{1, 0.000000211284, -0.000000091603},
                              {-0.000000230286, 0.917482137087, -0.397776982902},
                              {0, 0.397776982902, 0.917482137087}};
    eraRxp(toJ2000, ofDate, ecliptic);
    eraRxp(toEquator, ecliptic, position);
}

/// From the Earth's centre, on the axes of the celestial reference system, astronomical units. The
/// place of a light-time ago is light time and the Earth's own motion together.
void geocentric(Body body, double tt, double position[3])
{
    if (body == Body::Moon) {
        moon(tt, position);
        moon(tt - eraPm(position) / astronomicalUnitKm * lightDaysPerUnit, position);
        eraSxp(1 / astronomicalUnitKm, position, position);
        return;
    }
    double pv[2][3], barycentric[2][3];
    eraEpv00(serialZero, tt, pv, barycentric);
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
    eraPnm00b(serialZero, tt, result.matrix);
    result.siderealTime = eraGst06(serialZero, ut1, serialZero, tt, result.matrix);
    return result;
}

double terrestrialTime(double utc)
{
    return utc + secondsAhead(utc) / ERFA_DAYSEC;
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
    for (double event : events(rising, latitude, longitude, horizon))
        if (std::floor(event) == m_date) return event;
    return std::nullopt;
}

std::vector<double> DayOfEvents::events(bool rising, double latitude, double longitude,
                                        Horizon horizon, double raised) const
{
    std::vector<double> result;
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
        return std::asin(sine) / degree - eventAltitude - raised;
    };
    constexpr double step = 0.125, slack = 0.5;
    for (double from = -slack; from < 24 + slack; from += step) {
        const double to = from + step;
        const bool crosses =
            rising ? above(from) < 0 && above(to) >= 0 : above(from) >= 0 && above(to) < 0;
        if (!crosses) continue;
        double low = from, high = to;
        for (int i = 0; i < 24; ++i) {
            const double middle = (low + high) / 2;
            ((above(middle) < 0) == rising ? low : high) = middle;
        }
        result.push_back(m_date + low / 24);
    }
    return result;
}

} // namespace erfareference
