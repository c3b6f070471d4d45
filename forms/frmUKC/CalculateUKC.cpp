// SPDX-License-Identifier: MIT
#include "forms/frmUKC/CalculateUKC.h"

#include "app/reading/Format.h"
#include "app/reading/Instant.h"
#include "forms/frmUKC/KeelRanges.h"
#include "forms/frmUKC/UKCFields.h"
#include "navlib/arithmetic_error.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace UKCField;
using NavFunc113::Knots;
using NavFunc113::Metres;
using NavFunc113::TonsPerCubicMetre;

constexpr double seaWater = 1.025;

std::string metres(Metres value)
{
    const std::string text = Format(value, "0.00");
    return text == "-0.00" ? "0.00" : text;
}

/// Works the column out, line by line.
class Keel
{
public:
    Keel(const UKCInput& input, const TideWeek& week) : m_input(input), m_week(week) {}

    UKCResult result()
    {
        readBoxes();
        findDraught();
        findDensity();
        findBlock();
        findList();
        findDepth();
        findTide();
        if (isWholeModel()) {
            makeModel();
            runModel();
        }
        show();
        m_shown.notice = m_remarks.text();
        m_shown.level = m_remarks.level();
        m_shown.figures = m_is;
        return std::move(m_shown);
    }

private:
    void readBoxes()
    {
        for (std::size_t i = 0; i < UKCFields.size(); ++i) {
            if (UKCFields[i].kind != FieldKind::Figure) continue;
            const std::size_t faults = m_remarks.faults.size();
            m_is.typed[i] = readIfTyped(m_input.boxes[i], UKCFields[i], m_remarks);
            m_isRefused[i] = m_remarks.faults.size() > faults;
        }
    }

    std::optional<double> typed(std::size_t field) const { return m_is.typed[field]; }

    std::optional<Metres> metresOf(std::size_t field) const
    {
        return typed(field) ? std::optional(Metres(*typed(field))) : std::nullopt;
    }

    /// A figure that the clearance cannot do without. Why one was refused is said already.
    void miss(std::size_t field)
    {
        if (!m_isRefused[field]) m_missing.emplace_back(UKCFields[field].words);
        m_lacks = true;
    }

    void findDraught()
    {
        constexpr const char* places[] = {"forward", "midships", "aft"};
        for (const std::size_t field : {Forward, Midships, Aft}) {
            const auto draught = metresOf(field);
            if (!draught || (m_is.draught && *draught <= *m_is.draught)) continue;
            m_is.draught = draught;
            m_is.deepest = places[field];
        }
        if (m_is.draught == Metres(0)) m_is.draught.reset();
        if (!m_is.draught) miss(Forward);
    }

    void findDensity()
    {
        m_is.readIn = typed(ReadIn).value_or(seaWater);
        m_is.waterDensity = typed(WaterDensity).value_or(seaWater);
        if (!m_is.draught) return;
        const TonsPerCubicMetre read(m_is.readIn), there(m_is.waterDensity);
        m_is.density =
            typed(Allowance)
                ? NavFunc113::DensitySinkage(Metres(*typed(Allowance) / 1000), read, there)
                : NavFunc113::DensitySinkageOfBox(*m_is.draught, read, there);
    }

    /// The mean of means where the draught midships is known: hog and sag enter it with the weight
    /// that the volume gives them.
    std::optional<Metres> meanDraught() const
    {
        const auto forward = metresOf(Forward), midships = metresOf(Midships), aft = metresOf(Aft);
        if (!forward || !aft) return m_is.draught;
        const Metres ends = *forward + *aft;
        return midships ? (ends + 6 * *midships) / 8 : ends / 2;
    }

    void findBlock()
    {
        m_is.block = typed(Block);
        if (m_is.block) return;
        const auto length = metresOf(Length), breadth = metresOf(Breadth);
        const auto draught = meanDraught();
        if (!length || !breadth || !typed(Displacement) || !draught) return miss(Block);
        m_is.block = NavFunc113::BlockCoefficient(
            *typed(Displacement), TonsPerCubicMetre(m_is.readIn), *length, *breadth, *draught);
        m_is.meanDraught = draught;
        if (*m_is.block <= 1 && *m_is.block >= UKCFields[Block].low) return;
        m_remarks.fault("block coefficient " + Format(*m_is.block, "0.000") +
                        ": length, breadth, draught and displacement do not belong together");
        m_is.block.reset();
    }

    void findList()
    {
        const double list = typed(List).value_or(0);
        m_is.heave = Metres(typed(Heave).value_or(0));
        if (list == 0)
            m_is.list = Metres(0);
        else if (const auto breadth = metresOf(Breadth))
            m_is.list = NavFunc113::ListSinkage(*breadth, NavFunc113::Degrees(list));
        else
            miss(Breadth);
        if (typed(Speed))
            m_is.speed = Knots(*typed(Speed));
        else
            miss(Speed);
    }

