// SPDX-License-Identifier: MIT
#include "forms/frmNoon/CalculateNoon.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/reading/TypedTime.h"
#include "forms/frmNoon/NoonMail.h"
#include "forms/frmWeather/CalculateWeather.h"
#include "navlib/sea/weather_terms.h"
#include "navlib/ship/propulsion.h"

#include <optional>
#include <string_view>

namespace korvel
{
namespace
{

using NavFunc113::Hours;
using NavFunc113::Miles;

std::string hoursText(Hours hours)
{
    return spanText(spanOf(hours).value_or(Span(0)));
}

void showDay(NoonResult& noon)
{
    const NoonDay& day = *noon.day;
    if (!day.run) return;
    const RecordedFix& to = noon.record.fixes[day.to];
    noon.position = positionForCopy(to.latitude, to.longitude);
    noon.between = clocksBetween(noon.record.fixes[day.from], to);
    noon.run = Format(day.run->miles, "0.0");
    noon.hours = hoursText(day.underWay);
    if (day.average) noon.average = Format(*day.average, "0.00");
    noon.isWhole = day.average.has_value();
    if (const auto& since = day.sinceAway; since && since->hours > Hours(0))
        noon.sinceAway = Format(since->miles, "0.0") + " nm in " + hoursText(since->hours) + ", " +
                         Format(since->miles / since->hours, "0.00") + " kn";
    // The record knows the current between its last two fixes alone.
    if (!noon.record.current || day.to + 1 != noon.record.fixes.size()) return;
    const RecordLeg& drift = noon.record.current->leg;
    if (!noon.record.set.empty()) noon.setAndDrift = noon.record.set + "°, ";
    noon.setAndDrift += Format(drift.sailed.distance, "0.0") +
                        " nm = " + Format(drift.sailed.distance / drift.hours, "0.00") + " kn";
}

void showArrivals(NoonReader& boxes, const NoonInput& input, NoonResult& noon)
{
    const PlanReckoning plan(input.plan, {input.record.earth, input.shipsTD});
    std::optional<NoonFix> from;
    if (noon.day) {
        const RecordedFix& fix = noon.record.fixes[noon.day->to];
        from = NoonFix{{fix.latitude, fix.longitude}, instantOf(fix.utc)};
    }
    noon.way = noonWay(boxes, from, input.plan, plan);
    if (!noon.way) return;
    noon.toGo = Format(noon.way->distance, "0.0");
    noon.by = noon.way->inWords();
    if (!from) return;
    const auto average = noon.day->average;
    noon.arrivals = noonArrivals(boxes, *from, *noon.way, average, plan, input.shipsTD);
    for (std::size_t i = 0; i < noon.eta.size(); ++i)
        if (noon.arrivals->at[i])
            noon.eta[i] = arrivalText(*noon.arrivals->at[i], noon.arrivals->zone);
    if (noon.arrivals->needed) noon.speedNeeded = Format(*noon.arrivals->needed, "0.00");
}

void showSlip(NoonReader& boxes, const NoonInput& input, NoonResult& noon)
{
    const auto pitch = boxes.number(NoonBox::Pitch);
    const auto first = boxes.number(NoonBox::CounterFirst);
    const auto last = boxes.number(NoonBox::CounterLast);
    const auto wake = boxes.number(NoonBox::Wake);
    if (!pitch || !first || !last || !noon.day || !noon.day->run) return;
    const NavFunc113::Metres metres(*pitch);
    const Miles miles = NavFunc113::EngineMiles(metres, *last - *first);
    if (!(miles > Miles(0)))
        return boxes.remarks.fault("Slip: the propeller has not turned between the counters");
    noon.propeller = NoonEngine{metres, *first, *last, miles, wake};
    const Miles run = noon.day->run->miles;
    noon.engine = Format(miles, "0.0") + " of 1852 m";
    noon.apparentSlip = Format(100 * NavFunc113::ApparentSlip(miles, run), "0.00");
    if (wake) noon.realSlip = Format(100 * NavFunc113::RealSlip(miles, run, *wake), "0.00");
    // A slip without its mile is worth nothing: the engine's are of 1852 m.
    if (input.record.earth == NavFunc113::Earth::Sphere)
        boxes.remarks.warn(
            "slip: the run is in minutes of latitude, the engine's miles have 1852 m");
}

/// The tank list may be of another day than the report.
void tellTanks(NoonReader& boxes, const BunkersNow& bunkers, NoonResult& noon)
{
    noon.fuelBy = "tank list, " + (bunkers.now.empty() ? std::string("no time") : bunkers.now);
    const TypedTime now = readTypedTime(bunkers.now, Due::DateAndTime);
    if (!now.value || !noon.day) return;
    const Span apart = instantOf(*now.value) - instantOf(noon.record.fixes[noon.day->to].smt);
    if (apart > std::chrono::hours(12) || apart < -std::chrono::hours(12))
        boxes.remarks.warn("fuel: the tank list is of " + bunkers.now);
}

void showFuel(NoonReader& boxes, const BunkersNow& bunkers, NoonResult& noon)
{
    const auto& run = noon.day ? noon.day->run : std::nullopt;
    bool isByTanks = false;
    for (std::size_t i = 0; i < noon.fuel.size(); ++i) {
        const BunkersNow::Fuel& tanks = bunkers.fuels[i];
        auto before = boxes.number(NoonBox::Before, 2 * i);
        auto onBoard = boxes.number(NoonBox::Before, 2 * i + 1);
        const bool takesBefore = boxes.text(NoonBox::Before, 2 * i).empty() && tanks.previous;
        const bool takesOnBoard = boxes.text(NoonBox::Before, 2 * i + 1).empty() && tanks.remaining;
        if (takesBefore) before = tanks.previous;
        if (takesOnBoard) onBoard = noon.byTanks[i] = tanks.remaining;
        isByTanks = isByTanks || takesBefore || takesOnBoard;
        if (!before || !onBoard) continue;
        const double received = takesBefore || takesOnBoard ? tanks.received : 0;
        noon.tons[i] = {*before, *onBoard, received};
        const double used = *before + received - *onBoard;
        noon.fuel[i] = Format(used, "0.0") + " t";
        if (used < 0) boxes.remarks.warn("more fuel than the day before: bunkered?");
        if (run && run->miles > Miles(0))
            noon.fuel[i] += ", " + Format(used / run->miles.value(), "0.0000") + " t per nm";
    }
    if (isByTanks) tellTanks(boxes, bunkers, noon);
}

/// Letters of the weather with their names, "bc Blue sky with clouds, r Rain".
/// @return nothing when there is one that the log does not know
std::optional<std::string> skyInWords(std::string_view letters)
{
    std::string words;
    while (!letters.empty()) {
        if (letters.front() == ' ') {
            letters.remove_prefix(1);
            continue;
        }
        // The longest first: "bc" is a letter of its own.
        const NavFunc113::WeatherLetter* found = nullptr;
        for (const auto& each : NavFunc113::WeatherLetters())
            if (letters.starts_with(each.letter) &&
                (!found || each.letter.size() > found->letter.size()))
                found = &each;
        if (!found) return std::nullopt;
        if (!words.empty()) words += ", ";
        words.append(found->letter).append(" ").append(found->english);
        letters.remove_prefix(found->letter.size());
    }
    return words;
}

/// The weather in the terms of the log, as the weather window has them.
void showWeather(NoonReader& boxes, NoonResult& noon)
{
    if (boxes.number(NoonBox::Wave)) noon.sea = CalculateSeaState(boxes.text(NoonBox::Wave));
    if (boxes.number(NoonBox::Swell)) {
        if (!noon.sea.empty()) noon.sea += ", ";
        noon.sea += CalculateSwell(boxes.text(NoonBox::Swell));
    }
    if (boxes.number(NoonBox::Visibility)) {
        const auto seen = CalculateVisibility(boxes.text(NoonBox::Visibility));
        noon.visibility = seen.term + ", " + seen.nauticalMiles;
    }
    const auto sky = skyInWords(boxes.text(NoonBox::Letters));
    if (sky)
        noon.weather = *sky;
    else
        boxes.remarks.fault("Weather letters: " + quotation(boxes.text(NoonBox::Letters)) +
                            " has one that the log does not know");
}

} // namespace

NoonResult CalculateNoon(const NoonInput& input)
{
    NoonReader boxes(input.boxes);
    boxes.readAll();
    NoonResult noon;
    noon.record = CalculatePositionRecord(input.record);
    noon.day = noonDay(boxes, noon.record);
    if (noon.day) showDay(noon);
    showArrivals(boxes, input, noon);
    showSlip(boxes, input, noon);
    showFuel(boxes, input.bunkers, noon);
    showWeather(boxes, noon);
    noon.mail = noonMail(boxes, noon);
    noon.notice = boxes.remarks.text();
    return noon;
}

} // namespace korvel
