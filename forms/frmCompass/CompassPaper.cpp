// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassPaper.h"

namespace korvel
{
void tellBook(WorkingPaper& paper, const CompassBook& book, std::optional<CompassKind> kind)
{
    const std::string which = kind ? compassNames[static_cast<std::size_t>(*kind)] : "all";
    paper.kind = kind ? "Compass book, " + which : "Compass book";
    PaperTable table{kind ? "Lines, the latest first: bearing and head by compass, error, "
                            "variation, deviation"
                          : "Lines, the latest first: variation, error of the gyro, error and "
                            "deviation of the standard and the steering compass",
                     {},
                     {}};
    table.headings =
        kind
            ? std::vector<std::string>{"UTC",     "Position", "Body",   "True °", "Brg °", "Head °",
                                       "Error °", "Var. °",   "Dev. °", "By",     "Remark"}
            : std::vector<std::string>{"UTC",   "Position", "Body",   "True °", "Var. °", "Gyro °",
                                       "Std °", "Dev. °",   "Str. °", "Dev. °", "By",     "Remark"};
    const auto lines = compassLines(book, kind);
    for (const std::size_t i : lines) {
        const CompassLineTexts texts = compassLineTexts(book[i]);
        table.rows.push_back(kind ? rowOfOne(texts, *kind) : rowOfAll(texts));
    }
    paper.inputs = {{"Compass", which}};
    if (lines.empty()) {
        paper.remarks.emplace_back("There is no line of this compass in the book");
        return;
    }
    paper.results = {{"Lines", std::to_string(lines.size())},
                     {"From", minuteText(book[lines.back()].UTC), "UTC"},
                     {"To", minuteText(book[lines.front()].UTC), "UTC"}};
    paper.tables = {std::move(table)};
    paper.limits = {"Figures are those of the day of the observation, with the model and the "
                    "almanac that the program had then"};
}

void tellDeviation(WorkingPaper& paper, const DeviationCurve& curve, const CompassBook& book,
                   CompassKind kind)
{
    paper.kind =
        std::string("Deviation, ") + compassNames[static_cast<std::size_t>(kind)] + " compass";
    PaperTable lines{
        "Lines by head", {"Head °", "Deviation °", "Curve °", "Residual °", "UTC", ""}, {}};
    for (const auto& line : curveLines(curve, book))
        lines.rows.emplace_back(line.begin(), line.end());
    if (!lines.rows.empty()) paper.tables.push_back(std::move(lines));
    paper.remarks = {};
    if (!curve.notice.empty()) paper.remarks.push_back(curve.notice);
    if (!curve.fit) return;
    for (const std::string& each : curve.coefficients)
        paper.results.push_back({"Coefficient " + each.substr(0, 1), each.substr(2), "degrees"});
    paper.results.push_back({"Scatter of one line", curve.scatter});
    PaperTable card{"Card", {"Compass head °", "Deviation °", "Magnetic head °"}, {}};
    for (const auto& row : deviationCard(curve))
        card.rows.emplace_back(row.begin(), row.end());
    paper.tables.push_back(std::move(card));
    paper.limits = {"Least squares: deviation = A + B sin C + C cos C + D sin 2C + E cos 2C of "
                    "the head by compass; a line beyond 3 standard deviations of the curve of all "
                    "others is left out",
                    "A single line is good to the scatter, the curve between its lines to less; on "
                    "heads without lines it is a guess"};
}

std::string lineInWords(const CompassLine& line)
{
    const CompassLineTexts texts = compassLineTexts(line);
    std::string words = texts.UTC + " UTC  " + texts.body + "  " + texts.trueBearing;
    for (std::size_t i = 0; i < compassCount; ++i)
        if (!texts.compasses[i].error.empty())
            words += std::string("  ") + compassNames[i] + " " + texts.compasses[i].error;
    return words;
}

} // namespace korvel
