// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/data/TideData.h"

#include "forms/frmTIDE/data/DelimitedFields.h"

#include <algorithm>
#include <cstdint>

namespace korvel
{
namespace
{

using Status = FileStore::Content::Status;

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

// Called when a line is not where its number says: finds the line that is to blame, which may lie
// long before the one wanted.
[[noreturn]] void refuseLayout(FileStore& files, std::int64_t lineWanted)
{
    const FileStore::Content whole = files.read(factorsFileName);
    if (whole.status != Status::Read)
        throw TideDataFault(factorsFileName, 0, 0,
                            "the file cannot be read: " + whole.reason + ".");
    const std::string& content = whole.bytes;
    if (content.starts_with(byteOrderMark))
        throw TideDataFault(factorsFileName, 1, 1,
                            "the file begins with a byte-order mark. Save it without one: its "
                            "lines are found by their byte positions.");
    std::int64_t line = 0;
    for (std::size_t start = 0; start < content.size(); ++line) {
        const std::size_t end = std::min(content.find('\n', start), content.size());
        const bool carriageReturn = end > start && content[end - 1] == '\r';
        const std::size_t characters = end - start - (carriageReturn ? 1 : 0);
        const bool last = end == content.size();
        if (!last && !carriageReturn)
            throw TideDataFault(factorsFileName, line + 1, 0,
                                "the line ends with LF alone. Every line must be 44 characters and "
                                "CR LF: lines are found by their byte positions.");
        if (characters != charactersOfLine)
            throw TideDataFault(factorsFileName, line + 1, 0,
                                "the line has " + std::to_string(characters) +
                                    " characters, not 44.");
        start = end + 1;
    }
    throw TideDataFault(factorsFileName, lineWanted, 0,
                        "the line is missing: the file ends with line " + std::to_string(line) +
                            ".");
}

NavFunc113::DailyFactors factorsOfLine(std::string_view text, std::int64_t line)
{
    FieldReader reader(factorsFileName, text, line);
    reader.number(); // the day key: the line's position says which day it is
    NavFunc113::DailyFactors factors;
    for (NavFunc113::DailyFactor& factor : factors) {
        factor.angle = NavFunc113::Degrees(reader.number());
        factor.factor = reader.number();
    }
    if (!reader.atEnd())
        throw TideDataFault(factorsFileName, line, 10, "the line has more than nine fields.");
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
constexpr std::size_t stationBytes = 4096;

std::string bytesOfStation(FileStore& files, const std::string& file, const std::string& whyMissing,
                           std::string_view layout)
{
    FileStore::Content content = files.readAt(file, 0, stationBytes);
    if (content.status == Status::Unreadable)
        throw TideDataFault(file, 0, 0, "the file cannot be read: " + content.reason + ".");
    if (content.status == Status::Missing)
        throw TideDataFault(file, 0, 0,
                            "there is no such file, and nothing is shown for this station" +
                                (whyMissing.empty() ? "." : " (" + whyMissing + ").") +
                                " A file made from the ship's own tables and put there is used at "
                                "once. It holds " +
                                std::string(layout));
    if (content.bytes.starts_with(byteOrderMark)) content.bytes.erase(0, byteOrderMark.size());
    return std::move(content.bytes);
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

} // namespace

TideDataFault::TideDataFault(const std::string& faultyFile, std::int64_t faultyLine,
                             int faultyField, const std::string& trouble)
    : std::runtime_error(faultText(faultyFile, faultyLine, faultyField, trouble)), file(faultyFile),
      line(faultyLine), field(faultyField)
{
}

std::string tideFileName(std::string_view place)
{
    return std::string("Harmonic Constants/HC_").append(place).append(".txt");
}

std::string streamFileName(std::string_view place)
{
    return std::string("Harmonic Constants/HC_").append(place).append("_.txt");
}

DaysFactors readDaysFactors(FileStore& files, std::int64_t dayNumber)
{
    const std::int64_t line = dayNumber + 1;
    if (dayNumber < 0) throw TideDataFault(factorsFileName, 1, 0, "it begins with 2002/10/1.");

    // Byte 46 x day counted from 1 is the line end of the line before; it is read too, as proof
    // that the lines up to here have their length.
    const std::size_t before = dayNumber == 0 ? 0 : 1;
    const std::int64_t start = factorsLineLength * dayNumber - static_cast<std::int64_t>(before);
    const FileStore::Content content =
        files.readAt(factorsFileName, start, before + 2 * lineLength);
    if (content.status != Status::Read)
        throw TideDataFault(factorsFileName, 0, 0,
                            "the file of the astronomical factors " +
                                (content.status == Status::Missing
                                     ? std::string("is missing")
                                     : "cannot be read: " + content.reason) +
                                ". It belongs beside the program.");
    const std::string_view bytes = content.bytes;
    const std::string_view lines = bytes.substr(std::min(before, bytes.size()));
    const std::string_view first = lines.substr(0, lineLength);
    const std::string_view second = lines.substr(first.size());
    if (bytes.empty() || (before == 1 && bytes[0] != '\n') || !isWholeLine(first, false) ||
        !isWholeLine(second, true) || first.starts_with(byteOrderMark))
        refuseLayout(files, lines.size() < lineLength ? line : line + 1);
    return {factorsOfLine(first.substr(0, charactersOfLine), line),
            factorsOfLine(second.substr(0, charactersOfLine), line + 1)};
}

std::string tideStationBytes(FileStore& files, const std::string& place,
                             const std::string& whyMissing)
{
    return bytesOfStation(files, tideFileName(place), whyMissing, tideLayout);
}

std::string streamStationBytes(FileStore& files, const std::string& place)
{
    return bytesOfStation(files, streamFileName(place), std::string(whyNoStreams), streamLayout);
}

TideStation readTideStation(FileStore& files, const std::string& place,
                            const std::string& whyMissing)
{
    const std::string bytes = tideStationBytes(files, place, whyMissing);
    FieldReader reader(tideFileName(place), bytes, 1);
    TideStation station = commonFields(reader);
    for (double& correction : station.monthlyCorrections)
        correction = reader.number();
    return station;
}

TideStation readStreamStation(FileStore& files, const std::string& place)
{
    const std::string bytes = streamStationBytes(files, place);
    FieldReader reader(streamFileName(place), bytes, 1);
    TideStation station = commonFields(reader);
    station.floodDirection = NavFunc113::Degrees(reader.number());
    return station;
}

} // namespace korvel
