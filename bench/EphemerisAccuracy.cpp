// SPDX-License-Identifier: MIT
// Measures the accuracy of the ephemeris, and of what the sun and moon window shows, against ERFA
// and a long series of the Moon, and prints the figures that the headers, the papers and the manual
// state.
#include "app/reading/Format.h"
#include "forms/frmSunMoon/CalculateRiseSet.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/sky/ephemeris.h"
#include "tests/navlib/accuracy/ErfaReference.h"

#include <algorithm>
#include <array>
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

/// Errors of one figure. What is on one side only has none, and is counted.
class Errors
{
public:
    void add(double error, const std::string& of = {})
    {
        m_errors.push_back(std::fabs(error));
        if (m_errors.back() > m_worst) {
            m_worst = m_errors.back();
            m_worstCase = of;
        }
    }
    void onOneSideOnly(const std::string& of)
    {
        ++m_oneSided;
        m_oneSidedCase = of;
    }
    void print(const std::string& what, const std::string& unit)
    {
        if (m_errors.empty()) return;
        std::sort(m_errors.begin(), m_errors.end());
        const auto quantile = [&](double q) {
            return korvel::Format(
                m_errors[static_cast<std::size_t>(q * double(m_errors.size() - 1))], "0.00");
        };
        std::cout << what << ": half within " << quantile(0.5) << unit << ", 95 % within "
                  << quantile(0.95) << unit << ", worst " << quantile(1) << unit << " of "
                  << m_errors.size();
        if (!m_worstCase.empty()) std::cout << " (" << m_worstCase << ")";
        if (m_oneSided > 0)
            std::cout << ", on one side only " << m_oneSided << " (" << m_oneSidedCase << ")";
        std::cout << '\n';
    }

private:
    std::vector<double> m_errors;
    double m_worst = -1;
    std::string m_worstCase, m_oneSidedCase;
    int m_oneSided = 0;
};

struct Years {
    int first, last;

    double start() const { return double(DaySerial({first, 1, 1})); }
    double end() const { return double(DaySerial({last + 1, 1, 1})); }
    std::string text() const { return std::to_string(first) + " to " + std::to_string(last); }
};

constexpr Years allYears{1900, 2099}; // the window begins with 1900, the peers end with 2100
constexpr Years presentYears{2000, 2050};

void measurePlaces(Body body, const Years& years)
{
    const bool sun = body == Body::Sun;
    Errors hourAngle, declination;
    // An odd step runs through all hours of the day and all phases.
    for (double t = years.start(); t < years.end(); t += 0.30345) {
        const auto truth = erfareference::apparentPlace(body, t);
        hourAngle.add(60 * std::remainder(
                               DegMinToDeg(sun ? SunGHA(t) : MoonGHA(t)).value() - truth.GHA, 360));
        declination.add(60 * (DegMinToDeg(sun ? SunDeclination(t) : MoonDeclination(t)).value() -
                              truth.declination));
    }
    const std::string name = (sun ? "Sun, " : "Moon, ") + years.text();
    hourAngle.print(name + ", GHA", "'");
    declination.print(name + ", declination", "'");
}

/// A date and a place, as typed into the window.
struct Case {
    double day;
    int latitude, longitude; ///< minutes of arc
    double TD;

    static std::string packed(int minutes)
    {
        const int size = std::abs(minutes);
        const std::string text = korvel::Format(size / 60 + size % 60 / 100.0, "0.00");
        return minutes < 0 ? "-" + text : text;
    }
    std::string date() const { return korvel::Format(day, "yyyy/m/d"); }
    korvel::RiseSetResult shown() const
    {
        korvel::RiseSetRow row;
        return korvel::CalculateRiseSet(
            {date(), "", korvel::Format(TD, "0.0"), packed(latitude), packed(longitude)}, row);
    }
    std::string text() const
    {
        return date() + " TD " + korvel::Format(TD, "0.0") + " " + packed(latitude) + " " +
               packed(longitude);
    }
};

/// Which of the things that the window accepts are measured together.
struct Group {
    int limit; ///< of the latitude, degrees
    bool southernWholeDegrees;
    bool anyTD; ///< otherwise that of the zone