    void findDepth()
    {
        m_is.charted = metresOf(Charted);
        if (!m_is.charted) miss(Charted);
        findUncertainty();
        const auto minimum = metresOf(Minimum);
        const auto share = typed(MinimumShare);
        if (minimum) m_is.minimum = minimum;
        if (share && m_is.draught)
            m_is.minimum = std::max(minimum.value_or(Metres(0)), *m_is.draught * (*share / 100));
        if (!minimum && !share) m_remarks.warn("no minimum is typed: the keel's own depth is it");
    }

    void findUncertainty()
    {
        using NavFunc113::ZoneOfConfidence;
        if (m_input.survey == Survey::Own) {
            m_is.uncertainty = metresOf(Margin);
            if (!m_is.uncertainty) miss(Margin);
            return;
        }
        if (!m_is.charted) return;
        constexpr ZoneOfConfidence zones[] = {ZoneOfConfidence::A1, ZoneOfConfidence::A2,
                                              ZoneOfConfidence::B, ZoneOfConfidence::C};
        const auto zone = zones[static_cast<std::size_t>(m_input.survey) - 1];
        m_is.uncertainty = NavFunc113::UncertaintyOf(zone).of(*m_is.charted);
    }

    void findTide()
    {
        if (!m_week.fault.empty()) m_remarks.fault("Tide station: " + m_week.fault);
        for (const std::string& note : m_week.notes)
            m_remarks.warn(note);
        if (const auto tide = metresOf(Tide)) {
            m_is.tide = TideUsed{*tide, "as typed"};
        } else if (m_input.boxes[Tide].find_first_not_of(' ') != std::string::npos) {
            miss(Tide); // half typed it is no reason to take another
        } else if (m_week.isThere()) {
            takeStationsTide();
        } else if (m_week.fault.empty()) {
            m_is.tide = TideUsed{Metres(0), "none"};
            m_remarks.warn("no tide is typed: the depth is that of the chart");
        }
    }

    void takeStationsTide()
    {
        const std::string& typedTime = m_input.boxes[Time];
        const bool isLowest = typedTime.find_first_not_of(' ') == std::string::npos;
        NavFunc113::Hours time;
        if (isLowest) {
            time = lowestOf(m_week, 0).time;
        } else {
            const CurveAnswer then = heightAt(m_week.days.front(), typedTime);
            if (then.times.empty()) return m_remarks.fault(then.remark);
            time = then.times.front();
        }
        std::string from = m_week.place + " " + clockTime(time);
        from.append(isLowest ? ", lowest, " : ", ").append(m_week.method());
        m_is.tide = TideUsed{Metres(m_week.at(0, time)), std::move(from), time};
    }

    bool isWholeModel()
    {
        const bool isChannel = m_input.water == Water::Channel;
        if (isChannel && !typed(Breadth)) miss(Breadth);
        if (isChannel && !typed(Bottom) && !typed(Section)) miss(Bottom);
        std::string missing;
        for (const std::string& each : m_missing)
            missing += (missing.empty() ? "" : ", ") + each;
        if (!missing.empty()) m_remarks.fault("still to be typed: " + missing);
        // What is typed and can be used may still give no block coefficient and no tide.
        return !m_lacks && m_is.block && m_is.tide;
    }

    void makeModel()
    {
        KeelModel model;
        model.draught = *m_is.draught;
        model.density = *m_is.density;
        model.list = *m_is.list;
        model.heave = *m_is.heave;
        model.block = *m_is.block;
        model.breadth = metresOf(Breadth).value_or(Metres(0));
        model.water = m_input.water;
        model.channel.bottom = metresOf(Bottom).value_or(Metres(0));
        model.channel.slope = typed(Slope).value_or(0);
        if (typed(Section)) model.channel.section = NavFunc113::SquareMetres(*typed(Section));
        model.charted = *m_is.charted;
        model.uncertainty = *m_is.uncertainty;
        model.minimum = m_is.minimum.value_or(Metres(0));
        m_is.model = model;
    }

    void runModel()
    {
        const KeelModel& model = *m_is.model;
        const Metres tide = m_is.tide->height;
        m_is.leastTide = model.tideFor(*m_is.speed);
        findHours();
        if (!(model.depth(tide) > Metres(0)))
            return m_remarks.fault("there is no water at this tide");
        try {
            m_is.squat = model.squat(*m_is.speed, tide);
            m_is.greatestSpeed = model.speedFor(tide);
        } catch (const NavFunc113::ArithmeticError&) {
            return m_remarks.fault("the ship fills the section of the channel: no formula holds");
        }
        m_is.dynamic = model.dynamicDraught(*m_is.speed, tide);
        m_is.clearance = model.clearance(*m_is.speed, tide);
        if (*m_is.clearance < model.minimum) tellShort(model.minimum - *m_is.clearance);
        tellRanges(model, *m_is.speed, tide, m_remarks);
    }

