// SPDX-License-Identifier: MIT
#include "forms/frmSky/pages/AlmanacSheets.h"

#include "almanac/magnitudes.h"
#include "almanac/page_cells.h"
#include "app/reading/Format.h"
#include "navlib/datetime.h"
#include "shell/machine/AsQString.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <span>

namespace korvel
{
namespace
{

using almanac::DailyPage;
using almanac::PageHour;
using almanac::Place;

/// A sheet as lines of text and columns of figures. Heights are lines, widths figures.
class Sheet
{
public:
    Sheet(QPainter& painter, const QRect& room, double wide, double high)
        : m_painter(painter), m_room(room), m_line(room.height() / high)
    {
        QFont letters = painter.font();
        constexpr double lettersOfLine = 0.82;
        letters.setPixelSize(std::max(1, static_cast<int>(m_line * lettersOfLine)));
        const double figure = widthOfFigure(letters);
        const double room1 = room.width() / wide;
        if (figure > room1)
            letters.setPixelSize(
                std::max(1, static_cast<int>(letters.pixelSize() * room1 / figure)));
        m_letters = letters;
        m_strong = letters;
        m_strong.setWeight(QFont::Bold);
        m_figure = room1;
        painter.setPen(QPen(Qt::black, 0));
    }

    enum class Side { Left, Right, Middle };

    void text(double column, double line, double width, const std::string& words,
              Side side = Side::Right, bool isStrong = false)
    {
        const QRectF cell(m_room.left() + column * m_figure, m_room.top() + line * m_line,
                          width * m_figure, m_line);
        m_painter.setFont(isStrong ? m_strong : m_letters);
        const Qt::Alignment across = side == Side::Right  ? Qt::AlignRight
                                     : side == Side::Left ? Qt::AlignLeft
                                                          : Qt::AlignHCenter;
        const Qt::Alignment place = across | Qt::AlignVCenter;
        m_painter.drawText(cell, static_cast<int>(place) | Qt::TextDontClip, asQString(words));
    }

    void rule(double column, double line, double width)
    {
        const double y = m_room.top() + line * m_line;
        m_painter.drawLine(QPointF(m_room.left() + column * m_figure, y),
                           QPointF(m_room.left() + (column + width) * m_figure, y));
    }

private:
    double widthOfFigure(const QFont& letters) const
    {
        return QFontMetricsF(letters, m_painter.device()).horizontalAdvance('0');
    }

