// SPDX-License-Identifier: MIT
#include "shell/paper/PaperHtml.h"

#include "shell/machine/AsQString.h"

#include <QStringList>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr std::size_t linesOfTitles = 2; // of a table and of its columns
constexpr std::size_t linesOfStep = 2;   // its formula seldom has room in one
constexpr const char* signatureLine = "______________________________";

QString escaped(const std::string& text)
{
    // Two blanks part the figures of a line in a window; here they would run together.
    return asQString(text).toHtmlEscaped().replace("  ", "&nbsp; ");
}

QString figureHtml(const PaperFigure& each)
{
    return escaped(figureText(each.value, each.unit));
}

QString titleHtml(const std::string& text)
{
    return "<h3>" + escaped(text) + "</h3>";
}

using Rows = std::vector<QStringList>;

QString rowHtml(const QStringList& cells, const QString& tag, const QString& attributes = {})
{
    QString html = "<tr" + attributes + '>';
    for (const QString& cell : cells)
        html += '<' + tag + '>' + cell + "</" + tag + '>';
    return html + "</tr>";
}

/// A table whose heading is repeated where a page ends. Shade leads the eye along its rows: lines
/// around cells would take as long to draw as all the rest.
QString tableHtml(const QStringList& headings, Rows rows)
{
    // Behind a table that ends with an empty cell the next title would lose the room above it.
    if (!rows.empty() && rows.back().back().isEmpty()) rows.back().back() = "&nbsp;";
    QString html = "<table cellspacing='0' cellpadding='2' width='100%'><thead>" +
                   rowHtml(headings, "th") + "</thead><tbody>";
    for (std::size_t i = 0; i < rows.size(); ++i)
        html += rowHtml(rows[i], "td", i % 2 == 0 ? QString() : " bgcolor='#f2f2f2'");
    return html + "</tbody></table>";
}

/// Figures with their name; the last column only where a figure is shown or typed in another way.
QString figuresHtml(const std::vector<PaperFigure>& all, QStringList headings)
{
    const bool isShown = std::any_of(all.begin(), all.end(),
                                     [](const PaperFigure& each) { return !each.shown.empty(); });
    if (!isShown) headings.removeLast();
    Rows rows;
    for (const PaperFigure& each : all) {
        rows.push_back({escaped(each.name), figureHtml(each)});
        if (isShown) rows.back() << escaped(each.shown);
    }
    return tableHtml(headings, std::move(rows));
}

QString sentencesHtml(const std::vector<std::string>& all)
{
    QString html = "<ul>";
    for (const std::string& each : all)
        html += "<li>" + escaped(each) + "</li>";
    return html + "</ul>";
}

QString listHtml(const PaperTable& each)
{
    const auto escapedAll = [](const std::vector<std::string>& texts) {
        QStringList cells;
        for (const std::string& text : texts)
            cells << escaped(text);
        return cells;
    };
    Rows rows;
    for (const auto& cells : each.rows)
        rows.push_back(escapedAll(cells));
    return titleHtml(each.title) + tableHtml(escapedAll(each.headings), rows);
}

QString workingHtml(const Working& each)
{
    QString html = titleHtml("Working: " + each.title) + sentencesHtml(each.method);
    Rows rows;
    for (const WorkingStep& step : each.steps)
        rows.push_back({QString::number(rows.size() + 1) + ". " + escaped(step.name),
                        escaped(step.formula), escaped(step.figures),
                        escaped(figureText(step.value, step.unit))});
    if (!rows.empty()) html += tableHtml({"Step", "Formula", "Figures", "Value"}, rows);
    for (const PaperTable& alike : each.tables)
        html += listHtml(alike);
    if (!each.whyNone.empty()) html += "<p>" + escaped(each.whyNone) + "</p>";
    return html;
}

/// Ship and voyage, times: two captions a line.
QString headingHtml(const PaperHeading& heading)
{
    QString rows;
    const std::vector<PaperFigure> lines = headingLines(heading);
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2)
        rows += rowHtml({escaped(lines[i].name), "<b>" + figureHtml(lines[i]) + "</b>",
                         escaped(lines[i + 1].name), "<b>" + figureHtml(lines[i + 1]) + "</b>"},
                        "td");
    return "<table cellspacing='0' cellpadding='2' width='100%'>" + rows + "</table>";
}

std::size_t linesOf(const PaperTable& table)
{
    return linesOfTitles + table.rows.size();
}

/// What is read first, with all pictures.
QString beginningHtml(const PaperHeading& heading, const WorkingPaper& paper, std::size_t pictures)
{
    QString html = "<h2>" + escaped(paper.kind) + "</h2>" + headingHtml(heading);
    if (!paper.inputs.empty())
        html += titleHtml("Inputs as understood") +
                figuresHtml(paper.inputs, {"Input", "Understood as", "Typed as"});
    html += titleHtml("Results");
    if (const std::string why = whyNoResults(paper); !why.empty())
        html += "<p>" + escaped(why) + "</p>";
    if (!paper.results.empty())
        html += figuresHtml(paper.results, {"Result", "Value", "In the window"});
    for (std::size_t i = 0; i < pictures; ++i)
        html += "<p>" + pictureMark(i) + "</p>";
    return html;
}

/// A line for each who signs, or one without a name.
QString signaturesHtml(const std::vector<std::string>& who)
{
    if (who.empty())
        return QString("<p>&nbsp;</p><p>Signature ") + signatureLine +
               " &nbsp; Date ______________</p>";
    Rows rows;
    for (const std::string& each : who)
        rows.push_back({escaped(each), signatureLine, "Date ______________"});
    QString html = titleHtml("Signatures") + "<table cellspacing='0' cellpadding='6'>";
    for (const QStringList& row : rows)
        html += rowHtml(row, "td");
    return html + "</table>";
}

QString endHtml(const WorkingPaper& paper)
{
    QString html;
    if (!paper.remarks.empty()) html += titleHtml("Remarks") + sentencesHtml(paper.remarks);
    if (!paper.limits.empty())
        html += titleHtml("Limits of accuracy") + sentencesHtml(paper.limits);
    return html + signaturesHtml(paper.signatures);
}

} // namespace

QString pictureMark(std::size_t picture)
{
    return QString("[picture %1]").arg(picture);
}

std::vector<PaperPart> paperParts(const PaperHeading& heading, const WorkingPaper& paper,
                                  std::size_t pictures)
{
    std::vector<PaperPart> parts;
    parts.push_back({paper.inputs.size() + paper.results.size(),
                     [&, pictures] { return beginningHtml(heading, paper, pictures); }});
    for (const PaperTable& each : paper.tables)
        parts.push_back({linesOf(each), [&] { return listHtml(each); }});
    for (const Working& each : paper.workings) {
        std::size_t lines = linesOfTitles + each.method.size() + linesOfStep * each.steps.size();
        for (const PaperTable& alike : each.tables)
            lines += linesOf(alike);
        parts.push_back({lines, [&] { return workingHtml(each); }});
    }
    parts.push_back({paper.remarks.size() + paper.limits.size(), [&] { return endHtml(paper); }});
    return parts;
}

} // namespace korvel
