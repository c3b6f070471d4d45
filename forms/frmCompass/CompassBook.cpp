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

std::string placeText(const CompassLine& line)
{
    if (!line.latitude) return "";
    std::string latitude = positionForCopy(DegToDegMin(*line.latitude), Axis::Latitude);
    if (!line.longitude) return latitude;
    return latitude + " " + positionForCopy(DegToDegMin(*line.longitude), Axis::Longitude);
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

std::array<std::string, CompassFields.size()> boxesOf(const CompassLine& line)
{
    std::array<std::string, CompassFields.size()> boxes;
    const auto put = [&boxes](CompassBox which, std::size_t compass, const std::string& text) {
        boxes[static_cast<std::size_t>(which) + 2 * compass] = text;
    };
    const auto degrees = [](const PerhapsDegrees& angle) {
        return angle ? Format(*angle, "0.0###") : "";
    };
    put(CompassBox::Moment, 0, Format(dateTimeOf(line.UTC), "yyyy/mm/dd hh:mm:ss"));
    if (line.latitude) put(CompassBox::Latitude, 0, packedText(*line.latitude));
    if (line.longitude) put(CompassBox::Longitude, 0, packedText(*line.longitude));
    put(CompassBox::Body, 0, line.body);
    for (std::size_t i = 0; i < compassCount; ++i) {
        put(CompassBox::GyroBearing, i, degrees(line.readings[i].bearing));
        put(CompassBox::GyroHead, i, degrees(line.readings[i].head));
    }
    if (line.variation && line.isVariationTyped())
        put(CompassBox::Variation, 0, degrees(*line.variation));
    return boxes;
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

std::vector<std::string> rowOfAll(const CompassLineTexts& line)
{
    const auto& [gyro, standard, steering] = line.compasses;
    return {line.UTC,       line.position,      line.body,      line.trueBearing,
            line.variation, gyro.error,         standard.error, standard.deviation,
            steering.error, steering.deviation, line.observer,  line.remark};
}

std::vector<std::string> rowOfOne(const CompassLineTexts& line, CompassKind kind)
{
    const auto& compass = line.compasses[static_cast<std::size_t>(kind)];
    return {line.UTC,          line.position, line.body,     line.trueBearing,
            compass.bearing,   compass.head,  compass.error, line.variation,
            compass.deviation, line.observer, line.remark};
}

} // namespace korvel
