// SPDX-License-Identifier: MIT
#include "forms/frmUKC/UKCWorking.h"

#include "app/reading/Format.h"
#include "app/records/KORVEL2000Actions.h"
#include "forms/frmUKC/UKCFields.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace UKCField;
using NavFunc113::Metres;

/// Writes the column down, line by line.
class Column
{
public:
    Column(const UKCInput& input, const UKCResult& result)
        : m_input(input), m_result(result), m_is(result.figures)
    {
    }

    Working working()
    {
        m_working.method = {"Draught and what adds to it, against the depth and what may be wrong "
                            "with it; every line unrounded, shown to centimetres",
                            "The greatest squat is added to the deepest draught, wherever that is"};
        if (!m_is.clearance) {
            m_working.whyNone = "The remarks say what is missing or cannot be used.";
            return std::move(m_working);
        }
        addBlock();
        addDraught();
        addDepth();
        addAnswers();
        return std::move(m_working);
    }

private:
    static std::string shown(Metres value) { return figure(value, 4); }
    std::string typed(std::size_t field) const
    {
        return m_is.typed[field] ? memoText(*m_is.typed[field]) : "0";
    }

    void addBlock()
    {
        if (!m_is.meanDraught)
            return m_working.resultStep("Block coefficient", typed(Block) + " as typed",
                                        m_result.block);
        const bool isWhole = m_is.typed[Forward] && m_is.typed[Aft];
        const std::string ends = typed(Forward) + " + " + typed(Aft);
        m_working.step("Mean draught",
                       isWhole && m_is.typed[Midships] ? "T = (Tf + 6 Tm + Ta) / 8"
                       : isWhole                       ? "T = (Tf + Ta) / 2"
                                                       : "T = the draught that is known",
                       !isWhole               ? ""
                       : m_is.typed[Midships] ? "(" + ends + " + 6 × " + typed(Midships) + ") / 8"
                                              : "(" + ends + ") / 2",
                       shown(*m_is.meanDraught), "m");
        m_working.step("Block coefficient", "Cb = D / (ρ L B T)",
                       typed(Displacement) + " / (" + memoText(m_is.readIn) + " × " +
                           typed(Length) + " × " + typed(Breadth) + " × " +
                           shown(*m_is.meanDraught) + ")",
                       m_result.block);
    }

    void addDraught()
    {
        m_working.resultStep("Static draught", "the deepest, " + m_result.deepest, m_result.draught,
                             "m");
        addSquat();
        m_working.resultStep("Place of the squat", "by the block coefficient, above or below 0.7",
                             m_result.formula);
        m_working.resultStep("Squat by the other formulas", "for comparison", m_result.others);
        const double list = std::fabs(m_is.typed[List].value_or(0)); // the same to either side
        m_working.step("List", "B / 2 × sin list",
                       list == 0 ? "no list"
                                 : typed(Breadth) + " / 2 × sin " + memoText(list) + "°",
                       m_result.list, "m");
        addDensity();
        m_working.resultStep("Heave or swell", typed(Heave) + " as typed", m_result.heave, "m");
        m_working.step("Dynamic draught", "draught + squat + list + density + heave",
                       shown(*m_is.draught) + " + " + shown(*m_is.squat) + " + " +
                           shown(*m_is.list) + " + " + term(*m_is.density, 4) + " + " +
                           shown(*m_is.heave),
                       m_result.dynamic, "m");
    }

    void addSquat()
    {
        const KeelModel& model = *m_is.model;
        const std::string block = figure(model.block, 4);
        const std::string speed = memoText(m_is.speed->value());
        if (model.water != Water::Channel)
            return m_working.step("Squat", "S = " + squatFormula(model.water),
                                  block + " × " + speed + "² / " +
                                      (model.water == Water::Open ? "100" : "50"),
                                  m_result.squat, "m");
        const std::string midship = figure(model.midship(), 2);
        const std::string section = figure(model.section(m_is.tide->height), 2);
        m_working.step("Immersed midship section", "As = B × (draught + density)",
                       typed(Breadth) + " × (" + shown(*m_is.draught) + " + " +
                           term(*m_is.density, 4) + ")",
                       midship, "m²");
        const std::string depth = shown(model.depth(m_is.tide->height));
        m_working.step("Section of the channel",
                       model.channel.section ? "Ac as typed" : "Ac = (w + slope × h) × h",
                       model.channel.section ? ""
                                             : "(" + typed(Bottom) + " + " + typed(Slope) + " × " +
                                                   depth + ") × " + depth,
                       section, "m²");
        m_working.step("Squat", "S = " + squatFormula(model.water),
                       block + " / 30 × (" + midship + " / (" + section + " - " + midship +
                           "))^⅔ × " + speed + "^2.08",
                       m_result.squat, "m");
    }

    void addDensity()
    {
        const std::string read = memoText(m_is.readIn), there = memoText(m_is.waterDensity);
        if (m_is.typed[Allowance])
            m_working.step("Density", "FWA × (ρ read - ρ there) / 0.025",
                           typed(Allowance) + " / 1000 × (" + read + " - " + there + ") / 0.025",
                           m_result.density, "m");
        else
            m_working.step("Density", "draught × (ρ read / ρ there - 1), of a box: not less",
                           shown(*m_is.draught) + " × (" + read + " / " + there + " - 1)",
                           m_result.density, "m");
    }