    QPainter& m_painter;
    QRect m_room;
    double m_line;
    double m_figure{};
    QFont m_letters, m_strong;
};

using Side = Sheet::Side;

struct Column {
    const char* heading;
    double width;
};

constexpr double headLines = 3.3;   ///< above the tables
constexpr double columnHeads = 2;   ///< two lines of headings
constexpr double gapOfHours = 0.35; ///< after every six

/// Line of an hour of the page, counted from the first.
double lineOfHour(std::size_t hour)
{
    const std::size_t gaps = hour / 6;
    return static_cast<double>(hour) + gapOfHours * static_cast<double>(gaps);
}

const double hourLines = lineOfHour(almanac::pageHours) + 0.3;

void drawHead(Sheet& sheet, const DailyPage& page, double wide, const std::string& what)
{
    sheet.text(0, 0, wide, almanac::datesText(page.firstDay, almanac::pageDays), Side::Left, true);
    sheet.text(0, 0, wide, what, Side::Right, true);
    sheet.text(0, 1, wide, std::string(almanac::notOfficial), Side::Left);
    sheet.text(0, 2, wide, std::string(almanac::accuracyOfPage), Side::Left);
    const bool isAssumed = page.deltaT.source == almanac::DeltaT::Source::Assumed;
    sheet.text(0, 1, wide,
               "UT taken as UTC; Delta T " + almanac::tenthsCell(page.deltaT.seconds, 0) + " s" +
                   (isAssumed ? ", assumed" : ""),
               Side::Right);
}

/// Names of the hours; days are parted by a line.
void drawHours(Sheet& sheet, const DailyPage& page, double wide)
{
    const double top = headLines + columnHeads;
    sheet.rule(0, headLines, wide);
    sheet.rule(0, top, wide);
    for (std::size_t i = 0; i < page.hours.size(); ++i) {
        const double line = top + 0.2 + lineOfHour(i);
        const auto ofDay = i % 24;
        if (ofDay == 0 && i > 0) sheet.rule(0, line - gapOfHours / 2, wide);
        if (ofDay == 0)
            sheet.text(0, line, 4, almanac::weekdayText(page.hours[i].ut), Side::Left, true);
        if (ofDay == 1)
            sheet.text(0, line, 4, std::to_string(NavFunc113::DateOf(page.hours[i].ut).day),
                       Side::Left, true);
        sheet.text(4.2, line, 2.4, almanac::padded(static_cast<int>(ofDay), 2, '0'));
    }
    sheet.rule(0, top + 0.2 + hourLines, wide);
}

void drawPlaceHeads(Sheet& sheet, double column, const std::string& name)
{
    sheet.text(column, headLines, 19, name, Side::Middle, true);
    sheet.text(column, headLines + 1, 9, "GHA");
    sheet.text(column + 9, headLines + 1, 10, "Dec");
}

double lineOf(std::size_t hour)
{
    return headLines + columnHeads + 0.2 + lineOfHour(hour);
}

void drawPlaces(Sheet& sheet, const DailyPage& page, double column, std::size_t body)
{
    for (std::size_t i = 0; i < page.hours.size(); ++i) {
        const Place& place = page.hours[i].places[body];
        sheet.text(column, lineOf(i), 9, almanac::turnCell(place.gha));
        sheet.text(column + 9, lineOf(i), 10, almanac::declinationCell(place.declination));
    }
}

constexpr double ariesAt = 7, planetsAt = 16.5, planetWide = 19.5, starsAt = 96.5, starsEnd = 133.5;

void drawStars(Sheet& sheet, const DailyPage& page)
{
    sheet.rule(starsAt, headLines, starsEnd - starsAt);
    sheet.text(starsAt, headLines, starsEnd - starsAt, "Stars, noon of the middle day",
               Side::Middle, true);
    sheet.text(starsAt + 3, headLines + 1, 14, "Name", Side::Left);
    sheet.text(starsAt + 18, headLines + 1, 9, "SHA");
    sheet.text(starsAt + 27, headLines + 1, 10, "Dec");
    sheet.rule(starsAt, headLines + columnHeads, starsEnd - starsAt);
    double line = headLines + columnHeads + 0.2;
    for (const almanac::PageStar& star : page.stars) {
        const almanac::BodyEntry& entry = almanac::entryOf(star.body);
        if (entry.number > 0) sheet.text(starsAt, line, 2.4, std::to_string(entry.number));
        sheet.text(starsAt + 3, line, 15, std::string(entry.name), Side::Left);
        sheet.text(starsAt + 18, line, 9, almanac::turnCell(star.sha));
        sheet.text(starsAt + 27, line, 10, almanac::declinationCell(star.declination));
        line += 1;
    }
    sheet.rule(starsAt, line + 0.1, starsEnd - starsAt);
}

void drawPlanetTable(Sheet& sheet, const DailyPage& page)
{
    double line = headLines + columnHeads + 0.5 + static_cast<double>(page.stars.size()) + 1;
    const double wide = starsEnd - starsAt;
    sheet.text(starsAt, line, wide, "Planets, middle day", Side::Middle, true);
    constexpr Column columns[] = {{"", 7},    {"Mag.", 4}, {"SHA", 8.5}, {"Pass.", 6},
                                  {"HP′", 4}, {"v′", 3.7}, {"d′", 3.8}};
    const almanac::Sky noon(page.firstDay + 1.5);
    const auto row = [&](const std::vector<std::string>& cells) {
        double at = starsAt;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            sheet.text(at, line, columns[i].width, cells[i], i == 0 ? Side::Left : Side::Right);
            at += columns[i].width;
        }
        line += 1;
    };
    line += 1;
    std::vector<std::string> heads;
    for (const Column& each : columns)
        heads.emplace_back(each.heading);
    row(heads);
    sheet.rule(starsAt, line, wide);
    row({"Aries", "", "", almanac::clockCell(std::optional(page.ariesPassage))});
    for (const almanac::PagePlanet& planet : page.planets)
        row({std::string(almanac::entryOf(planet.body).name),
             almanac::tenthsCell(*almanac::magnitudeOf(planet.body, noon), 0),
             almanac::turnCell(planet.sha), almanac::clockCell(planet.passage),
             almanac::minutesCell(planet.horizontalParallax, 0),
             almanac::minutesCell(planet.excess, 0), almanac::minutesCell(planet.change, 0)});
    sheet.rule(starsAt, line + 0.1, wide);
}

void drawStarSheet(QPainter& painter, const QRect& room, const DailyPage& page)
{
    Sheet sheet(painter, room, starsEnd, headLines + columnHeads + hourLines + 1);
    drawHead(sheet, page, starsEnd, "Aries, planets, stars");
    const double wide = planetsAt + 4 * planetWide;
    drawHours(sheet, page, wide);
    sheet.text(ariesAt, headLines, 9, "Aries", Side::Right, true);
    sheet.text(ariesAt, headLines + 1, 9, "GHA");
    for (std::size_t i = 0; i < page.hours.size(); ++i)
        sheet.text(ariesAt, lineOf(i), 9, almanac::turnCell(page.hours[i].ghaAries));
    constexpr std::array names{"Venus", "Mars", "Jupiter", "Saturn"};
    for (std::size_t planet = 0; planet < names.size(); ++planet) {
        const double column = planetsAt + planetWide * static_cast<double>(planet);
        drawPlaceHeads(sheet, column, names[planet]);
        drawPlaces(sheet, page, column, planet + 2);
    }
    drawStars(sheet, page);
    drawPlanetTable(sheet, page);
}

constexpr double sunAt = 7, moonAt = 26, latitudesAt = 71, latitudesEnd = 124;

void drawMoon(Sheet& sheet, const DailyPage& page)
{
    sheet.text(moonAt, headLines, 43, "Moon", Side::Middle, true);
    constexpr Column columns[] = {{"GHA", 9}, {"v′", 6}, {"Dec", 11}, {"d′", 7}, {"HP′", 7}};
    double at = moonAt;
    for (const Column& each : columns) {
        sheet.text(at, headLines + 1, each.width, each.heading);
        at += each.width;
    }
    for (std::size_t i = 0; i < page.hours.size(); ++i) {
        const PageHour& hour = page.hours[i];
        const Place& moon = hour.places[1];
        const std::string cells[] = {
            almanac::turnCell(moon.gha), almanac::minutesCell(hour.moonExcess, 0),
            almanac::declinationCell(moon.declination), almanac::minutesCell(hour.moonChange, 0),
            almanac::minutesCell(moon.horizontalParallax, 0)};
        at = moonAt;
        for (std::size_t column = 0; column < std::size(columns); ++column) {
            sheet.text(at, lineOf(i), columns[column].width, cells[column]);
            at += columns[column].width;
        }
    }
}

std::string latitudeCell(NavFunc113::Degrees latitude)
{
    const double degrees = latitude.value();
    if (degrees == 0) return "0";
    return (degrees > 0 ? "N " : "S ") + Format(std::fabs(degrees), "00");
}

/// Times by latitude: three of the Sun and those of the Moon.
struct LatitudeBlock {
    std::array<const char*, 3> heads;
    const char* moon;
    std::array<almanac::PageTime almanac::PageLatitude::*, 3> sun;
    std::array<almanac::PageTime, almanac::pageDays + 1> almanac::PageLatitude::*times;
};

/// @return the line below it
double drawLatitudes(Sheet& sheet, const DailyPage& page, double line, const LatitudeBlock& block)
{
    constexpr double cell = 6.6, latitudeWide = 5.5;
    const double wide = latitudesEnd - latitudesAt;
    sheet.rule(latitudesAt, line, wide);
    sheet.text(latitudesAt, line + 1, 5, "Lat.", Side::Left);
    const double moonsAt = latitudesAt + latitudeWide + 3 * cell;
    sheet.text(moonsAt, line, 4 * cell, block.moon, Side::Middle, true);
    for (std::size_t i = 0; i < block.heads.size(); ++i)
        sheet.text(latitudesAt + latitudeWide + cell * static_cast<double>(i), line + 1, cell,
                   block.heads[i]);
    for (int day = 0; day <= almanac::pageDays; ++day)
        sheet.text(moonsAt + cell * day, line + 1, cell,
                   std::to_string(NavFunc113::DateOf(page.firstDay + day).day));
    line += columnHeads;
    sheet.rule(latitudesAt, line, wide);
    line += 0.2;
    for (std::size_t i = 0; i < page.latitudes.size(); ++i) {
        const almanac::PageLatitude& row = page.latitudes[i];
        sheet.text(latitudesAt, line, 4.5, latitudeCell(row.latitude), Side::Right);
        double at = latitudesAt + latitudeWide;
        for (const auto time : block.sun) {
            sheet.text(at, line, cell, almanac::clockCell(row.*time));
            at += cell;
        }
        for (const almanac::PageTime& time : row.*block.times) {
            sheet.text(at, line, cell, almanac::clockCell(time));
            at += cell;
        }
        line += 1;
    }
    return line + 0.3;
}

void drawDays(Sheet& sheet, const DailyPage& page, double line)
{
    const double wide = latitudesEnd - latitudesAt;
    sheet.rule(latitudesAt, line, wide);
    sheet.text(latitudesAt + 5, line, 16, "Equation of time", Side::Right, true);
    sheet.text(latitudesAt + 21, line, 19.5, "Passage", Side::Middle, true);
    sheet.text(latitudesAt + 41, line, 12, "Moon", Side::Middle, true);
    constexpr Column columns[] = {{"Day", 5},   {"00h", 8},    {"12h", 8},
                                  {"Sun", 6.5}, {"Moon", 6.5}, {"lower", 6.5},
                                  {"age", 4.5}, {"lit %", 4},  {"SD′", 4}};
    const auto row = [&](const std::vector<std::string>& cells) {
        double at = latitudesAt;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            sheet.text(at, line, columns[i].width, cells[i]);
            at += columns[i].width;
        }
        line += 1;
    };
    line += 1;
    std::vector<std::string> heads;
    for (const Column& each : columns)
        heads.emplace_back(each.heading);
    row(heads);
    sheet.rule(latitudesAt, line, wide);
    for (const almanac::PageDay& day : page.days)
        row({std::to_string(NavFunc113::DateOf(day.date).day),
             almanac::equationCell(day.sunExcess[0]), almanac::equationCell(day.sunExcess[1]),
             almanac::clockCell(std::optional(day.sunPassage)), almanac::clockCell(day.moonUpper),
             almanac::clockCell(day.moonLower), Format(day.moon.age, "0.0"),
             Format(100 * day.moon.lit, "0"), almanac::minutesCell(day.moonSemiDiameter, 0)});
    sheet.rule(latitudesAt, line + 0.1, wide);
}

