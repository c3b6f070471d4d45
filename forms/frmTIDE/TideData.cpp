// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/TideData.h"

#include "forms/frmTIDE/DataFile.h"
#include "forms/frmTIDE/DelimitedFields.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <system_error>
#include <vector>

namespace korvel
{
namespace
{

using std::filesystem::path;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t lineLength = factorsLineLength;
constexpr std::size_t charactersOfLine = lineLength - 2;

std::string faultText(const std::string& file, std::int64_t line, int field,
                      const std::string& trouble)
{
    std::string text = file;
    if (line > 0) text += ", line " + std::to_string(line);
    if (field > 0) text += ", field " + std::to_string(field);
    return text + ": " + trouble;
}

std::string nameOf(const std::string& file)
{
    return path(file).filename().string();
}

std::string wholeFile(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// Called when a line is not where its number says: finds the line that is to blame, which may lie
// long before the one wanted.
[[noreturn]] void refuseLayout(const std::string& file, std::int64_t lineWanted)
{
    const std::string content = wholeFile(file);
    if (content.starts_with(byteOrderMark))
        throw TideDataFault(nameOf(file), 1, 1,
                            "the file begins with a byte-order mark. Save it without one: its "
                            "lines are found by their byte positions.");
    std::int64_t line = 0;
    for (std::size_t start = 0; start < content.size(); ++line) {
        const std::size_t end = std::min(content.find('\n', start), content.size());
        const bool carriageReturn = end > start && content[end - 1] == '\r';
        const std::size_t characters = end - start - (carriageReturn ? 1 : 0);
        const bool last = end == content.size();
        if (!last && !carriageReturn)
            throw TideDataFault(nameOf(file), line + 1, 0,
                                "the line ends with LF alone. Every line must be 44 characters and "
                                "CR LF: lines are found by their byte positions.");
        if (characters != charactersOfLine && !(last && characters == 0))
            throw TideDataFault(nameOf(file), line + 1, 0,
                                "the line has " + std::to_string(characters) +
                                    " characters, not 44.");
        start = end + 1;
    }
    throw TideDataFault(nameOf(file), lineWanted, 0,
                        "the line is missing: the file ends with line " + std::to_string(line) +
                            ".");
}

NavFunc113::DailyFactors factorsOfLine(const std::string& file, std::string_view text,
                                       std::int64_t line)
{
    FieldReader reader(file, text, line);
    reader.number(); // the day key: the line's position says which day it is
    NavFunc113::DailyFactors factors;
    for (NavFunc113::DailyFactor& factor : factors) {
        factor.angle = NavFunc113::Degrees(reader.number());
        factor.factor = reader.number();
    }
    if (!reader.atEnd())
        throw TideDataFault(nameOf(file), line, 10, "the line has more than nine fields.");
    return factors;
}

bool isWholeLine(std::string_view bytes, bool lastOfFile)
{
    if (bytes.size() < charactersOfLine) return false;
    const std::string_view end = bytes.substr(charactersOfLine);
    const bool ended = end == "\r\n" || (lastOfFile && (end.empty() || end == "\r"));
    return ended && bytes.substr(0, charactersOfLine).find_first_of("\r\n") == bytes.npos;
}

constexpr std::string_view tideLayout =
    "one line of 27 fields with commas between them: title; zone time (hours, east positive); mean "
    "level above chart datum (m); phase (degrees, zone time) and amplitude (m) of M2, S2, K1 and "
    "O1 in pairs; phase and coefficient of the quarter-diurnal and of the sixth-diurnal term (0 "
    "when unknown); correction of the mean level for January to December (m).";
constexpr std::string_view streamLayout =
    "one line of 16 fields with commas between them: title; zone time (hours, east positive); mean "
    "stream (knots, flood positive); phase (degrees, zone time) and rate (knots) of M2, S2, K1 and "
    "O1 in pairs; phase and coefficient of the quarter-diurnal and of the sixth-diurnal term (0 "
    "when unknown); direction of the flood stream (degrees true).";

// A station's fields are some two hundred bytes; what follows them is never read.
using StationBytes = std::array<char, 4096>;

// Nothing when the file cannot be opened.
std::optional<std::string_view> contentOf(const std::string& path, StationBytes& bytes)
{
    const DataFile file(path);
    if (!file.isOpen()) return std::nullopt;
    std::string_view content(bytes.data(), file.read(bytes.data(), bytes.size(), 0));
    if (content.starts_with(byteOrderMark)) content.remove_prefix(byteOrderMark.size());
    return content;
}

[[noreturn]] void refuseStation(const std::string& path, const std::string& reason,
                                std::string_view layout)
{
    std::error_code unreadable;
    if (std::filesystem::exists(path, unreadable))
        throw TideDataFault("Harmonic Constants/" + nameOf(path), 0, 0,
                            "the file cannot be opened.");
    throw TideDataFault("Harmonic Constants/" + nameOf(path), 0, 0,
                        "there is no such file, and nothing is shown for this station" +
                            (reason.empty() ? "." : " (" + reason + ").") +
                            " A file made from the ship's own tables and put there is used at "
                            "once. It holds " +
                            std::string(layout));
}

// Fields 1 to 15, which both kinds of station have.
TideStation commonFields(FieldReader& reader)
{
    TideStation station;
    station.title = reader.text();
    station.zone = NavFunc113::Hours(reader.number());
    station.meanLevel = reader.number();
    for (NavFunc113::TideConstituent& constituent : station.constituents) {
        constituent.phase = NavFunc113::Degrees(reader.number());
        constituent.amplitude = reader.number();
    }
    station.shallowWater.quarterPhase = NavFunc113::Degrees(reader.number());
    station.shallowWater.quarterCoefficient = reader.number();
    station.shallowWater.sixthPhase = NavFunc113::Degrees(reader.number());
    station.shallowWater.sixthCoefficient = reader.number();
    return station;
}

// Joined as texts: a place is a name, never more path.
std::string stationPath(const path& programFolder, std::string_view place, std::string_view ending)
{
    std::string file = programFolder.native();
    return file.append("/Harmonic Constants/HC_").append(place).append(ending);
}

} // namespace

TideDataFault::TideDataFault(const std::string& faultyFile, std::int64_t faultyLine,
                             int faultyField, const std::string& trouble)
    : std::runtime_error(faultText(faultyFile, faultyLine, faultyField, trouble)), file(faultyFile),
      line(faultyLine), field(faultyField)
{
}

std::string factorsFilePath(const path& programFolder)
{
    return programFolder.native() + "/AF2005.txt";
}

std::string tideFilePath(const path& programFolder, std::string_view place)
{
    return stationPath(programFolder, place, ".txt");
}

std::string streamFilePath(const path& programFolder, std::string_view place)
{
    return stationPath(programFolder, place, "_.txt");
}

DaysFactors readDaysFactors(const path& programFolder, std::int64_t dayNumber)
{
    const std::string path = factorsFilePath(programFolder);
    const DataFile file(path);
    if (!file.isOpen()) {
        throw TideDataFault(nameOf(path), 0, 0,
                            "the file of the astronomical factors is missing or cannot be opened. "
                            "It belongs beside the program.");
    }
    const std::int64_t line = dayNumber + 1;
    if (dayNumber < 0) throw TideDataFault(nameOf(path), 1, 0, "it begins with 2002/10/1.");

    // Byte 46 x day counted from 1 is the line end of the line before; it is read too, as proof
    // that the lines up to here have their length.
    const std::size_t before = dayNumber == 0 ? 0 : 1;
    const std::int64_t start = factorsLineLength * dayNumber - static_cast<std::int64_t>(before);
    std::array<char, 1 + 2 * lineLength> buffer;
    const std::string_view bytes(buffer.data(),
                                 file.read(buffer.data(), before + 2 * lineLength, start));
    const std::string_view lines = bytes.substr(std::min(before, bytes.size()));
    const std::string_view first = lines.substr(0, lineLength);
    const std::string_view second = lines.substr(first.size());
    if (bytes.empty() || (before == 1 && bytes[0] != '\n') || !isWholeLine(first, false) ||
        !isWholeLine(second, true) || first.starts_with(byteOrderMark))
        refuseLayout(path, lines.size() < lineLength ? line : line + 1);
    return {factorsOfLine(path, first.substr(0, charactersOfLine), line),
            factorsOfLine(path, second.substr(0, charactersOfLine), line + 1)};
}

TideStation readTideStation(const path& programFolder, const std::string& place)
{
    const std::string path = tideFilePath(programFolder, place);
    StationBytes bytes;
    const auto content = contentOf(path, bytes);
    if (!content) {
        const auto notes = readStationNotes(programFolder, place);
        refuseStation(path, notes && notes->grade == "none" ? notes->source : "", tideLayout);
    }
    FieldReader reader(path, *content, 1);
    TideStation station = commonFields(reader);
    for (double& correction : station.monthlyCorrections)
        correction = reader.number();
    return station;
}

TideStation readStreamStation(const path& programFolder, const std::string& place)
{
    const std::string path = streamFilePath(programFolder, place);
    StationBytes bytes;
    const auto content = contentOf(path, bytes);
    if (!content)
        refuseStation(path, "no open constants of streams exist for these waters", streamLayout);
    FieldReader reader(path, *content, 1);
    TideStation station = commonFields(reader);
    station.floodDirection = NavFunc113::Degrees(reader.number());
    return station;
}

std::optional<StationNotes> readStationNotes(const path& programFolder, const std::string& place)
{
    std::ifstream stream(programFolder / "stations.txt", std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with('#')) continue;
        if (line.ends_with('\r')) line.pop_back();
        std::vector<std::string> columns;
        for (std::size_t start = 0; start <= line.size();) {
            const std::size_t end = std::min(line.find('\t', start), line.size());
            columns.push_back(line.substr(start, end - start));
            start = end + 1;
        }
        columns.resize(5);
        if (columns[0] == place)
            return StationNotes{columns[1], columns[2], columns[3], columns[4]};
    }
    return std::nullopt;
}

} // namespace korvel
