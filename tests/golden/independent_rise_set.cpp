// SPDX-License-Identifier: MIT
// The source of rise_set_events.csv: rise and set of the Sun and the Moon by full theory, for the
// altitudes of the window (the Sun's centre at -0.9033 degrees, the Moon's at 0). Target
// rise_set_events of the bench preset prints the table.
#include "app/reading/Format.h"
#include "navlib/datetime.h"
#include "tests/navlib/accuracy/ErfaReference.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace
{

using erfareference::Body;
using erfareference::DayOfEvents;
using korvel::Format;

std::mt19937 chance(19810101);

double between(double low, double high)
{
    return low + (high - low) * double(chance()) / 4294967296.0;
}

struct Place {
    double day;
    int latitude, longitude; ///< minutes of arc
    double TD;
};

std::string packed(int minutes)
{
    const int size = std::abs(minutes);
    return (minutes < 0 ? "-" : "") + std::to_string(size / 60) + "." +
           Format(double(size % 60), "00");
}

Place anywhere(double lowest, double highest)
{
    Place place{};
    const double first = double(NavFunc113::DaySerial({1981, 1, 1}));
    place.day = std::floor(between(first, double(NavFunc113::DaySerial({2081, 1, 1}))));
    place.latitude = int(std::round(between(lowest, highest) * 60));
    if (chance() % 2 == 0) place.latitude = -place.latitude;
    place.longitude = int(std::round(between(-180, 180) * 60));
    place.TD = std::round(place.longitude / 900.0) + 0.0; // no -0
    return place;
}

bool isNearFullMoon(const Place& place)
{
    const double noon = place.day + 0.5;
    const double apart = erfareference::apparentPlace(Body::Sun, noon).GHA -
                         erfareference::apparentPlace(Body::Moon, noon).GHA;
    return std::fabs(std::remainder(apart - 180, 360)) < 15;
}

/// The four events in minutes of the local day, and how far the Moon's move when its series is out
/// by what is stated of it. Nothing when an event is doubtful: two of a kind, or one at midnight.
std::optional<std::vector<std::string>> cellsOf(const Place& place)
{
    constexpr double declinationError = 0.4 / 60, hourAngleError = 1.05 / 15; // degrees, minutes
    std::vector<std::string> cells;
    double within = 0;
    for (Body body : {Body::Sun, Body::Moon}) {
        const DayOfEvents day(body, place.day, place.TD);
        for (bool rising : {true, false}) {
            const auto events = [&](double raised) {
                return day.events(rising, place.latitude / 60.0, place.longitude / 60.0,
                                  erfareference::Horizon::AsTheLibrary, raised);
            };
            const auto times = events(0), shifted = events(declinationError);
            if (times.size() > 1 || times.size() != shifted.size()) return std::nullopt;
            const double minutes = times.empty() ? 0 : (times[0] - place.day) * 1440;
            if (!times.empty() && (minutes < 3 || minutes > 1437)) return std::nullopt;
            cells.push_back(times.empty() ? "none" : Format(minutes, "0.00"));
            if (body == Body::Moon && !times.empty())
                within = std::max(within, std::fabs(shifted[0] - times[0]) * 1440);
        }
    }
    cells.push_back(Format(hourAngleError + within, "0.00"));
    return cells;
}

/// @param fits whether a place with its events belongs to the group
template <typename Make, typename Fits>
void write(const std::string& fault, int count, Make make, Fits fits)
{
    while (count > 0) {
        const Place place = make();
        const auto cells = cellsOf(place);
        if (!cells || !fits(place, *cells)) continue;
        std::cout << fault << ',' << Format(place.day, "yyyy/m/d") << ',' << place.TD << ','
                  << packed(place.latitude) << ',' << packed(place.longitude);
        for (const std::string& cell : *cells)
            std::cout << ',' << cell;
        std::cout << '\n';
        --count;
    }
}

} // namespace

int main()
{
    using Cells = std::vector<std::string>;
    const auto any = [](const Place&, const Cells&) { return true; };
    const auto everywhere = [] { return anywhere(0, 63); };
    std::cout << "# Minutes of the local day at which Sun and Moon rise and set, and how far the "
                 "Moon's may be out.\n# source: independent_rise_set.cpp\nfault,date,TD,latitude,"
                 "longitude,sunrise,sunset,moonrise,moonset,within\n";
    write("place or year", 50, everywhere, any);
    write(
        "TD of elsewhere", 20,
        [&] {
            Place place = everywhere();
            place.TD = std::round(between(-12, 12)) + 0.0;
            return place;
        },
        any);
    write("lost near full Moon", 25, everywhere,
          [](const Place& place, const Cells&) { return isNearFullMoon(place); });
    write(
        "high latitude", 20, [] { return anywhere(58, 63); }, any);
    write(
        "40 minutes of arc south", 8,
        [] {
            Place place = anywhere(1, 63);
            place.latitude = -60 * (std::abs(place.latitude) / 60);
            return place;
        },
        any);
    write("invented on a day without", 12, everywhere,
          [](const Place&, const Cells& cells) { return std::ranges::count(cells, "none") > 0; });
    const auto farNorthOrSouth = [] { return anywhere(61.3, 63); };
    write("no Moon above or below all day", 4, farNorthOrSouth,
          [](const Place&, const Cells& cells) { return std::ranges::count(cells, "none") == 2; });
    write("lost where the Moon skims the horizon", 5, farNorthOrSouth,
          [](const Place&, const Cells& cells) {
              if (std::ranges::count(cells, "none") > 0) return false;
              const double apart = std::fabs(std::stod(cells[2]) - std::stod(cells[3]));
              return apart < 100 || apart > 1340;
          });
}
