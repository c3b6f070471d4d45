// SPDX-License-Identifier: MIT
#include "app/working/WorkingPaper.h"

#include "app/reading/Format.h"
#include "app/records/DelimitedText.h"

#include <algorithm>

namespace korvel
{
namespace
{

constexpr char textMark = '\'';
constexpr const char* minuteFormat = "yyyy-mm-dd hh:mm";

std::string orLine(const std::string& text)
{
    return text.empty() ? "____________________" : text;
}

/// A heading of the plain text, underlined.
void addTitle(std::string& text, const std::string& title)
{
    text += "\n" + title + "\n" + std::string(title.size(), '-') + "\n";
}

void addFigures(std::string& text, const std::vector<PaperFigure>& figures, const char* shownAs)
{
    for (const PaperFigure& each : figures) {
        text += each.name + ": " + figureText(each.value, each.unit);
        if (!each.shown.empty()) text += "   (" + std::string(shownAs) + ' ' + each.shown + ')';
        text += '\n';
    }
}

void addSentences(std::string& text, const std::vector<std::string>& sentences)
{
    for (const std::string& each : sentences)
        text += "- " + each + '\n';
}

template <typename Cells>
void addLine(std::string& text, const Cells& cells)
{
    for (std::size_t i = 0; i < cells.size(); ++i)
        text += (i > 0 ? "\t" : "") + cells[i];
    text += '\n';
}

void addTable(std::string& text, const PaperTable& table)
{
    addTitle(text, table.title);
    addLine(text, table.headings);
    for (const auto& row : table.rows)
        addLine(text, row);
}

void addWorking(std::string& text, const Working& working)
{
    addTitle(text, "Working: " + working.title);
    addSentences(text, working.method);
    int number = 0;
    for (const WorkingStep& step : working.steps) {
        text += std::to_string(++number) + ". " + step.name + ": " + step.formula;
        if (!step.figures.empty()) text += " = " + step.figures;
        text += " = " + figureText(step.value, step.unit) + '\n';
    }
    for (const PaperTable& table : working.tables)
        addTable(text, table);
    if (!working.whyNone.empty()) text += working.whyNone + '\n';
}

/// Whether a spreadsheet would take a text for a formula.
bool looksLikeFormula(const std::string& text)
{
    return !text.empty() && std::string_view("=+-@\t\r").find(text.front()) != std::string::npos &&
           !wholeNumber(text);
}

/// A cell with an apostrophe in front is a text for every spreadsheet.
std::string csvCell(std::string text)
{
    if (looksLikeFormula(text) || text.starts_with(textMark)) text.insert(0, 1, textMark);
    if (text.find_first_of(",\"\r\n") == text.npos) return text;
    std::string quoted = "\"";
    for (const char each : text) {
        if (each == '"') quoted += '"';
        quoted += each;
    }
    return quoted + '"';
}

std::string csvLine(const std::vector<std::string>& cells)
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i)
        line += (i > 0 ? "," : "") + csvCell(cells[i]);
    return line + "\r\n";
}

} // namespace

std::string figureText(const std::string& value, const std::string& unit)
{
    if (unit.empty()) return value;
    const bool isAngle = unit == "°" || unit.starts_with("° ") || unit.starts_with("'");
    return isAngle ? value + unit : value + ' ' + unit;
}

std::vector<PaperFigure> headingLines(const PaperHeading& heading)
{
    const std::string TD = Format(std::abs(heading.TD), "0.0") + (heading.TD < 0 ? " hW" : " hE");
    return {{"Ship", orLine(heading.ship)},
            {"Voyage", orLine(heading.voyage)},
            {"Ship's mean time (SMT)", Format(heading.SMT, minuteFormat)},
            {"UTC", Format(heading.UTC, minuteFormat)},
            {"Time difference (TD)", TD + ", SMT = UTC + TD"},
            {"Program", heading.program}};
}

std::string whyNoResults(const WorkingPaper& paper)
{
    if (!paper.results.empty() || !paper.tables.empty()) return {};
    for (const Working& working : paper.workings)
        if (!working.whyNone.empty()) return "No results: " + working.whyNone;
    return paper.remarks.empty() ? "No results: nothing was entered."
                                 : "No results: the remarks below say why.";
}

std::string paperText(const PaperHeading& heading, const WorkingPaper& paper)
{
    std::string text = paper.kind + '\n' + std::string(paper.kind.size(), '=') + '\n';
    addFigures(text, headingLines(heading), "");
    addTitle(text, "Inputs as understood");
    addFigures(text, paper.inputs, "typed");
    addTitle(text, "Results");
    if (const std::string why = whyNoResults(paper); !why.empty()) text += why + '\n';
    addFigures(text, paper.results, "in the window");
    for (const PaperTable& table : paper.tables)
        addTable(text, table);
    for (const Working& working : paper.workings)
        addWorking(text, working);
    if (!paper.remarks.empty()) addTitle(text, "Remarks");
    addSentences(text, paper.remarks);
    if (!paper.limits.empty()) addTitle(text, "Limits of accuracy");
    addSentences(text, paper.limits);
    return text;
}

std::string resultsText(const WorkingPaper& paper)
{
    std::string text;
    for (const PaperFigure& each : paper.results)
        text += each.name + '\t' + each.value + (each.unit.empty() ? "" : '\t' + each.unit) + '\n';
    for (const PaperTable& table : paper.tables) {
        addLine(text, table.headings);
        for (const auto& row : table.rows)
            addLine(text, row);
    }
    if (text.empty()) text = whyNoResults(paper) + '\n';
    return text;
}

std::string csvText(const ExportTable& table)
{
    std::string text = csvLine(table.headings);
    for (const auto& row : table.rows)
        text += csvLine(row);
    return text;
}

std::string textOfCell(std::string_view cell)
{
    return std::string(cell.starts_with(textMark) ? cell.substr(1) : cell);
}

std::string offeredName(const PaperHeading& heading, const WorkingPaper& paper,
                        const std::string& ending)
{
    std::string name = paper.kind + (paper.place.empty() ? "" : ' ' + paper.place) + ' ' +
                       Format(heading.SMT, "yyyy-mm-dd");
    std::replace_if(
        name.begin(), name.end(),
        [](char each) { return std::string_view("/\\:*?\"<>|").find(each) != std::string::npos; },
        '-');
    return name + '.' + ending;
}

} // namespace korvel
