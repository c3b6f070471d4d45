// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankCsv.h"

#include "app/reading/Reading.h"
#include "app/reading/Remarks.h"
#include "app/reading/Utf8.h"
#include "app/records/DelimitedText.h"
#include "routes/route/DelimitedLines.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace korvel
{
namespace
{

/// A column of a survey.
struct Quantity {
    const char* name;
    std::string TankReading::*box;
    bool isFigure;
};
constexpr std::array<Quantity, 6> quantities = {{
    {"sounding", &TankReading::sounding, false},
    {"volume", &TankReading::volume, true},
    {"water", &TankReading::water, true},
    {"temperature", &TankReading::temperature, true},
    {"grade", &TankReading::grade, false},
    {"ullage", &TankReading::sounding, false}, // its other name
}};
constexpr std::size_t writtenQuantities = 5;
constexpr std::array surveyWords{"first_", "last_"};
constexpr std::size_t longestCell = 100; // what a box takes

std::string unitBehind(const Quantity& quantity, const TankChoices& choices)
{
    const bool inBarrels = choices.volume == TankVolumeUnit::Barrels;
    const bool inF = choices.temperature == TankTemperatureUnit::Fahrenheit;
    if (quantity.box == &TankReading::volume || quantity.box == &TankReading::water)
        return inBarrels ? "_bbl" : "_m3";
    if (quantity.box == &TankReading::temperature) return inF ? "_f" : "_c";
    return {};
}

/// "Volume before (m³)" and "before volume m3" are "before_volume_m3" to a reader.
std::string plainName(const std::string& heading)
{
    std::string name;
    std::string plain = asciiForms(heading);
    if (const auto cubed = plain.find("³"); cubed != std::string::npos)
        plain.replace(cubed, std::string_view("³").size(), "3");
    for (const char each : plain) {
        if (each >= 'A' && each <= 'Z')
            name += static_cast<char>(each - 'A' + 'a');
        else if ((each >= 'a' && each <= 'z') || (each >= '0' && each <= '9'))
            name += each;
        else if (!name.empty() && name.back() != '_')
            name += '_';
    }
    while (name.ends_with('_'))
        name.pop_back();
    return name;
}

/// Where a column of a file goes.
struct Target {
    std::string heading;
    const Quantity* quantity = nullptr; ///< none: the name of the tank
    TankSurvey survey = TankSurvey::First;
};

struct Layout {
    std::vector<Target> columns;
    std::string fault;
};

std::optional<Target> targetOf(const std::string& heading, const TankChoices& choices,
                               TankSurvey inHand, std::string& fault)
{
    std::string name = plainName(heading);
    if (name == "tank" || name == "name") return Target{heading, nullptr, inHand};
    Target target{heading, nullptr, inHand};
    for (const auto& [word, survey] : {std::pair{"first_", TankSurvey::First},
                                       {"before_", TankSurvey::First},
                                       {"last_", TankSurvey::Last},
                                       {"after_", TankSurvey::Last}}) {
        if (!name.starts_with(word)) continue;
        target.survey = survey;
        name = name.substr(std::string_view(word).size());
    }
    for (const Quantity& each : quantities) {
        const std::string unit = unitBehind(each, choices);
        if (name == each.name || (!unit.empty() && name == each.name + unit))
            target.quantity = &each;
        else if (name.starts_with(each.name) && !unit.empty())
            fault = "this list has it in " + unit.substr(1);
    }
    if (target.quantity) return target;
    if (fault.empty()) fault = "there is no such column";
    return std::nullopt;
}

Layout layoutOf(const DelimitedLine& line, const TankChoices& choices, TankSurvey inHand)
{
    Layout layout;
    bool hasTank = false;
    for (const std::string& heading : line.fields) {
        const auto refuse = [&](const std::string& why) {
            layout.fault = "line " + std::to_string(line.number) + ", column " +
                           quotation(heading) + ": " + why;
        };
        std::string fault;
        const auto target = targetOf(heading, choices, inHand, fault);
        if (!target) {
            refuse(fault);
            return layout;
        }
        for (const Target& each : layout.columns)
            if (each.quantity == target->quantity &&
                (!each.quantity || each.survey == target->survey)) {
                refuse("it is there twice");
                return layout;
            }
        hasTank = hasTank || !target->quantity;
        layout.columns.push_back(*target);
    }
    if (!hasTank)
        layout.fault = "line " + std::to_string(line.number) + ": there is no column \"tank\"";
    return layout;
}

/// Reads the lines into the rows that there are; the first fault ends it.
class TankLines
{
public:
    TankLines(const Layout& layout, const TankList& list, bool hasDecimalCommas)
        : m_layout(layout), m_hasDecimalCommas(hasDecimalCommas)
    {
        m_read.rows = list.rows;
        std::erase_if(m_read.rows, [](const TankRow& row) { return row.isEmpty(); });
        for (std::size_t i = 0; i < m_read.rows.size(); ++i)
            m_known.emplace(m_read.rows[i].tank, i);
    }

    void take(const DelimitedLine& line)
    {
        if (!line.isClosed) return refuse(line, "a double quote is never closed");
        if (line.fields.size() > m_layout.columns.size())
            return refuse(line, "more fields than columns");
        if (line.fields.size() < m_layout.columns.size())
            return refuse(line, "fewer fields than columns");
        const auto row = rowNamed(line);
        for (std::size_t i = 0; row && i < line.fields.size() && !hasFault(); ++i)
            takeField(line, i, m_read.rows[*row]);
    }

    const ReadTanks& result() const { return m_read; }
    bool hasFault() const { return !m_read.fault.empty(); }

private:
    void refuse(const DelimitedLine& line, const std::string& why)
    {
        if (!hasFault()) m_read.fault = "line " + std::to_string(line.number) + ": " + why;
    }

    /// The row of the tank: the one that there is, so that the other survey and what the file lacks
    /// stay, or a new one.
    std::optional<std::size_t> rowNamed(const DelimitedLine& line)
    {
        const auto column = std::ranges::find(m_layout.columns, nullptr, &Target::quantity);
        const std::string tank =
            textOfCell(line.fields[static_cast<std::size_t>(column - m_layout.columns.begin())]);
        if (isBlank(tank)) {
            refuse(line, column->heading + ": the tank has no name");
        } else if (!m_seen.insert(tank).second) {
            refuse(line, column->heading + ": " + quotation(tank) + " is there twice");
        } else if (const auto known = m_known.find(tank); known != m_known.end()) {
            return known->second;
        } else if (m_read.rows.size() == mostTanks) {
            refuse(line, "more than " + std::to_string(mostTanks) + " tanks");
        } else {
            m_read.rows.emplace_back();
            return m_read.rows.size() - 1;
        }
        return std::nullopt;
    }

    void takeField(const DelimitedLine& line, std::size_t column, TankRow& row)
    {
        const Target& target = m_layout.columns[column];
        std::string text = textOfCell(line.fields[column]);
        const auto fail = [&](const std::string& why) {
            refuse(line, target.heading + ": " + quotation(text) + " " + why);
        };
        if (!isUtf8(text)) return refuse(line, target.heading + ": no UTF-8 text");
        if (text.size() > longestCell) return fail("is too long");
        if (std::ranges::any_of(text, [](char each) { return each >= 0 && each < ' '; }))
            return refuse(line, target.heading + ": a control character or line end in it");
        if (!target.quantity) {
            row.tank = text;
            return;
        }
        if (target.quantity->isFigure && !text.empty()) {
            if (m_hasDecimalCommas) std::ranges::replace(text, ',', '.');
            if (!wholeNumber(text)) return fail("is no number");
        }
        row.surveys[static_cast<std::size_t>(target.survey)].*(target.quantity->box) = text;
    }

    const Layout& m_layout;
    bool m_hasDecimalCommas;
    std::map<std::string, std::size_t> m_known;
    std::set<std::string> m_seen;
    ReadTanks m_read;
};

} // namespace

ExportTable tankTable(const TankList& list, const TankChoices& choices)
{
    ExportTable table;
    table.headings.emplace_back("tank");
    for (const char* survey : surveyWords)
        for (std::size_t i = 0; i < writtenQuantities; ++i)
            table.headings.push_back(std::string(survey) + quantities[i].name +
                                     unitBehind(quantities[i], choices));
    for (const TankRow& row : list.rows) {
        std::vector<std::string> cells{row.tank};
        for (const TankReading& reading : row.surveys)
            for (std::size_t i = 0; i < writtenQuantities; ++i)
                cells.push_back(reading.*(quantities[i].box));
        table.rows.push_back(std::move(cells));
    }
    return table;
}

ReadTanks readTanks(std::string_view text, const TankList& list, const TankChoices& choices,
                    TankSurvey survey)
{
    const char separator = separatorOf(text);
    const auto lines = delimitedLines(text, separator, mostTanks + 2);
    if (lines.empty()) return {{}, "it is empty"};
    if (!lines.front().isClosed) return {{}, "line 1: a double quote is never closed"};
    const Layout layout = layoutOf(lines.front(), choices, survey);
    if (!layout.fault.empty()) return {{}, layout.fault};
    TankLines tanks(layout, list, separator != ',');
    for (std::size_t i = 1; i < lines.size() && !tanks.hasFault(); ++i)
        tanks.take(lines[i]);
    if (lines.size() == 1) return {{}, "there is no tank in it"};
    if (tanks.hasFault()) return {{}, tanks.result().fault};
    return tanks.result();
}

} // namespace korvel
