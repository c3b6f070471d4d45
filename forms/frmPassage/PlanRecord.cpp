// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanRecord.h"

#include "app/reading/Utf8.h"
#include "app/records/KeyedLines.h"

#include <algorithm>
#include <array>

namespace korvel
{
namespace
{

constexpr std::string_view kind = "KORVEL2000 passage plan ";
constexpr std::string_view version = "1";

struct RowText {
    std::string_view key;
    std::string PlanRow::*box;
};

constexpr std::array rowTexts{
    RowText{"name", &PlanRow::name},           RowText{"latitude", &PlanRow::latitude},
    RowText{"longitude", &PlanRow::longitude}, RowText{"step", &PlanRow::step},
    RowText{"limit", &PlanRow::limit},         RowText{"speed", &PlanRow::speed},
    RowText{"stop", &PlanRow::stop},           RowText{"zone", &PlanRow::zone},
    RowText{"remark", &PlanRow::remark},
};

// By LegKind.
constexpr std::array<std::string_view, 3> legNames{"rhumb", "circle", "composite"};

void addKept(std::string& text, const std::vector<KeptPart>& kept)
{
    for (const KeptPart& part : kept)
        text += "kept=" + escapedLine(part.place) + "\t" + escapedLine(part.text) + "\n";
}

/// Takes the lines of a record one by one.
class Lines
{
public:
    explicit Lines(ReadPlanRecord& read) : m_read(read) {}

    void take(std::string_view line, int number)
    {
        if (line == "row") return openRow(number);
        const std::size_t sign = line.find('=');
        if (sign == std::string_view::npos || !isUtf8(line))
            return damage(number, "it cannot be read");
        const std::string_view key = line.substr(0, sign);
        const std::string_view value = line.substr(sign + 1);
        if (key == "kept")
            takeKept(value, number);
        else if (m_isInRow)
            takeOfRow(key, value, number);
        else
            takeOfHead(key, value);
    }

private:
    void damage(int number, const std::string& what)
    {
        if (m_read.damage.empty()) m_read.damage = "line " + std::to_string(number) + ": " + what;
    }

    void openRow(int number)
    {
        m_isInRow = true;
        m_isBeyond = m_read.plan.rows.size() == mostPlanRows;
        if (m_isBeyond)
            damage(number, "more than " + std::to_string(mostPlanRows) + " rows");
        else
            m_read.plan.rows.emplace_back();
    }

    void takeKept(std::string_view value, int number)
    {
        const std::size_t tab = value.find('\t');
        if (tab == std::string_view::npos) return damage(number, "it cannot be read");
        if (m_isInRow && m_isBeyond) return;
        auto& kept = m_isInRow ? m_read.plan.rows.back().kept : m_read.plan.kept;
        kept.push_back({unescapedLine(value.substr(0, tab)), unescapedLine(value.substr(tab + 1))});
    }

    void takeOfHead(std::string_view key, std::string_view value)
    {
        PassagePlan& plan = m_read.plan;
        if (key == "name") plan.name = unescapedLine(value);
        if (key == "time") plan.times.time = unescapedLine(value);
        if (key == "wish from") plan.wish.from = unescapedLine(value);
        if (key == "wish to") plan.wish.to = unescapedLine(value);
        if (key == "wish time") plan.wish.time = unescapedLine(value);
        if (key == "given" && value == "arrival")
            plan.times.given = PlanTimes::Given::WantedArrival;
        if (key == "clock" && value == "ship") plan.times.clock = PlanTimes::Clock::ShipsTime;
    }

    void takeOfRow(std::string_view key, std::string_view value, int number)
    {
        if (m_isBeyond) return;
        PlanRow& row = m_read.plan.rows.back();
        const auto text = std::ranges::find(rowTexts, key, &RowText::key);
        if (text != rowTexts.end()) row.*(text->box) = unescapedLine(value);
        if (key == "unit" && value == "miles") row.stepUnit = StepUnit::Miles;
        if (key != "leg") return;
        const auto leg = std::ranges::find(legNames, value);
        if (leg == legNames.end())
            damage(number, "no kind of leg");
        else
            row.leg = static_cast<LegKind>(leg - legNames.begin());
    }

    ReadPlanRecord& m_read;
    bool m_isInRow = false;
    bool m_isBeyond = false; ///< the row in hand is one too many
};

} // namespace

std::string planRecordText(const PassagePlan& plan)
{
    std::string text = std::string(kind) + std::string(version) + "\n";
    addKeyedLine(text, "name", plan.name);
    addKeyedLine(text, "given",
                 plan.times.given == PlanTimes::Given::WantedArrival ? "arrival" : "");
    addKeyedLine(text, "clock", plan.times.clock == PlanTimes::Clock::ShipsTime ? "ship" : "");
    addKeyedLine(text, "time", plan.times.time);
    addKeyedLine(text, "wish from", plan.wish.from);
    addKeyedLine(text, "wish to", plan.wish.to);
    addKeyedLine(text, "wish time", plan.wish.time);
    addKept(text, plan.kept);
    for (const PlanRow& row : plan.rows) {
        text += "row\n";
        for (const RowText& each : rowTexts)
            addKeyedLine(text, each.key, row.*(each.box));
        if (row.leg != LegKind::Rhumb)
            addKeyedLine(text, "leg", legNames[static_cast<std::size_t>(row.leg)]);
        addKeyedLine(text, "unit", row.stepUnit == StepUnit::Miles ? "miles" : "");
        addKept(text, row.kept);
    }
    return text;
}

ReadPlanRecord readPlanRecord(std::string_view text)
{
    ReadPlanRecord read;
    if (!text.starts_with(kind)) return {{}, "line 1: it is no passage plan", false};
    Lines lines(read);
    int number = 0;
    for (const std::string_view line : recordLines(text))
        if (++number > 1 && !line.empty()) lines.take(line, number);
    return read;
}

} // namespace korvel
