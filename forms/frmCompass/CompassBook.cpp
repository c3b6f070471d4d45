// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassBook.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "forms/frmCompass/CompassTexts.h"
#include "navlib/angles.h"

#include <algorithm>
#include <numeric>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using PerhapsDegrees = std::optional<Degrees>;

std::string bearingText(const PerhapsDegrees& bearing)
{
    return bearing ? courseText(*bearing, "000.0") : "";
}

std::string errorText(const PerhapsDegrees& error)
{
    return error ? eastWestText(*error) : "";
}

std::string degreesFigure(const PerhapsDegrees& angle)
{
    return angle ? Format(*angle, "0.0###") : "";
}

std::string placeText(const CompassLine& line)
{
    if (!line.latitude) return "";
    std::string latitude = positionInFull(DegToDegMin(*line.latitude), Axis::Latitude);
    if (!line.longitude) return latitude;
    return latitude + " " + positionInFull(DegToDegMin(*line.longitude), Axis::Longitude);
}

} // namespace

std::optional<CompassLine> lineOf(const CompassInput& input, const CompassResult& result,
                                  std::string observer, std::string remark)
{
    CompassLine line;
    if (!result.ut || !result.body || !result.seen) return std::nullopt;
    line.UTC = instantOf(*result.ut);
    line.latitude = result.latitude;
    line.longitude = result.longitude;
    line.body = almanac::entryOf(*result.body).name;
    line.method = input.method;
    line.trueBearing = result.seen->bearing;
    if (result.magnetic) {
        line.variation = result.magnetic->variation;
        line.variationSource = result.magnetic->source;
    }
    line.readings = result.readings;
    line.observer = std::move(observer);
    line.remark = std::move(remark);
    const bool tells = line.has(CompassKind::Gyro) || line.has(CompassKind::Standard) ||
                       line.has(CompassKind::Steering);
    if (!tells) return std::nullopt;
    return line;
}

std::vector<std::size_t> compassLines(const CompassBook& book, std::optional<CompassKind> kind)
{
    std::vector<std::size_t> lines(book.size());
    std::iota(lines.begin(), lines.end(), std::size_t(0));
    if (kind) std::erase_if(lines, [&](std::size_t i) { return !book[i].has(*kind); });
    std::ranges::stable_sort(
        lines, [&](std::size_t a, std::size_t b) { return book[a].UTC > book[b].UTC; });
    return lines;
}

CompassLineTexts compassLineTexts(const CompassLine& line)
{
    CompassLineTexts texts;
    texts.UTC = minuteText(line.UTC);
    texts.position = placeText(line);
    texts.body = line.body + (line.method == CompassMethod::Amplitude ? ", amplitude" : "");
    texts.trueBearing = bearingText(line.trueBearing);
    texts.variation = errorText(line.variation);
    for (std::size_t i = 0; i < compassCount; ++i) {
        const CompassReading& reading = line.readings[i];
        texts.compasses[i] = {reading.byHeads ? "by heads" : bearingText(reading.bearing),
                              bearingText(reading.head), errorText(reading.error),
                              errorText(reading.deviation)};
    }
    texts.observer = line.observer;
    texts.remark = line.remark;
    return texts;
}

ExportTable compassList(const CompassBook& book, const std::vector<std::size_t>& lines)
{
    ExportTable list{{"utc", "lat_deg", "lon_deg", "body", "method", "true_bearing_deg",
                      "variation_deg", "variation_source"},
                     {}};
    for (const char* compass : {"gyro", "standard", "steering"})
        for (const char* figure : {"_bearing_deg", "_head_deg", "_error_deg", "_deviation_deg"})
            list.headings.push_back(std::string(compass) + figure);
    list.headings.insert(list.headings.end(), {"observer", "remark"});
    for (const std::size_t i : lines) {
        const CompassLine& line = book[i];
        std::vector<std::string> cells{isoText(line.UTC),
                                       line.latitude ? Format(*line.latitude, "0.0#####") : "",
                                       line.longitude ? Format(*line.longitude, "0.0#####") : "",
                                       line.body,
                                       line.method == CompassMethod::Amplitude ? "amplitude"
                                                                               : "azimuth",
                                       degreesFigure(line.trueBearing),
                                       degreesFigure(line.variation),
                                       line.variationSource};
        for (const CompassReading& reading : line.readings)
            for (const PerhapsDegrees& angle :
                 {reading.bearing, reading.head, reading.error, reading.deviation})
                cells.push_back(degreesFigure(angle));
        cells.insert(cells.end(), {line.observer, line.remark});
        list.rows.push_back(std::move(cells));
    }
    return list;
}

} // namespace korvel
