// SPDX-License-Identifier: MIT
#include "forms/frmSky/pages/AlmanacSheets.h"

#include "almanac/bodies.h"
#include "almanac/daily_page.h"
#include "almanac/magnitudes.h"
#include "almanac/page_cells.h"
#include "almanac/sky.h"
#include "app/reading/Format.h"
#include "navlib/datetime.h"

#include <gmock/gmock.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

namespace korvel
{
namespace
{

struct Word {
    QRectF room;
    std::string text;
};

/// Takes what is drawn instead of drawing it.
struct Drawn {
    std::vector<Word> words;
    std::vector<QLineF> rules;
};

class Recorder : public QPaintEngine
{
public:
    Recorder() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawPath(const QPainterPath&) override {}
    void drawLines(const QLineF* lines, int count) override
    {
        drawn.rules.insert(drawn.rules.end(), lines, lines + count);
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override
    {
        drawn.words.push_back({{at.x(), at.y() - item.ascent(), item.width(), item.ascent()},
                               item.text().toStdString()});
    }
    Type type() const override { return User; }

    Drawn drawn;
};

class Paper : public QImage
{
public:
    Paper() : QImage(1240, 1754, QImage::Format_RGB32) {} // A4 in 150 dots to the inch
    QPaintEngine* paintEngine() const override { return &recorder; }
    mutable Recorder recorder;
};

/// Words of a line from left to right.
std::map<int, std::vector<Word>> linesOf(std::vector<Word> words)
{
    std::map<int, std::vector<Word>> lines;
    std::ranges::sort(words, {}, [](const Word& word) { return word.room.x(); });
    for (const Word& word : words)
        lines[static_cast<int>(std::lround(word.room.bottom()))].push_back(word);
    return lines;
}

/// Where a line has these words one after the other, others between them; -1 where none has.
int lineWith(const std::map<int, std::vector<Word>>& lines, const std::vector<std::string>& words)
{
    for (const auto& [y, line] : lines) {
        std::size_t found = 0;
        for (const Word& word : line)
            found += found < words.size() && word.text == words[found];
        if (found == words.size()) return y;
    }
    return -1;
}

void expectOrdered(const std::map<int, std::vector<Word>>& lines,
                   const std::vector<std::vector<std::string>>& rows)
{
    int last = 0;
    for (const auto& row : rows) {
        const int at = lineWith(lines, row);
        EXPECT_GT(at, last) << ::testing::PrintToString(row);
        last = at;
    }
}

/// Nothing stands on anything else or off the sheet.
void expectReadable(const Drawn& drawn, const QRect& room)
{
    for (std::size_t i = 0; i < drawn.words.size(); ++i) {
        const Word& word = drawn.words[i];
        if (word.text.empty()) continue;
        EXPECT_TRUE(QRectF(room).adjusted(-2, -2, 2, 2).contains(word.room)) << word.text;
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(!drawn.words[j].text.empty() &&
                         word.room.adjusted(1, 1, -1, -1).intersects(drawn.words[j].room))
                << word.text << " on " << drawn.words[j].text;
    }
    for (const QLineF& rule : drawn.rules) {
        EXPECT_EQ(rule.y1(), rule.y2()) << "rules lie level";
        for (const Word& word : drawn.words)
            EXPECT_FALSE(!word.text.empty() &&
                         std::fabs(word.room.center().y() - rule.y1()) < word.room.height() / 3 &&
                         word.room.right() > rule.x1() && word.room.left() < rule.x2())
                << word.text << " struck through";
    }
}

/// Whether a rule from the left edge lies between two lines.
bool isRuledBetween(const Drawn& drawn, int above, int below)
{
    return std::ranges::any_of(drawn.rules, [&](const QLineF& rule) {
        return rule.y1() > above && rule.y1() < below && rule.x1() < 60;
    });
}

class frmSkySheetsTest : public ::testing::Test
{
protected:
    Drawn drawnSheet(int sheet) const
    {
        Paper paper;
        QPainter painter(&paper);
        painter.setFont(QFont());
        drawAlmanacSheet(painter, room, page, sheet);
        painter.end();
        return paper.recorder.drawn;
    }

