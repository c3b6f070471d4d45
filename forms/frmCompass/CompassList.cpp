// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassList.h"

#include "app/reading/Format.h"
#include "app/reading/Remarks.h"
#include "app/records/DelimitedText.h"
#include "routes/route/DelimitedLines.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <span>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using PerhapsDegrees = std::optional<Degrees>;

/// Places of the columns; those of the compasses follow each other.
enum : std::size_t {
    Utc,
    Latitude,
    Longitude,
    Body,
    Method,
    TrueBearing,
    Variation,
    VariationSource,
    FirstOfCompasses
};
constexpr std::array<PerhapsDegrees CompassReading::*, 4> figures{
    &CompassReading::bearing, &CompassReading::head, &CompassReading::error,
    &CompassReading::deviation};
constexpr std::size_t Observer = FirstOfCompasses + compassCount * figures.size();
constexpr std::size_t columnCount = Observer + 2;

std::vector<std::string> headings()
{
    std::vector<std::string> names{"utc",           "lat_deg",         "lon_deg",
                                   "body",          "method",          "true_bearing_deg",
                                   "variation_deg", "variation_source"};
    for (const char* compass : {"gyro", "standard", "steering"})
        for (const char* figure : {"_bearing_deg", "_head_deg", "_error_deg", "_deviation_deg"})
            names.push_back(std::string(compass) + figure);
    names.insert(names.end(), {"observer", "remark"});
    return names;
}

std::string figureOf(const PerhapsDegrees& angle, const char* format = "0.0###")
{
    return angle ? Format(*angle, format) : "";
}

std::vector<std::string> cellsOf(const CompassLine& line)
{
    constexpr const char* ofPlaces = "0.0#####"; // a tenth of a metre
    const bool isAmplitude = line.method == CompassMethod::Amplitude;
    std::vector<std::string> cells{isoText(line.UTC),
                                   figureOf(line.latitude, ofPlaces),
                                   figureOf(line.longitude, ofPlaces),
                                   line.body,
                                   isAmplitude ? "amplitude" : "azimuth",
                                   figureOf(line.trueBearing),
                                   figureOf(line.variation),
                                   line.variationSource};
    for (const CompassReading& reading : line.readings)
        for (const auto figure : figures)
            cells.push_back(figureOf(reading.*figure));
    cells.insert(cells.end(), {line.observer, line.remark});
    return cells;
}

/// A line being read; the first fault ends it.
class ListLine
{
public:
    ListLine(const std::vector<std::string>& cells, int number) : m_cells(cells), m_number(number)
    {
    }

    CompassLine line()
    {
        CompassLine line;
        const auto utc = readIso(m_cells[Utc]);
        if (utc)
            line.UTC = *utc;
        else
            refuse(Utc, quotation(m_cells[Utc]) +
                            " is no date and time of the form 2026-11-21T16:00:00Z");
        line.latitude = angle(Latitude, 90);
        line.longitude = angle(Longitude, 180);
        line.body = m_cells[Body];
        readMethod(line);
        line.trueBearing = angle(TrueBearing, 360);
        line.variation = angle(Variation, 180);
        line.variationSource = m_cells[VariationSource];
        for (std::size_t i = 0; i < compassCount; ++i)
            readCompass(line.readings[i], FirstOfCompasses + i * figures.size());
        line.observer = m_cells[Observer];
        line.remark = m_cells[Observer + 1];
        return line;
    }

    const std::string& fault() const { return m_fault; }

private:
    void refuse(std::size_t column, const std::string& why)
    {
        if (m_fault.empty())
            m_fault = "line " + std::to_string(m_number) + ", " + headings()[column] + ": " + why;
    }

    PerhapsDegrees angle(std::size_t column, double most)
    {
        if (m_cells[column].empty()) return std::nullopt;
        const auto value = wholeNumber(m_cells[column]);
        if (value && std::fabs(*value) <= most) return Degrees(*value);
        refuse(column, quotation(m_cells[column]) + " is no angle within " + Format(most, "0"));
        return std::nullopt;
    }

    void readMethod(CompassLine& line)
    {
        if (m_cells[Method] == "amplitude")
            line.method = CompassMethod::Amplitude;
        else if (m_cells[Method] != "azimuth")
            refuse(Method, quotation(m_cells[Method]) + " is neither azimuth nor amplitude");
    }

    void readCompass(CompassReading& reading, std::size_t first)
    {
        for (std::size_t i = 0; i < figures.size(); ++i)
            reading.*figures[i] = angle(first + i, 360);
        reading.byHeads = reading.error && !reading.bearing;
    }

    const std::vector<std::string>& m_cells;
    int m_number;
    std::string m_fault;
};

} // namespace

ExportTable compassList(const CompassBook& book, const std::vector<std::size_t>& lines)
{
    ExportTable list{headings(), {}};
    for (const std::size_t i : lines)
        list.rows.push_back(cellsOf(book[i]));
    return list;
}

ReadCompassList readCompassList(std::string_view text)
{
    ReadCompassList list;
    const auto refused = [](const std::string& fault) { return ReadCompassList{{}, fault}; };
    constexpr std::size_t mostOfFile = mostCompassLines + 2; // the heading, and one too many
    const auto lines = delimitedLines(text, separatorOf(text), mostOfFile);
    if (lines.empty() || lines.front().fields != headings())
        return refused("line 1: it is not the heading of a compass book");
    for (const DelimitedLine& line : std::span(lines).subspan(1)) {
        const std::string where = "line " + std::to_string(line.number);
        if (!line.isClosed) return refused(where + ": its quotation marks do not match");
        if (line.fields.size() != columnCount)
            return refused(where + ": it has " + std::to_string(line.fields.size()) +
                           " fields, not " + std::to_string(columnCount));
        std::vector<std::string> cells;
        std::ranges::transform(line.fields, std::back_inserter(cells), textOfCell);
        ListLine read(cells, line.number);
        list.lines.push_back(read.line());
        if (!read.fault().empty()) return refused(read.fault());
        if (list.lines.size() > mostCompassLines)
            return refused(where + ": more than " + std::to_string(mostCompassLines) + " lines");
    }
    if (list.lines.empty()) return refused("line 2: there is no line of a book");
    return list;
}

std::size_t addNewLines(CompassBook& book, const CompassBook& lines)
{
    // What a list has lost of the last digits is no difference.
    std::set<std::vector<std::string>> known;
    for (const CompassLine& line : book)
        known.insert(cellsOf(line));
    std::size_t added = 0;
    for (const CompassLine& line : lines) {
        if (book.size() == mostCompassLines || !known.insert(cellsOf(line)).second) continue;
        book.push_back(line);
        ++added;
    }
    return added;
}

} // namespace korvel