void drawSunSheet(QPainter& painter, const QRect& room, const DailyPage& page)
{
    using almanac::PageLatitude;
    Sheet sheet(painter, room, latitudesEnd, headLines + columnHeads + hourLines + 3.5);
    drawHead(sheet, page, latitudesEnd, "Sun, Moon, twilight");
    drawHours(sheet, page, latitudesAt - 2);
    drawPlaceHeads(sheet, sunAt, "Sun");
    drawPlaces(sheet, page, sunAt, 0);
    drawMoon(sheet, page);
    double line = drawLatitudes(
        sheet, page, headLines,
        {{"Naut.", "Civil", "Sunrise"},
         "Moonrise",
         {&PageLatitude::nauticalDawn, &PageLatitude::civilDawn, &PageLatitude::sunrise},
         &PageLatitude::moonrise});
    line = drawLatitudes(
        sheet, page, line,
        {{"Sunset", "Civil", "Naut."},
         "Moonset",
         {&PageLatitude::sunset, &PageLatitude::civilDusk, &PageLatitude::nauticalDusk},
         &PageLatitude::moonset});
    drawDays(sheet, page, line);
    sheet.text(0, headLines + columnHeads + 0.3 + hourLines, latitudesAt - 2,
               "Sun: SD " + almanac::minutesCell(page.sunSemiDiameter, 0) + "′, d " +
                   almanac::minutesCell(page.sunChange, 0) +
                   "′ of the middle day; GHA exact, not smoothed",
               Side::Left);
    const double foot = headLines + columnHeads + 1.3 + hourLines;
    sheet.text(0, foot, latitudesEnd,
               "Rise, set and twilight: local mean time, Sun of the middle day. above, below: of "
               "the horizon all day (of twilight: darker all day)",
               Side::Left);
    sheet.text(0, foot + 1, latitudesEnd,
               "/////: twilight all night; -----: not on this day. Equation of time: apparent "
               "less mean time",
               Side::Left);
}

} // namespace

void drawAlmanacSheet(QPainter& painter, const QRect& room, const DailyPage& page, int sheet)
{
    painter.save();
    sheet == 0 ? drawStarSheet(painter, room, page) : drawSunSheet(painter, room, page);
    painter.restore();
}

} // namespace korvel
