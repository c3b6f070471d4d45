// SPDX-License-Identifier: MIT
// Measures the accuracy of the ephemeris and of the rise and set searches against ERFA over 2000 to
// 2050, and prints the figures that the headers and the manual state.
#include "app/reading/Format.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/ephemeris.h"
#include "navlib/rise_set.h"
#include "tests/navlib/accuracy/ErfaReference.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <random>
#include <string>
#include <vector>

namespace
{

using namespace NavFunc113;
using erfareference::Body;
using erfareference::Horizon;

class Errors
{
public:
    void add(double error) { m_errors.push_back(std::fabs(error)); }
    void missed() { ++m_missed; }
    void print(const std::string& what, const std::string& unit)
    {
        std::sort(m_errors.begin(), m_errors.end());
        const auto quantile = [&](double q) {
            return korvel::Format(
                m_errors[static_cast<std::size_t>(q * double(m_errors.size() - 1))], "0.00");
        };
        std::cout << what << ": half within " << quantile(0.5) << unit << ", 95 % within "
                  << quantile(0.95) << unit << ", worst " << quantile(1) << unit << " of "
                  << m_errors.size() << ", found on one side only " << m_missed << '\n';
    }

private:
    std::vector<double> m_errors;
    int m_missed = 0;
};

const double firstDay = double(DaySerial({2000, 1, 1}));
const double lastDay = double(DaySerial({2051, 1, 1}));

void measurePlaces(Body body, const std::string& name)
{
    Errors hourAngle, declination;
    // An odd step runs through all hours of the day and all phases.
    for (double t = firstDay; t < lastDay; t += 1.02345) {
        const auto truth = erfareference::apparentPlace(body, t);
        const bool sun = body == Body::Sun;
        hourAngle.add(60 * std::remainder(
                               DegMinToDeg(sun ? SunGHA(t) : MoonGHA(t)).value() - truth.GHA, 360));
        declination.add(60 * (DegMinToDeg(sun ? SunDeclination(t) : MoonDeclination(t)).value() -
                              truth.declination));
    }
    hourAngle.print(name + " GHA", "'");
    declination.print(name + " declination", "'");
}

struct Routine {
    const char* name;
    Body body;
    bool rising;
    DateTime (*search)(DateTime, Hours, DegMin&, DegMin);
    std::optional<DateTime> (*refined)(DateTime, Hours, DegMin, DegMin, DateTime);
};

constexpr Routine routines[] = {
    {"sunrise", Body::Sun, true, SunRiseSearch, RefinedSunRise},
    {"sunset", Body::Sun, false, SunSetSearch, RefinedSunSet},
    {"moonrise", Body::Moon, true, MoonRiseSearch, RefinedMoonRise},
    {"moonset", Body::Moon, false, MoonSetSearch, RefinedMoonSet},
};

void compare(Errors& errors, std::optional<DateTime> found, std::optional<DateTime> truth)
{
    if (found && truth)
        errors.add((*found - *truth) * 1440);
    else if (found || truth)
        errors.missed();
}

void measureEvents(const Routine& routine, double greatestLatitude)
{
    std::mt19937 random(20000101);
    std::uniform_real_distribution<double> unit(-1, 1);
    Errors search, refined, almanac;
    for (double day = firstDay; day < lastDay; day += 9) {
        const double longitude = std::round(unit(random) * 180 * 60) / 60;
        const double latitude = std::round(unit(random) * greatestLatitude * 60) / 60;
        const double TD = std::clamp(std::round(longitude / 15), -12.0, 12.0);
        const DegMin packedLongitude = DegToDegMin(Degrees(longitude));
        DegMin packedLatitude = DegToDegMin(Degrees(latitude));
        const erfareference::DayOfEvents events(routine.body, day, TD);
        std::optional<DateTime> found;
        try {
            const DateTime time = routine.search(day, Hours(TD), packedLatitude, packedLongitude);
            if (time != 0) found = time;
        } catch (const ArithmeticError&) {
            continue;
        }
        const auto better =
            routine.refined(day, Hours(TD), DegToDegMin(Degrees(latitude)), packedLongitude, 0);
        const auto same = events.event(routine.rising, latitude, longitude, Horizon::AsTheLibrary);
        compare(search, found, same);
        compare(refined, better, same);
        compare(almanac, better,
                events.event(routine.rising, latitude, longitude, Horizon::Almanac));
    }
    const std::string where =
        std::string(routine.name) + " to latitude " + korvel::Format(greatestLatitude, "0");
    search.print(where + ", search against the same altitude", " min");
    refined.print(where + ", refined against the same altitude", " min");
    almanac.print(where + ", refined against the almanac's horizon", " min");
}

} // namespace

int main()
{
    measurePlaces(Body::Sun, "Sun");
    measurePlaces(Body::Moon, "Moon");
    for (const Routine& routine : routines)
        for (double latitude : {50.0, 60.0})
            measureEvents(routine, latitude);
}
