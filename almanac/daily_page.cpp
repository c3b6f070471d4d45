// SPDX-License-Identifier: MIT
#include "almanac/daily_page.h"
#include "almanac/events.h"
#include "almanac/page_latitudes.h"
#include "navlib/angles.h"

#include <cmath>

namespace almanac
{
namespace
{

constexpr std::array<Body, wanderers> pageBodies{Body::Sun,  Body::Moon,    Body::Venus,
                                                 Body::Mars, Body::Jupiter, Body::Saturn};
constexpr Degrees moonTurnOfHour(14 + 19.0 / 60);

const Observer greenwich{};

Degrees gained(const Place& place, const Place& next, Degrees turn)
{
    return NavFunc113::WithinHalfTurn(next.gha - place.gha - turn);
}

PageHour hourOf(const Sky& sky, const Sky& next)
{
    PageHour hour;
    hour.ut = sky.instant();
    hour.ghaAries = sky.ghaAries();
    for (std::size_t i = 0; i < wanderers; ++i)
        hour.places[i] = sky.place(pageBodies[i]);
    const Place& moon = hour.places[1];
    const Place moonNext = next.place(Body::Moon);
    hour.moonExcess = gained(moon, moonNext, moonTurnOfHour);
    hour.moonChange = moonNext.declination - moon.declination;
    return hour;
}

std::optional<DateTime> passageOf(const HourlyPlaces& places, DateTime day, bool upper)
{
    for (const Passage& passage : passages(places, standingAt(greenwich), day, day + 1))
        if (passage.upper == upper) return passage.instant;
    return std::nullopt;
}

/// @param skies hourly, the first an hour before the page
PagePlanet planetOf(Body body, const DailyPage& page, std::span<const Sky> skies)
{
    const HourlyPlaces places(body, skies);
    const DateTime middle = page.firstDay + 1;
    const Place noon = places.at(middle + 0.5);
    const auto days = static_cast<double>(pageDays);
    const Degrees gain = NavFunc113::WithinHalfTurn(places.at(page.firstDay + days).gha -
                                                    places.at(page.firstDay).gha);
    return {body,
            noon.sha,
            gain / pageHours,
            (places.at(middle + 1).declination - places.at(middle).declination) / 24,
            noon.horizontalParallax,
            passageOf(places, middle, true)};
}

std::vector<PageStar> starsOf(const Sky& noon)
{
    std::vector<PageStar> stars;
    for (const BodyEntry& entry : bodies()) {
        if (entry.number == 0 && entry.name != "Polaris") continue;
        const Place place = noon.place(entry.body);
        stars.push_back({entry.body, place.sha, place.declination});
    }
    return stars;
}

PageDay dayOf(DateTime date, const HourlyPlaces& sun, const HourlyPlaces& moon)
{
    PageDay day;
    day.date = date;
    for (const int half : {0, 1}) {
        const DateTime at = date + 0.5 * half;
        const Degrees mean((half == 0 ? 180 : 0));
        day.sunExcess[half] = NavFunc113::WithinHalfTurn(sun.at(at).gha - mean);
    }
    day.sunPassage = passageOf(sun, date, true).value_or(date + 0.5);
    day.moonUpper = passageOf(moon, date, true);
    day.moonLower = passageOf(moon, date, false);
    day.moonSemiDiameter = moon.at(date + 0.5).semiDiameter;
    day.moon = moonPhaseAt(date + 0.5);
    return day;
}

/// The first instant of the day at which Aries is on the meridian.
DateTime ariesPassageOf(const Sky& midnight)
{
    constexpr double turnOfDay = 360.98564736629; // of the earth against Aries
    return midnight.instant() + (360 - midnight.ghaAries().value()) / turnOfDay;
}

} // namespace

DailyPage makeDailyPage(DateTime day)
{
    DailyPage page;
    page.firstDay = std::floor(day);
    requireAlmanacYears(page.firstDay);
    requireAlmanacYears(page.firstDay + pageDays - 1);

    // A day more for the Moon of the day after.
    const auto skies = hourlySkies(page.firstDay, page.firstDay + pageDays + 1);
    const Sky noon(page.firstDay + 1.5);
    const HourlyPlaces sun(Body::Sun, skies), moon(Body::Moon, skies);
    page.deltaT = noon.deltaT();
    page.sunSemiDiameter = noon.place(Body::Sun).semiDiameter;
    page.sunChange =
        (sun.at(page.firstDay + 2).declination - sun.at(page.firstDay + 1).declination) / 24;
    page.ariesPassage = ariesPassageOf(Sky(page.firstDay + 1));
    for (std::size_t hour = 1; hour <= pageHours; ++hour)
        page.hours.push_back(hourOf(skies[hour], skies[hour + 1]));
    for (std::size_t i = 0; i < page.planets.size(); ++i)
        page.planets[i] = planetOf(pageBodies[i + 2], page, skies);
    page.stars = starsOf(noon);
    for (std::size_t i = 0; i < page.days.size(); ++i)
        page.days[i] = dayOf(page.firstDay + static_cast<double>(i), sun, moon);
    page.latitudes = pageLatitudes(page.firstDay, sun, moon);
    return page;
}

} // namespace almanac
