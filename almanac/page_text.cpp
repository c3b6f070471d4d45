// SPDX-License-Identifier: MIT
#include "almanac/page_text.h"
#include "almanac/page_cells.h"
#include "navlib/datetime.h"

#include <array>
#include <cmath>

namespace almanac
{
namespace
{

std::string heading(const DailyPage& page)
{
    std::string lines = datesText(page.firstDay, pageDays) + "\n";
    for (const std::string_view sentence : {notOfficial, accuracyOfPage}) {
        lines += sentence;
        lines += '\n';
    }
    return lines;
}

std::string hourCell(const PageHour& hour)
{
    const auto ofDay = NavFunc113::TimeOf(hour.ut).hour;
    return (ofDay == 0 ? weekdayText(hour.ut) : "   ") + " " + padded(ofDay, 2, '0') + " |";
}

std::string placeCells(const Place& place)
{
    return " " + turnCell(place.gha) + " " + declinationCell(place.declination);
}

std::string starsAndPlanets(const DailyPage& page)
{
    std::string text = "UT     |  Aries   Venus              Mars               Jupiter          "
                       "  Saturn\n"
                       "       |  GHA     GHA      Dec       GHA      Dec       GHA      Dec     "
                       "  GHA      Dec\n";
    for (const PageHour& hour : page.hours) {
        text += hourCell(hour) + " " + turnCell(hour.ghaAries);
        for (std::size_t i = 2; i < wanderers; ++i)
            text += placeCells(hour.places[i]);
        text += "\n";
    }
    return text;
}

std::string planetsOfMiddleDay(const DailyPage& page)
{
    std::string text = "\nMiddle day     SHA    Passage     HP      v      d\n";
    text += "Aries            -      " + clockCell(page.ariesPassage) + "\n";
    for (const PagePlanet& planet : page.planets) {
        text += leftAligned(entryOf(planet.body).name, 10) + " " + turnCell(planet.sha) + "    " +
                clockCell(planet.passage) + "   " + minutesCell(planet.horizontalParallax, 6) +
                " " + minutesCell(planet.excess, 6) + " " + minutesCell(planet.change, 6) + "\n";
    }
    return text;
}

std::string starTable(const DailyPage& page)
{
    constexpr std::size_t columns = 3;
    const std::size_t rows = (page.stars.size() + columns - 1) / columns;
    std::string text = "\nStars of the middle day: number, name, SHA, declination\n";
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t at = row; at < page.stars.size(); at += rows) {
            const PageStar& star = page.stars[at];
            const BodyEntry& entry = entryOf(star.body);
            text += (entry.number > 0 ? padded(entry.number, 2) : "  ") + " " +
                    leftAligned(entry.name, 16) + turnCell(star.sha) + " " +
                    declinationCell(star.declination) + (at + rows < page.stars.size() ? "  " : "");
        }
        text += "\n";
    }
    return text;
}

std::string sunAndMoon(const DailyPage& page)
{
    std::string text = "\nUT     |  Sun                Moon\n"
                       "       |  GHA      Dec       GHA      v     Dec       d      HP\n";
    for (const PageHour& hour : page.hours) {
        const Place& moon = hour.places[1];
        text += hourCell(hour) + placeCells(hour.places[0]) + " " + turnCell(moon.gha) +
                minutesCell(hour.moonExcess, 6) + " " + declinationCell(moon.declination) +
                minutesCell(hour.moonChange, 6) + " " + minutesCell(moon.horizontalParallax, 6) +
                "\n";
    }
    return text + "Sun: SD " + minutesCell(page.sunSemiDiameter, 0) + "', d " +
           minutesCell(page.sunChange, 0) + "' of the middle day. GHA exact, not smoothed.\n";
}

std::string latitudeTable(const DailyPage& page)
{
    std::string days;
    for (int day = 0; day <= pageDays; ++day)
        days += padded(NavFunc113::DateOf(page.firstDay + day).day, 7);
    std::string text =
        "\nRise, set and twilight in local mean time; Sun of the middle day\n"
        "      | Twilight       Sunrise | Moonrise                   | Sunset  Twilight       "
        "| Moonset\n"
        "Lat.  | Nautical Civil         |" +
        days + " |         Civil Nautical |" + days + "\n";
    for (const PageLatitude& row : page.latitudes) {
        const double degrees = row.latitude.value();
        text += std::string(degrees > 0   ? "N "
                            : degrees < 0 ? "S "
                                          : "  ") +
                padded(static_cast<int>(std::fabs(degrees)), 2) + "  |  " +
                clockCell(row.nauticalDawn) + "  " + clockCell(row.civilDawn) + "   " +
                clockCell(row.sunrise) + " |";
        for (const PageTime& time : row.moonrise)
            text += "  " + clockCell(time);
        text += " |  " + clockCell(row.sunset) + "  " + clockCell(row.civilDusk) + "   " +
                clockCell(row.nauticalDusk) + " |";
        for (const PageTime& time : row.moonset)
            text += "  " + clockCell(time);
        text += "\n";
    }
    return text + "above, below: of the horizon all day; below for twilight: darker all day;\n"
                  "/////: twilight lasts all night; -----: not on this day\n";
}

std::string dayTable(const DailyPage& page)
{
    std::string text =
        "\n                          Equation of time   Passage of Sun  of Moon         Moon\n"
        "Day                       00h     12h                        upper  lower    age  lit   "
        "SD\n";
    for (const PageDay& day : page.days) {
        text += leftAligned(datesText(day.date, 1), 26) + equationCell(day.sunExcess[0]) + "  " +
                equationCell(day.sunExcess[1]) + "       " + clockCell(day.sunPassage) + "       " +
                clockCell(day.moonUpper) + "  " + clockCell(day.moonLower) + "    " +
                tenthsCell(day.moon.age, 5) + " " +
                padded(static_cast<int>(std::lround(100 * day.moon.lit)), 3) + "% " +
                minutesCell(day.moonSemiDiameter, 5) + "\n";
    }
    return text + "Equation of time: apparent less mean time, + when the Sun is early.\n";
}

std::string timeScale(const DailyPage& page)
{
    const bool isAssumed = page.deltaT.source == DeltaT::Source::Assumed;
    return "Delta T " + tenthsCell(page.deltaT.seconds, 0) + " s" +
           (isAssumed ? ", assumed: leap seconds of these years are not known yet" : "") +
           ". UT taken as UTC.\n";
}

} // namespace

std::string pageText(const DailyPage& page)
{
    return heading(page) + "\n" + starsAndPlanets(page) + planetsOfMiddleDay(page) +
           starTable(page) + sunAndMoon(page) + latitudeTable(page) + dayTable(page) +
           timeScale(page) + std::string(notOfficial);
}

} // namespace almanac