    void tellShort(Metres lack)
    {
        const std::string text = metres(lack);
        m_remarks.fault("the clearance is " + (text == "0.00" ? "less than 0.01" : text) +
                        " m below the minimum");
    }

    void findHours()
    {
        for (std::size_t day = 0; day < m_week.days.size(); ++day) {
            if (m_is.leastTide)
                m_shown.spans[day] = hoursAbove(m_week, day, m_is.leastTide->value());
            const auto serial = static_cast<double>(m_week.days[day].four.serial);
            const std::string weekday = weekdayOf(instantOf(serial)) + " ";
            m_shown.days[day] = weekday + Format(serial, "yyyy/mm/dd");
            m_shown.hours[day] = weekday + Format(serial, "m/d") + "   ";
            m_shown.hours[day] += spansText(m_shown.spans[day], m_week.isEstimated() ? "~" : "");
        }
    }

    void show()
    {
        const auto put = [](std::string& text, const std::optional<Metres>& value) {
            if (value) text = metres(*value);
        };
        put(m_shown.draught, m_is.draught);
        put(m_shown.squat, m_is.squat);
        put(m_shown.list, m_is.list);
        put(m_shown.density, m_is.density);
        if (m_is.draught) put(m_shown.heave, m_is.heave);
        put(m_shown.dynamic, m_is.dynamic);
        put(m_shown.charted, m_is.charted);
        put(m_shown.uncertainty, m_is.uncertainty);
        put(m_shown.minimum, m_is.minimum);
        put(m_shown.clearance, m_is.clearance);
        put(m_shown.leastTide, m_is.leastTide);
        if (m_is.block) m_shown.block = Format(*m_is.block, "0.000");
        if (m_is.draught) m_shown.deepest = m_is.deepest;
        if (m_is.tide) {
            m_shown.tide = metres(m_is.tide->height);
            m_shown.fromTide = m_is.tide->from;
        }
        if (m_is.model) {
            put(m_shown.depth, m_is.model->depth(m_is.tide->height));
            showAnswers();
        }
    }

    std::string waterOf(const KeelModel& model) const
    {
        if (model.water == Water::Open) return "open water";
        if (model.water == Water::Confined) return "confined water";
        const auto section = model.section(m_is.tide->height);
        return "blockage " + Format(NavFunc113::Blockage(model.midship(), section), "0.000");
    }

    void showAnswers()
    {
        const KeelModel& model = *m_is.model;
        if (!m_is.clearance) return;
        const Metres over = *m_is.clearance - model.minimum;
        m_shown.over = (over < Metres(0) ? "" : "+") + metres(over);
        // Never more than is there: cut, not rounded.
        m_shown.speed = m_is.greatestSpeed
                            ? Format(std::floor(m_is.greatestSpeed->value() * 10) / 10, "0.0")
                            : "none";
        const char* where = model.block > 0.7   ? "at the bow"
                            : model.block < 0.7 ? "at the stern"
                                                : "bow and stern alike";
        m_shown.formula = waterOf(model) + ", " + where;
        for (const Water other : {Water::Open, Water::Confined}) {
            if (other == model.water) continue;
            KeelModel by = model;
            by.water = other;
            m_shown.others += (m_shown.others.empty() ? "" : "; ") + squatFormula(other) + ": " +
                              metres(by.squat(*m_is.speed, m_is.tide->height)) + " m";
        }
    }

    const UKCInput& m_input;
    const TideWeek& m_week;
    KeelFigures m_is;
    UKCResult m_shown;
    Remarks m_remarks;
    std::array<bool, UKCFields.size()> m_isRefused{};
    std::vector<std::string> m_missing;
    bool m_lacks = false;
};

} // namespace

TideBoxes UKCInput::tide() const
{
    return {boxes[Tide], boxes[Station], boxes[Day], boxes[Time]};
}

std::string squatFormula(Water water)
{
    switch (water) {
    case Water::Open:
        return "Cb V² / 100";
    case Water::Confined:
        return "Cb V² / 50";
    case Water::Channel:
        break;
    }
    return "Cb / 30 (As / (Ac - As))^⅔ V^2.08";
}

std::string squatName(Water water)
{
    switch (water) {
    case Water::Open:
        return "open water: " + squatFormula(water);
    case Water::Confined:
        return "confined: " + squatFormula(water);
    case Water::Channel:
        break;
    }
    return "channel: " + squatFormula(water);
}

UKCResult CalculateUKC(const UKCInput& input, const TideWeek& week)
{
    return Keel(input, week).result();
}

} // namespace korvel
