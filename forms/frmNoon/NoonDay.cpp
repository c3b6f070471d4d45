// SPDX-License-Identifier: MIT
#include "forms/frmNoon/NoonDay.h"

#include "app/reading/Format.h"
#include "navlib/datetime.h"

#include <algorithm>

namespace korvel
{
namespace
{

using NavFunc113::Hours;

/// A fix by the row of the record that a box names; without one the fix that is usual.
/// @return nothing when the box names none
std::optional<std::size_t> fixNamed(NoonReader& boxes, NoonBox box,
                                    const std::vector<RecordedFix>& fixes,
                                    std::optional<std::size_t> usual)
{
    if (boxes.isBlank(box)) return usual;
    const auto row = boxes.number(box);
    if (!row) return std::nullopt;
    const auto found = std::ranges::find_if(fixes, [&](const RecordedFix& fix) {
        return fix.row + 1 == static_cast<std::size_t>(*row);
    });
    if (found != fixes.end()) return static_cast<std::size_t>(found - fixes.begin());
    boxes.remarks.fault(std::string(NoonFields[placeOf(box)].words) +
                        ": the record has no whole fix there");
    return std::nullopt;
}

/// The last two fixes at noon; where there are none, the last two.
std::pair<std::size_t, std::size_t> usualDay(const std::vector<RecordedFix>& fixes)
{
    std::vector<std::size_t> noons;
    for (std::size_t i = 0; i < fixes.size(); ++i) {
        const auto time = NavFunc113::TimeOf(fixes[i].smt);
        if (time.hour == 12 && time.minute == 0) noons.push_back(i);
    }
    if (noons.size() < 2) return {fixes.size() - 2, fixes.size() - 1};
    return {noons[noons.size() - 2], noons.back()};
}

std::optional<NoonRun> runBetween(const PositionRecordResult& record, std::size_t from,
                                  std::size_t to)
{
    NoonRun run;
    for (std::size_t i = from; i < to; ++i) {
        if (!record.legs[i]) return std::nullopt;
        run.miles += record.legs[i]->sailed.distance;
        run.hours += record.legs[i]->hours;
    }
    return run;
}

void takeRun(NoonReader& boxes, const PositionRecordResult& record, NoonDay& day)
{
    day.run = runBetween(record, day.from, day.to);
    if (!day.run) return boxes.remarks.fault("a leg between the fixes cannot be calculated");
    day.stopped = Hours(boxes.number(NoonBox::Stopped).value_or(0));
    day.underWay = day.run->hours - day.stopped;
    // Hours are differences of dates: what is shorter than a span can be is rounding.
    if (const auto left = spanOf(day.underWay); left && *left > Span(0))
        day.average = day.run->miles / day.underWay;
    else
        boxes.remarks.fault("Stopped: no time is left under way");
    day.away = fixNamed(boxes, NoonBox::FullAway, record.fixes, std::nullopt);
    if (day.away && *day.away < day.to) day.sinceAway = runBetween(record, *day.away, day.to);
}

} // namespace

std::optional<NoonDay> noonDay(NoonReader& boxes, const PositionRecordResult& record)
{
    const auto& fixes = record.fixes;
    if (fixes.size() < 2) {
        boxes.remarks.fault("the position record has no two fixes");
        return std::nullopt;
    }
    const auto [usualFrom, usualTo] = usualDay(fixes);
    const auto from = fixNamed(boxes, NoonBox::FirstFix, fixes, usualFrom);
    const auto to = fixNamed(boxes, NoonBox::LastFix, fixes, usualTo);
    if (!from || !to) return std::nullopt;
    if (fixes[*to].utc <= fixes[*from].utc || *to < *from) {
        boxes.remarks.fault("the last fix is not later than the first");
        return std::nullopt;
    }
    NoonDay day;
    day.from = *from;
    day.to = *to;
    takeRun(boxes, record, day);
    return day;
}

Span zoneOfFix(const RecordedFix& fix)
{
    return instantOf(fix.smt) - instantOf(fix.utc);
}

std::string clocksBetween(const RecordedFix& from, const RecordedFix& to)
{
    const Span change = zoneOfFix(to) - zoneOfFix(from);
    const auto minutes = std::chrono::round<std::chrono::minutes>(change);
    const auto zone = [](const RecordedFix& fix) {
        return Format(hoursOf(zoneOfFix(fix)), "+0.##;-0.##");
    };
    std::string text = "rows " + std::to_string(from.row + 1) + "-" + std::to_string(to.row + 1) +
                       ", TD " + zone(from) + " to " + zone(to);
    if (minutes.count() == 0) return text + ": clocks kept";
    return text + ": clocks " + spanText(std::chrono::abs(minutes)) +
           (change > Span(0) ? " forward" : " back");
}

} // namespace korvel
