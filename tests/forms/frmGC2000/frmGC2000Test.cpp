// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/frmGC2000.h"

#include "forms/frmGC2000/DrawWPs.h"
#include "forms/frmGC2000/GCPicture.h"
#include "navlib/angles.h"
#include "shell/screen/ColourScheme.h"
#include "tests/shell/PaintedTexts.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/ShellTesting.h"

#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>

// Where the lines, marks and texts of the chart stand.

namespace korvel
{
namespace
{

using namespace korvel::testing;

class GCPictureTest : public WindowTest
{
protected:
    /// The chart of a route, 1000 pixels wide.
    QImage imageOf(const char* lat1, const char* long1, const char* lat2, const char* long2)
    {
        chart = DrawWPs(CalculateGC({{lat1, long1, lat2, long2}}).route);
        picture.setColours(colours);
        picture.resize(1000, 700);
        picture.show();
        picture.setChart(chart);
        return onScreen(picture);
    }
    QPointF at(const ChartPoint& point) const
    {
        return picture.toPixel(point.longitude, point.lat);
    }

    /// How many pixels of a colour stand about a place.
    int pixelsAbout(const QImage& image, QPointF place, int reach, const QColor& colour) const
    {
        return strokesAbout(image, place, reach, colour, colours.paper);
    }

    const ColourScheme colours = ColourScheme::day();
    GCPicture picture;
    GCChart chart;
};

TEST_F(GCPictureTest, linesAndMarksStandAtTheirPlaces)
{
    const QImage image = imageOf("30", "125", "30", "-145");
    const auto& route = chart.route;
    for (std::size_t i = 0; i + 1 < route.size(); ++i) {
        const QPointF middle = (at(route[i]) + at(route[i + 1])) / 2;
        EXPECT_GT(pixelsAbout(image, middle, 2, colours.route), 3) << "leg " << i;
        EXPECT_GT(pixelsAbout(image, at(route[i]), 2, colours.marker), i == 0 ? -1 : 8);
    }
    EXPECT_GT(pixelsAbout(image, at(route.back()), 2, colours.marker), 20);
}

/// Words and figures as they are painted, on the equator and below the equator too.
TEST_F(GCPictureTest, figuresStandWhereTheyBelong)
{
    const std::array<const char*, 4> routes[] = {{"30", "124.54", "30", "-145"},
                                                 {"-30", "-145", "-30", "125"},
                                                 {"0", "-170", "0", "100"},
                                                 {"50", "-10", "60", "100"}};
    for (const auto& [lat1, long1, lat2, long2] : routes) {
        SCOPED_TRACE(lat1);
        imageOf(lat1, long1, lat2, long2);
        PaintedTexts sheet(picture.size());
        picture.render(&sheet);
        const double line = picture.fontMetrics().height();
        const QRectF area = picture.plotArea();
        int numbers = 0;
        std::set<std::string> words;
        for (const PaintedText& each : sheet.texts()) {
            const QPointF middle = each.at + QPointF(each.width, -0.7 * line) / 2;
            const auto label = [&](const std::vector<ChartLabel>& labels) {
                return std::ranges::find(labels, each.text.toStdString(), &ChartLabel::text);
            };
            const auto meridian = label(chart.meridianLabels),
                       parallel = label(chart.parallelLabels);
            if (each.at.x() < area.left() && parallel != chart.parallelLabels.end()) {
                EXPECT_NEAR(middle.y(), picture.toPixel(0, parallel->at).y(), 0.3 * line);
                EXPECT_LT(each.at.x() + each.width, area.left());
            } else if (each.at.y() > area.bottom()) {
                ASSERT_NE(meridian, chart.meridianLabels.end()) << each.text.toStdString();
                EXPECT_NEAR(middle.x(), picture.toPixel(meridian->at, 0).x(), 2);
            } else if (const auto number = each.text.toULong()) {
                const QLineF off(at(chart.route.at(number)), middle);
                EXPECT_NEAR(off.length(), 0.8 * line, 0.3 * line) << number;
                for (const ChartPoint& end : {chart.route.front(), chart.route.back()})
                    EXPECT_GE(QLineF(at(end), off.p1()).length(), line) << number;
                const bool isNorth = off.dy() < 0; // outside the bend; on the equator above it
                EXPECT_EQ(isNorth,
                          *lat1 != '-' || !area.contains(middle + 2 * off.p2() - 2 * off.p1()))
                    << number;
                ++numbers;
            } else {
                words.insert(each.text.toStdString());
            }
        }
        EXPECT_GT(numbers, 1);
        // Ticks at the edges, from the frame inwards.
        const auto hasTick = [&](QPointF from, QPointF by) {
            return std::ranges::any_of(sheet.lines(), [&](const QLineF& each) {
                return QLineF(each.p1(), from).length() < 1 &&
                       QLineF(each.p2(), from + by).length() < 1;
            });
        };
        ASSERT_GT(chart.meridianLabels.size(), 5u);
        for (const ChartLabel& each : chart.meridianLabels)
            EXPECT_TRUE(hasTick({picture.toPixel(each.at, 0).x(), area.bottom()}, {0, -line / 3}));
        for (const ChartLabel& each : chart.parallelLabels)
            EXPECT_TRUE(hasTick({area.left(), picture.toPixel(0, each.at).y()}, {line / 3, 0}));
        EXPECT_EQ(words, (std::set<std::string>{"Arrival", "Departure", "Great circle",
                                                "Rhumb line", "Waypoint"}));
    }
    picture.resize(picture.minimumSizeHint()); // the legend in two lines
    PaintedTexts narrow(picture.size());
    picture.render(&narrow);
    for (const PaintedText& each : narrow.texts())
        EXPECT_LE(each.at.x() + each.width, picture.width()) << each.text.toStdString();
}

} // namespace
} // namespace korvel
