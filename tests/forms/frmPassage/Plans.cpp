// SPDX-License-Identifier: MIT
#include "tests/forms/frmPassage/Plans.h"
#include "forms/frmPassage/PlanTexts.h"

#include <sstream>
#include <stdexcept>

namespace korvel::testing
{
namespace
{

std::string orNothing(const std::string& word)
{
    return word == "-" ? "" : word;
}

void takeWord(PlanRow& row, const std::string& word)
{
    const std::size_t sign = word.find_first_of(":=");
    const std::string key = word.substr(0, sign);
    const std::string value = sign == word.npos ? "" : word.substr(sign + 1);
    if (key == "gc" || key == "co") {
        row.leg = key == "gc" ? LegKind::GreatCircle : LegKind::Composite;
        row.stepUnit = value.ends_with("nm") ? StepUnit::Miles : StepUnit::Degrees;
        (key == "gc" ? row.step : row.limit) =
            value.ends_with("nm") ? value.substr(0, value.size() - 2) : value;
    } else if (key == "v") {
        row.speed = value;
    } else if (key == "stop") {
        row.stop = value;
    } else if (key == "td") {
        row.zone = value;
    } else if (key == "note") {
        row.remark = value;
    } else {
        throw std::runtime_error("no word of a plan: " + word);
    }
}

PlanRow planRow(const std::string& text)
{
    PlanRow row;
    if (text == ".") return row;
    std::istringstream words(text);
    words >> row.name >> row.latitude >> row.longitude;
    row.name = orNothing(row.name);
    row.latitude = orNothing(row.latitude);
    row.longitude = orNothing(row.longitude);
    for (std::string word; words >> word;)
        takeWord(row, word);
    return row;
}

} // namespace

std::vector<PlanRow> planRows(const std::string& text)
{
    std::vector<PlanRow> rows;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find(" / ", from), text.size());
        rows.push_back(planRow(text.substr(from, end - from)));
        from = end + 3;
    }
    return rows;
}

PlanTimes planTimes(const std::string& text)
{
    std::istringstream words(text);
    std::string given, clock, date, time;
    words >> given >> clock >> date >> time;
    return {given == "arr" ? PlanTimes::Given::WantedArrival : PlanTimes::Given::Departure,
            clock == "utc" ? PlanTimes::Clock::UTC : PlanTimes::Clock::ShipsTime,
            date + " " + time};
}

std::string rowsText(const std::vector<PlanRow>& rows)
{
    std::string text;
    for (const PlanRow& row : rows) {
        text += text.empty() ? "" : " / ";
        if (row.isEmpty()) {
            text += ".";
            continue;
        }
        text += (row.name.empty() ? "-" : row.name) + " " + row.latitude + " " + row.longitude;
        if (row.leg == LegKind::GreatCircle)
            text += row.step.empty()
                        ? " gc"
                        : " gc:" + row.step + (row.stepUnit == StepUnit::Miles ? "nm" : "");
        if (row.leg == LegKind::Composite) text += " co:" + row.limit;
        if (!row.speed.empty()) text += " v=" + row.speed;
        if (!row.stop.empty()) text += " stop=" + row.stop;
        if (!row.zone.empty()) text += " td=" + row.zone;
        if (!row.remark.empty()) text += " note=" + row.remark;
    }
    return text;
}

std::map<std::string, std::string> shownTexts(const PlanReckoning& plan)
{
    const PlanTotalTexts totals = planTotalTexts(plan);
    std::map<std::string, std::string> texts = {
        {"total.distance", totals.distance},
        {"total.underWay", totals.underWay},
        {"total.stopped", totals.stopped},
        {"total.elapsed", totals.elapsed},
        {"total.saving", totals.saving},
        {"total.clocks", totals.clockChange},
        {"notice", plan.notice()},
        {"departure", plan.departure() ? isoText(*plan.departure()) : ""}};
    for (std::size_t i = 0; i < plan.size(); ++i) {
        const PlanRowTexts row = planRowTexts(plan, i);
        const std::string number = std::to_string(i + 1) + ".";
        texts[number + "course"] = row.course;
        texts[number + "distance"] = row.distance;
        texts[number + "saving"] = row.saving;
        texts[number + "couldSave"] = row.couldSave;
        texts[number + "underWay"] = row.underWay;
        texts[number + "run"] = row.run;
        texts[number + "toGo"] = row.toGo;
        texts[number + "speed"] = row.speed;
        texts[number + "utc"] = row.etaUTC;
        texts[number + "eta"] = row.etaZone;
        texts[number + "etd"] = row.etd;
        texts[number + "zone"] = row.zone;
        texts[number + "clocks"] = row.clockChange;
        texts[number + "remark"] = row.remark;
    }
    return texts;
}

} // namespace korvel::testing