    const QRect room{40, 40, 1160, 1674};
    const almanac::DailyPage page = almanac::makeDailyPage(46348); // 2026 November 22
};

std::string twoFigures(std::size_t number)
{
    return std::to_string(100 + number).substr(1);
}

TEST_F(frmSkySheetsTest, starsAndPlanetsStandInTheirRows)
{
    using namespace almanac;
    const Drawn drawn = drawnSheet(0);
    const auto lines = linesOf(drawn.words);
    expectReadable(drawn, room);
    EXPECT_GT(lineWith(lines, {datesText(page.firstDay, pageDays), "Aries, planets, stars"}), 0);
    EXPECT_GT(lineWith(lines, {"Aries", "Venus", "Mars", "Jupiter", "Saturn",
                               "Stars, noon of the middle day"}),
              0);
    EXPECT_GT(lineWith(lines, {"GHA", "GHA", "Dec", "GHA", "Dec", "GHA", "Dec", "GHA", "Dec",
                               "Name", "SHA", "Dec"}),
              0);
    std::vector<std::vector<std::string>> rows;
    for (std::size_t i = 0; i < page.hours.size(); ++i) {
        const PageHour& hour = page.hours[i];
        std::vector<std::string> row;
        if (i % 24 == 0) row.push_back(weekdayText(hour.ut));
        if (i % 24 == 1) row.push_back(std::to_string(22 + i / 24));
        row.push_back(twoFigures(i % 24));
        row.push_back(turnCell(hour.ghaAries));
        for (std::size_t planet = 2; planet < wanderers; ++planet) {
            row.push_back(turnCell(hour.places[planet].gha));
            row.push_back(declinationCell(hour.places[planet].declination));
        }
        rows.push_back(row);
        if (i == 0) continue;
        EXPECT_EQ(isRuledBetween(drawn, lineWith(lines, rows[i - 1]), lineWith(lines, row) - 8),
                  i % 24 == 0)
            << i;
    }
    expectOrdered(lines, rows);
    rows.clear();
    for (const PageStar& star : page.stars) {
        const BodyEntry& entry = entryOf(star.body);
        std::vector<std::string> row;
        if (entry.number > 0) row.push_back(std::to_string(entry.number));
        row.insert(row.end(), {std::string(entry.name), turnCell(star.sha),
                               declinationCell(star.declination)});
        rows.push_back(row);
    }
    rows.push_back({"Planets, middle day"});
    rows.push_back({"Mag.", "SHA", "Pass.", "HP′", "v′", "d′"});
    rows.push_back({"Aries", clockCell(std::optional(page.ariesPassage))});
    for (const PagePlanet& planet : page.planets)
        rows.push_back({std::string(entryOf(planet.body).name),
                        tenthsCell(*magnitudeOf(planet.body, Sky(page.firstDay + 1.5)), 0),
                        turnCell(planet.sha), clockCell(planet.passage),
                        minutesCell(planet.horizontalParallax, 0), minutesCell(planet.excess, 0),
                        minutesCell(planet.change, 0)});
    expectOrdered(lines, rows);
}

TEST_F(frmSkySheetsTest, sunMoonAndTimesStandInTheirRows)
{
    using namespace almanac;
    const Drawn drawn = drawnSheet(1);
    const auto lines = linesOf(drawn.words);
    expectReadable(drawn, room);
    EXPECT_GT(lineWith(lines, {datesText(page.firstDay, pageDays), "Sun, Moon, twilight"}), 0);
    EXPECT_GT(lineWith(lines, {"Sun", "Moon", "Moonrise"}), 0);
    EXPECT_GT(lineWith(lines, {"GHA", "Dec", "GHA", "v′", "Dec", "d′", "HP′", "Lat.", "Naut.",
                               "Civil", "Sunrise", "22", "23", "24", "25"}),
              0);
    std::vector<std::vector<std::string>> rows;
    for (std::size_t i = 0; i < page.hours.size(); ++i) {
        const PageHour& hour = page.hours[i];
        const Place &sun = hour.places[0], &moon = hour.places[1];
        rows.push_back({twoFigures(i % 24), turnCell(sun.gha), declinationCell(sun.declination),
                        turnCell(moon.gha), minutesCell(hour.moonExcess, 0),
                        declinationCell(moon.declination), minutesCell(hour.moonChange, 0),
                        minutesCell(moon.horizontalParallax, 0)});
    }
    expectOrdered(lines, rows);
    rows.clear();
    const auto latitudeText = [](const PageLatitude& row) {
        const double degrees = row.latitude.value();
        return degrees == 0 ? std::string("0")
                            : (degrees > 0 ? "N " : "S ") +
                                  twoFigures(static_cast<std::size_t>(std::fabs(degrees)));
    };
    const auto add = [&](const PageLatitude& row, std::initializer_list<PageTime> sun,
                         const auto& moon) {
        rows.push_back({latitudeText(row)});
        for (const PageTime& time : sun)
            rows.back().push_back(clockCell(time));
        for (const PageTime& time : moon)
            rows.back().push_back(clockCell(time));
    };
    for (const PageLatitude& row : page.latitudes)
        add(row, {row.nauticalDawn, row.civilDawn, row.sunrise}, row.moonrise);
    rows.push_back({"Moonset"});
    rows.push_back({"Lat.", "Sunset", "Civil", "Naut.", "22", "23", "24", "25"});
    for (const PageLatitude& row : page.latitudes)
        add(row, {row.sunset, row.civilDusk, row.nauticalDusk}, row.moonset);
    rows.push_back({"Equation of time", "Passage", "Moon"});
    rows.push_back({"Day", "00h", "12h", "Sun", "Moon", "lower", "age", "lit %", "SD′"});
    for (const PageDay& day : page.days)
        rows.push_back({std::to_string(NavFunc113::DateOf(day.date).day),
                        equationCell(day.sunExcess[0]), equationCell(day.sunExcess[1]),
                        clockCell(std::optional(day.sunPassage)), clockCell(day.moonUpper),
                        clockCell(day.moonLower), Format(day.moon.age, "0.0"),
                        Format(100 * day.moon.lit, "0"), minutesCell(day.moonSemiDiameter, 0)});
    expectOrdered(lines, rows);
    const auto has = [&](const std::string& part) {
        return std::ranges::any_of(drawn.words, [&](const Word& word) {
            return word.text.find(part) != std::string::npos;
        });
    };
    EXPECT_TRUE(has("Sun: SD " + minutesCell(page.sunSemiDiameter, 0) + "′, d " +
                    minutesCell(page.sunChange, 0)));
    EXPECT_TRUE(has("Rise, set and twilight: local mean time"));
    EXPECT_TRUE(has("UT taken as UTC; Delta T " + tenthsCell(page.deltaT.seconds, 0) + " s"));
}

} // namespace
} // namespace korvel
