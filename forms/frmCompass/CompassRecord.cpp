// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassRecord.h"

#include "app/reading/Utf8.h"
#include "app/records/DelimitedText.h"
#include "app/records/KeyedLines.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace korvel
{
namespace
{

using PerhapsAngle = std::optional<NavFunc113::Degrees>;

constexpr std::string_view bookKind = "KORVEL2000 compass book ";
constexpr std::string_view bookVersion = "1";

struct LineText {
    std::string_view key;
    std::string CompassLine::*text;
};
constexpr std::array lineTexts{
    LineText{"body", &CompassLine::body},
    LineText{"source", &CompassLine::variationSource},
    LineText{"observer", &CompassLine::observer},
    LineText{"remark", &CompassLine::remark},
};

struct LineAngle {
    std::string_view key;
    PerhapsAngle CompassLine::*angle;
    double most; ///< either way
};
constexpr std::array lineAngles{
    LineAngle{"latitude", &CompassLine::latitude, 90},
    LineAngle{"longitude", &CompassLine::longitude, 180},
    LineAngle{"true", &CompassLine::trueBearing, 360},
    LineAngle{"variation", &CompassLine::variation, 180},
};

struct ReadingAngle {
    std::string_view key;
    PerhapsAngle CompassReading::*angle;
};
constexpr std::array readingAngles{
    ReadingAngle{"bearing", &CompassReading::bearing},
    ReadingAngle{"head", &CompassReading::head},
    ReadingAngle{"error", &CompassReading::error},
    ReadingAngle{"deviation", &CompassReading::deviation},
};

// By CompassKind.
constexpr std::array<std::string_view, compassCount> compassKeys{"gyro ", "standard ", "steering "};

std::string shortestText(const PerhapsAngle& angle)
{
    if (!angle) return "";
    std::array<char, 400> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), angle->value(),
                                   std::chars_format::fixed);
    return {digits.data(), end.ptr};
}

/// Takes the lines of a book one by one.
class BookLines
{
public:
    explicit BookLines(ReadCompassBook& read) : m_read(read) {}

    void take(std::string_view text, int number)
    {
        if (text == "line") return openLine(number);
        const std::size_t sign = text.find('=');
        if (sign == std::string_view::npos || !isUtf8(text))
            return damage(number, "it cannot be read");
        if (!m_isOpen || m_isBeyond) return;
        takeValue(text.substr(0, sign), unescapedLine(text.substr(sign + 1)), number);
    }

    /// Ends the line in hand.
    void close()
    {
        if (m_isOpen && !m_isBeyond && !m_hasTime) {
            m_read.book.pop_back();
            damage(m_openedAt, "an observation without a time");
        }
        m_isOpen = false;
    }

private:
    void damage(int number, const std::string& what)
    {
        if (m_read.damage.empty()) m_read.damage = "line " + std::to_string(number) + ": " + what;
    }

    void openLine(int number)
    {
        close();
        m_isOpen = true;
        m_hasTime = false;
        m_openedAt = number;
        m_isBeyond = m_read.book.size() == mostCompassLines;
        if (m_isBeyond)
            damage(number, "more than " + std::to_string(mostCompassLines) + " lines");
        else
            m_read.book.emplace_back();
    }

    void takeValue(std::string_view key, const std::string& value, int number)
    {
        CompassLine& line = m_read.book.back();
        const auto text = std::ranges::find(lineTexts, key, &LineText::key);
        if (text != lineTexts.end()) line.*(text->text) = value;
        const auto angle = std::ranges::find(lineAngles, key, &LineAngle::key);
        if (angle != lineAngles.end()) line.*(angle->angle) = angleOf(value, angle->most, number);
        if (key == "utc") takeTime(value, number);
        if (key == "method" && value == "amplitude") line.method = CompassMethod::Amplitude;
        for (std::size_t i = 0; i < compassCount; ++i)
            if (key.starts_with(compassKeys[i]))
                takeReading(line.readings[i], key.substr(compassKeys[i].size()), value, number);
    }

    void takeTime(const std::string& value, int number)
    {
        const auto instant = readIso(value);
        if (!instant) return damage(number, "no time");
        m_read.book.back().UTC = *instant;
        m_hasTime = true;
    }

    void takeReading(CompassReading& reading, std::string_view key, const std::string& value,
                     int number)
    {
        const auto angle = std::ranges::find(readingAngles, key, &ReadingAngle::key);
        if (angle != readingAngles.end()) reading.*(angle->angle) = angleOf(value, 360, number);
        if (key == "by" && value == "heads") reading.byHeads = true;
    }

    PerhapsAngle angleOf(const std::string& value, double most, int number)
    {
        const auto angle = wholeNumber(value);
        if (angle && std::fabs(*angle) <= most) return NavFunc113::Degrees(*angle);
        damage(number, "no angle within " + std::to_string(static_cast<int>(most)));
        return std::nullopt;
    }

    ReadCompassBook& m_read;
    bool m_isOpen = false;
    bool m_isBeyond = false; ///< the line in hand is one too many
    bool m_hasTime = false;
    int m_openedAt{};
};

} // namespace

std::string compassBookText(const CompassBook& book)
{
    std::string text = std::string(bookKind) + std::string(bookVersion) + "\n";
    for (const CompassLine& line : book) {
        text += "line\n";
        addKeyedLine(text, "utc", isoText(line.UTC));
        for (const LineText& each : lineTexts)
            addKeyedLine(text, each.key, line.*(each.text));
        if (line.method == CompassMethod::Amplitude) addKeyedLine(text, "method", "amplitude");
        for (const LineAngle& each : lineAngles)
            addKeyedLine(text, each.key, shortestText(line.*(each.angle)));
        for (std::size_t i = 0; i < compassCount; ++i) {
            const std::string compass(compassKeys[i]);
            for (const ReadingAngle& each : readingAngles)
                addKeyedLine(text, compass + std::string(each.key),
                             shortestText(line.readings[i].*(each.angle)));
            addKeyedLine(text, compass + "by", line.readings[i].byHeads ? "heads" : "");
        }
    }
    return text;
}

ReadCompassBook readCompassBook(std::string_view text)
{
    ReadCompassBook read;
    if (!text.starts_with(bookKind)) return {{}, "line 1: it is no compass book", false};
    BookLines lines(read);
    int number = 0;
    for (const std::string_view line : recordLines(text))
        if (++number > 1 && !line.empty()) lines.take(line, number);
    lines.close();
    return read;
}

} // namespace korvel