    std::string text() const
    {
        return "latitudes to " + std::to_string(limit) +
               (southernWholeDegrees ? ", southern whole degrees" : "") +
               (anyTD ? ", any TD" : ", TD of the zone");
    }
};

class Cases
{
public:
    explicit Cases(const Group& group) : m_group(group) {}
    Case next()
    {
        Case result;
        result.day = std::floor(allYears.start() + unit() * (allYears.end() - allYears.start()));
        result.longitude = int(std::round((2 * unit() - 1) * 180 * 60));
        result.latitude = m_group.southernWholeDegrees
                              ? -60 * (1 + int(unit() * m_group.limit))
                              : int(std::round((2 * unit() - 1) * m_group.limit * 60));
        const double anyTD = std::round((2 * unit() - 1) * 24) / 2;
        result.TD = m_group.anyTD ? anyTD : std::round(result.longitude / 900.0);
        return result;
    }

private:
    double unit() { return std::uniform_real_distribution<double>(0, 1)(m_random); }

    std::mt19937 m_random{20000101};
    Group m_group;
};

/// The refined time stands beside the label, or the label's own is good.
std::optional<DateTime> timeToBeRead(const korvel::RiseSetFigures& figures,
                                     const korvel::RiseSetLabel& label)
{
    if (label.refined == "none") return std::nullopt;
    const bool own = label.refined.empty();
    const auto time = own ? figures.found : figures.refined;
    return time && *time != 0 ? time : std::nullopt;
}

/// @param truth events of the date and those shortly before and after it
void compare(Errors& errors, std::optional<DateTime> found, const std::vector<DateTime>& truth,
             const Case& each)
{
    if (found && *found != 0) {
        double nearest = 1;
        for (DateTime event : truth)
            if (std::fabs(*found - event) < std::fabs(nearest)) nearest = *found - event;
        if (std::fabs(nearest) < 0.5)
            errors.add(nearest * 1440, each.text());
        else
            errors.onOneSideOnly(each.text());
        return;
    }
    // Within seconds of midnight either date is right.
    constexpr double seconds = 6.0 / 86400;
    if (std::ranges::any_of(truth, [&](DateTime event) {
            return event > each.day + seconds && event < each.day + 1 - seconds;
        }))
        errors.onOneSideOnly(each.text());
}

void measureEvents(const Group& group, int count)
{
    constexpr std::array names{"sunrise", "sunset", "moonrise", "moonset"};
    std::array<Errors, 4> search, read, refined, almanac;
    Cases cases(group);
    for (int i = 0; i < count; ++i) {
        const Case each = cases.next();
        const auto result = each.shown();
        const std::array labels{&result.sunRiseTime, &result.sunSetTime, &result.moonRiseTime,
                                &result.moonSetTime};
        const std::array days{erfareference::DayOfEvents(Body::Sun, each.day, each.TD),
                              erfareference::DayOfEvents(Body::Moon, each.day, each.TD)};
        for (std::size_t e = 0; e < names.size(); ++e) {
            const auto& figures = result.figures->events[e];
            const auto eventsAt = [&](Horizon horizon) {
                return days[e / 2].events(e % 2 == 0, each.latitude / 60.0, each.longitude / 60.0,
                                          horizon);
            };
            const auto truth = eventsAt(Horizon::AsTheLibrary);
            compare(search[e], figures.found, truth, each);
            compare(read[e], timeToBeRead(figures, *labels[e]), truth, each);
            compare(refined[e], figures.refined, truth, each);
            compare(almanac[e], figures.refined, eventsAt(Horizon::Almanac), each);
        }
    }
    std::cout << allYears.text() << ", " << group.text() << '\n';
    for (std::size_t e = 0; e < names.size(); ++e) {
        const std::string name = std::string("  ") + names[e];
        search[e].print(name + ", the search", " min");
        read[e].print(name + ", what is to be read in the window", " min");
        refined[e].print(name + ", refined", " min");
        almanac[e].print(name + ", refined against the almanac's horizon", " min");
    }
}

} // namespace

int main()
{
    for (const Years& years : {presentYears, allYears})
        for (Body body : {Body::Sun, Body::Moon})
            measurePlaces(body, years);
    for (const Group& group :
         {Group{60, false, false}, Group{63, false, false}, Group{60, true, false},
          Group{63, true, false}, Group{63, false, true}})
        measureEvents(group, 10000);
}