    void addDepth()
    {
        m_working.resultStep("Charted depth", typed(Charted) + " as typed", m_result.charted, "m");
        m_working.resultStep("Tide", m_result.fromTide, m_result.tide, "m");
        if (m_input.survey == Survey::Own) {
            m_working.resultStep("Uncertainty of the survey", typed(Margin) + " as typed",
                                 m_result.uncertainty, "m");
        } else {
            constexpr const char* fixed[] = {"", "0.5", "1.0", "1.0", "2.0"};
            constexpr const char* share[] = {"", "0.01", "0.02", "0.02", "0.05"};
            constexpr const char* zones[] = {"", "A1", "A2", "B", "C"};
            const auto zone = static_cast<std::size_t>(m_input.survey);
            m_working.step("Uncertainty of the survey",
                           std::string("zone of confidence ") + zones[zone] +
                               ": fixed + share × charted depth",
                           std::string(fixed[zone]) + " + " + share[zone] + " × " + typed(Charted),
                           m_result.uncertainty, "m");
        }
        m_working.step("Depth to count on", "charted depth + tide - uncertainty",
                       shown(*m_is.charted) + " + " + term(m_is.tide->height, 4) + " - " +
                           shown(*m_is.uncertainty),
                       m_result.depth, "m");
    }

    void addAnswers()
    {
        const KeelModel& model = *m_is.model;
        const Metres depth = model.depth(m_is.tide->height);
        m_working.step("Clearance", "depth to count on - dynamic draught",
                       shown(depth) + " - " + shown(*m_is.dynamic), m_result.clearance, "m");
        addMinimum();
        m_working.step("Over the minimum", "clearance - minimum",
                       term(*m_is.clearance, 4) + " - " + shown(model.minimum), m_result.over, "m");
        if (m_is.leastTide) {
            const Metres dynamic = model.dynamicDraught(*m_is.speed, *m_is.leastTide);
            m_working.step("Least tide that keeps the minimum",
                           "dynamic draught at that tide + minimum + uncertainty - charted depth",
                           shown(dynamic) + " + " + shown(model.minimum) + " + " +
                               shown(model.uncertainty) + " - " + term(model.charted, 4),
                           m_result.leastTide, "m");
        }
        const Metres left =
            depth - (*m_is.draught + *m_is.list + *m_is.density + *m_is.heave) - model.minimum;
        m_working.step(
            "Squat that the minimum leaves", "depth - draught - list - density - heave - minimum",
            shown(depth) + " - " + shown(*m_is.draught) + " - " + shown(*m_is.list) + " - " +
                term(*m_is.density, 4) + " - " + shown(*m_is.heave) + " - " + shown(model.minimum),
            figure(left, 4), "m");
        addGreatestSpeed(left);
    }

    /// The formula of the squat turned round.
    void addGreatestSpeed(Metres left)
    {
        const KeelModel& model = *m_is.model;
        if (!m_is.greatestSpeed)
            return m_working.resultStep("Greatest speed", "the minimum leaves no squat",
                                        m_result.speed);
        const std::string block = figure(model.block, 4);
        const auto section = model.section(m_is.tide->height);
        if (model.water == Water::Channel)
            m_working.step(
                "Speed of that squat", "V = (S × 30 / (Cb (As / (Ac - As))^⅔))^(1 / 2.08)",
                "(" + shown(left) + " × 30 / (" + block + " × (" + figure(model.midship(), 2) +
                    " / " + figure(section - model.midship(), 2) + ")^⅔))^(1 / 2.08)",
                figure(*m_is.greatestSpeed, 2), "kn");
        else
            m_working.step("Speed of that squat",
                           model.water == Water::Open ? "V = √(100 S / Cb)" : "V = √(50 S / Cb)",
                           std::string("√(") + (model.water == Water::Open ? "100" : "50") + " × " +
                               shown(left) + " / " + block + ")",
                           figure(*m_is.greatestSpeed, 2), "kn");
        m_working.resultStep("Greatest speed", "tenths cut off, never rounded up", m_result.speed,
                             "kn");
    }

    void addMinimum()
    {
        const std::string text = m_is.minimum ? m_result.minimum : "0.00";
        if (m_is.typed[MinimumShare])
            m_working.step("Minimum", "the greater of metres and share of the static draught",
                           typed(Minimum) + "; " + typed(MinimumShare) + " % × " +
                               shown(*m_is.draught),
                           text, "m");
        else
            m_working.resultStep("Minimum", typed(Minimum) + " as typed", text, "m");
    }

    const UKCInput& m_input;
    const UKCResult& m_result;
    const KeelFigures& m_is;
    Working m_working{"Under-keel clearance", {}, {}};
};

} // namespace

Working columnWorking(const UKCInput& input, const UKCResult& result)
{
    return Column(input, result).working();
}

std::optional<PaperTable> hoursTable(const UKCResult& result, const TideWeek& week)
{
    if (!week.isThere() || !result.figures.model) return std::nullopt;
    PaperTable table{"Hours when the minimum is kept, zone time of " + week.place + ", " +
                         week.method(),
                     {"Day", "Hours", "Lowest tide, m"},
                     {}};
    for (std::size_t day = 0; day < week.days.size(); ++day) {
        const NavFunc113::TideTurn lowest = lowestOf(week, day);
        table.rows.push_back({result.days[day],
                              spansText(result.spans[day], week.isEstimated() ? "~" : ""),
                              Format(lowest.value, "0.00") + " at " + clockTime(lowest.time)});
    }
    return table;
}

std::vector<std::string> keelLimits(const TideWeek& week)
{
    std::vector<std::string> limits = {
        "The squat is an estimate by formulas of Barrass for a ship on even keel, block "
        "coefficients of 0.5 to 0.9 and depths of 1.1 to 1.4 draughts; the ship's own squat table "
        "comes first",
        "The tide is a prediction: wind, pressure and the way from the station to the shoal are "
        "not in it; hours are rounded inwards to the minute"};
    if (week.isThere()) limits.push_back(week.accuracy);
    return limits;
}

} // namespace korvel
