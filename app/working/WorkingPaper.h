// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"

#include <optional>
#include <string_view>

namespace korvel
{

/// A figure of a paper: of the inputs as it was understood, of the results in full.
struct PaperFigure {
    std::string name;
    std::string value;      ///< "35°30.5' N"
    std::string unit = {};  ///< empty when the value says it
    std::string shown = {}; ///< as typed, or as the window shows it, when that is another text
};

/// A list for other programs: decimal points, dates as 2026-11-21T16:00Z, units in the headings.
struct ExportTable {
    std::vector<std::string> headings;
    std::vector<std::vector<std::string>> rows;
};

/// A line over the sea for a chart program.
struct ExportLine {
    enum class Kind { Route, Track };
    struct Point {
        NavFunc113::Degrees latitude;
        NavFunc113::Degrees longitude;
        std::string name;
        std::optional<NavFunc113::DateTime> UTC = {};
    };
    Kind kind = Kind::Route;
    std::string name;
    std::vector<Point> points;
};

/// What a window's working paper says. Heading, signature and page numbers are the printer's.
struct WorkingPaper {
    std::string kind;       ///< of the calculation, also of the offered file name
    std::string place = {}; ///< of the offered file name; empty when there is none
    std::vector<PaperFigure> inputs = {};
    std::vector<PaperFigure> results = {}; ///< empty: the remarks say why
    std::vector<PaperTable> tables = {};   ///< long results
    std::vector<Working> workings = {};
    std::vector<std::string> remarks = {};
    std::vector<std::string> limits = {}; ///< of the accuracy
    std::optional<ExportTable> list = {};
    std::optional<ExportLine> line = {};
    std::vector<std::string> signatures = {}; ///< who signs; empty: one line without a name
};

/// Who calculated, when and with what.
struct PaperHeading {
    std::string ship;
    std::string voyage;
    NavFunc113::DateTime SMT;
    NavFunc113::DateTime UTC;
    double TD; ///< hours
    std::string program;
};

/// A figure with its unit, as it is written: "10 knots", "35.5°", "20 °C".
std::string figureText(const std::string& value, const std::string& unit);

/// The lines of the heading: caption and text.
std::vector<PaperFigure> headingLines(const PaperHeading& heading);

/// Why a paper has no results; empty when it has some.
std::string whyNoResults(const WorkingPaper& paper);

/// The whole paper as plain text, for the journal.
std::string paperText(const PaperHeading& heading, const WorkingPaper& paper);

/// The results as text, columns parted by tabs.
std::string resultsText(const WorkingPaper& paper);

/// What a file of comma-separated values begins with: without it a spreadsheet takes the text for
/// one in the letters of its own country.
inline constexpr const char* spreadsheetMark = "\xEF\xBB\xBF";

/// Comma-separated values in UTF-8: one header line, texts with commas or quotes between quotes,
/// CR LF. What a spreadsheet would take for a formula, and is no figure, has an
/// apostrophe in front.
std::string csvText(const ExportTable& table);

/// A cell of such a list as it was before it was written.
/// @param cell without the quotes around it
std::string textOfCell(std::string_view cell);

/// Name of a file for a paper: kind, place and ship's date, without anything that a file system
/// refuses.
/// @param ending "pdf"
std::string offeredName(const PaperHeading& heading, const WorkingPaper& paper,
                        const std::string& ending);

} // namespace korvel
