// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "forms/frmPassage/PlanReckoning.h"
#include "forms/frmPassage/PlanRoute.h"
#include "navlib/units.h"
#include "routes/files/Gpx.h"
#include "routes/files/RouteFiles.h"
#include "routes/files/RtzWriter.h"
#include "routes/route/Route.h"
#include "tests/forms/frmPassage/Plans.h"
#include "tests/routes/RoutesTesting.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using NavFunc113::Degrees;
using ::testing::HasSubstr;

TEST(GpxFiles, holdPointsAndKeepWhatIsNotOurs)
{
    const ReadRoute read = readRoute(wholeGpx);
    EXPECT_EQ(read.route.name, "First & last");
    EXPECT_EQ(read.route.points[0].remark, "note");
    const auto [written, remarks, fault] = writeGpx(read.route, "a program");
    EXPECT_EQ(fault, "");
    EXPECT_THAT(remarks, ::testing::IsEmpty());
    EXPECT_EQ(written, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<gpx xmlns=\"http://www.topografix.com/GPX/1/1\" version=\"1.1\" "
                       "creator=\"a program\">\n"
                       "    <rte>\n"
                       "        <name>First &amp; last</name>\n"
                       "        <rtept lat=\"35.5000000\" lon=\"139.7500000\">"
                       "<ele>2</ele>\n"
                       "            <time>2026-11-10T00:00:00Z</time>\n"
                       "            <name>A</name>\n"
                       "            <desc>note</desc><sym>Flag</sym>\n"
                       "        </rtept>\n"
                       "        <rtept lat=\"36.0000000\" lon=\"-180.0000000\"/>\n"
                       "    </rte>\n"
                       "</gpx>\n");
    EXPECT_THAT(writeRtz(read.route).remarks,
                ::testing::ElementsAre(HasSubstr("no place for what a GPX")));

    Route fast = read.route;
    fast.name.clear();
    fast.points[1].speed = NavFunc113::Knots(12);
    const WrittenRoute without = writeGpx(fast, "a program");
    EXPECT_THAT(without.bytes, HasSubstr("<name>Passage plan</name>"));
    EXPECT_THAT(without.remarks, ::testing::ElementsAre(HasSubstr("no place for speeds")));
    fast.points.resize(500, fast.points[1]);
    EXPECT_EQ(readGpx(writeGpx(fast, "x").bytes).route.points.size(), 500u);
    fast.points.resize(501, fast.points[1]);
    EXPECT_THAT(readGpx(writeGpx(fast, "x").bytes).fault, HasSubstr("more than 500 points"));
}

/// The elements that a file's first point keeps of what stands in it, declarations put in.
std::vector<std::string> keptOf(const std::string& content)
{
    const ReadRoute read = readGpx(replaced(wholeGpx, "<sym>Flag</sym>", content));
    EXPECT_EQ(read.fault, "") << content;
    std::vector<std::string> texts;
    for (const KeptPart& part : read.route.points.at(0).kept)
        texts.push_back(part.text);
    return texts;
}

TEST(GpxFiles, anElementIsKeptWithWhatItNeedsToStandAlone)
{
    const struct {
        const char *content, *kept;
    } cases[] = {
        {"<sym>a<!--b--><![CDATA[<c>]]> d</sym>", "<sym>a<!--b-->&lt;c&gt; d</sym>"},
        {"<yard:x/>", "<yard:x xmlns:yard=\"urn:a-yard\"/>"},
        {"<x yard:y=\"1\">2</x>", "<x xmlns:yard=\"urn:a-yard\" yard:y=\"1\">2</x>"},
        {"<yard:x xmlns:yard=\"urn:other\"/>", "<yard:x xmlns:yard=\"urn:other\"/>"},
        {"<x xmlns:b=\"urn:b\"><b:y/></x>", "<x xmlns:b=\"urn:b\"><b:y/></x>"},
        {"<x><b:y xmlns:b=\"urn:b&amp;c\"/></x>", "<x><b:y xmlns:b=\"urn:b&amp;c\"/></x>"},
    };
    for (const auto& each : cases)
        EXPECT_THAT(keptOf(each.content), ::testing::ElementsAre("<ele>2</ele>", each.kept));
    // The nearest declaration of a prefix holds, and those of an element that ended no longer do.
    const std::string inner =
        replaced(wholeGpx, "<rtept lat=\"35.5\"", "<rtept xmlns:yard=\"urn:i&amp;j\" lat=\"35.5\"");
    const ReadRoute read = readGpx(replaced(inner, "<rtept lat=\"36\" lon=\"-180\"/>",
                                            "<rtept lat=\"36\" lon=\"-180\"><yard:x/></rtept>"));
    const ReadRoute nearest = readGpx(replaced(inner, "<sym>", "<yard:x/><sym>"));
    ASSERT_EQ(read.fault + nearest.fault, "");
    EXPECT_EQ(read.route.points[1].kept[0].text, "<yard:x xmlns:yard=\"urn:a-yard\"/>");
    EXPECT_EQ(nearest.route.points[0].kept[1].text, "<yard:x xmlns:yard=\"urn:i&amp;j\"/>");
    // A name holds no elements: what is in them is left out, what is behind them is not.
    EXPECT_EQ(readGpx(replaced(wholeGpx, "First", "First<b>x</b>")).route.name, "First & last");
    // No XML may have these signs, and blanks of other kinds it may.
    Route odd = read.route;
    odd.name = "a\x01\x1F b\tc\nd\re\xEF\xBF\xBE\xEF\xBF\xBF";
    EXPECT_THAT(writeGpx(odd, "x").bytes, HasSubstr("<name>a b\tc\nd"));
    EXPECT_EQ(readGpx(writeGpx(odd, "x").bytes).fault, "");
}

TEST(GpxFiles, haveCirclesAsPoints)
{
    const PassagePlan plan{
        "", {}, planRows("A 41 -72 / B 41 0 co:44N / C 40 0 / D 60 179 gc:10"), {}};
    const WrittenRoute written =
        writeGpx(routeOfPlan(plan, PlanReckoning(plan, {})).route, "a program");
    EXPECT_THAT(written.remarks, ::testing::ElementsAre(HasSubstr("no circles")));
    const PlanOfRoute back = planOfRoute(readGpx(written.bytes).route, {});
    double most = 0;
    for (const PlanRow& row : back.plan.rows)
        if (row.longitude.starts_with('-')) most = std::max(most, std::stod(row.latitude));
    EXPECT_NEAR(most, 44, 1e-9);
    const double all = PlanReckoning(plan, {}).totals().distance->value();
    EXPECT_NEAR(PlanReckoning(back.plan, {}).totals().distance->value(), all, all * 2e-3);
}

TEST(GpxFiles, circlesWithoutAStepHaveAPointEverySixtyMiles)
{
    Route route;
    route.points.resize(2);
    route.points[1].longitude = NavFunc113::Degrees(-3);
    route.points[1].leg = LegKind::GreatCircle;
    const auto pointsOf = [](const std::string& bytes) {
        std::string points;
        for (const RoutePoint& point : readGpx(bytes).route.points)
            points += Format(point.longitude, "0.0#####") + (point.kept.empty() ? " " : "* ");
        return points;
    };
    EXPECT_EQ(pointsOf(writeGpx(route, "x").bytes), "0.0 -1.0* -2.0* -3.0 ");
    route.points[1].step.degrees = NavFunc113::Degrees(2);
    EXPECT_EQ(pointsOf(writeGpx(route, "x").bytes), "0.0 -2.0* -3.0 ");
    EXPECT_THAT(writeGpx(route, "x").bytes, HasSubstr("<type>point of a great circle</type>"));
}

/// Chart programs on board have read these very bytes: another blank is another file to them.
TEST(GpxOutput, theLineOfAPaperIsWrittenToTheByte)
{
    ExportLine line{ExportLine::Kind::Route,
                    "A & B <C>",
                    {{Degrees(35.5), Degrees(-122.25), "Dep."},
                     {Degrees(-0.1), Degrees(180), ""},
                     {Degrees(0), Degrees(0), "Dep."}}};
    const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<gpx xmlns=\"http://www.topografix.com/GPX/1/1\" version=\"1.1\" "
                             "creator=\"Korvel\">\n";
    EXPECT_EQ(writeGpx(line, "Korvel", 38425.40625),
              head + "    <rte>\n"
                     "        <name>A &amp; B &lt;C&gt; 2005-03-14 09:45</name>\n"
                     "        <rtept lat=\"35.5000000\" lon=\"-122.2500000\">\n"
                     "            <name>Dep. 050314-0945</name>\n"
                     "        </rtept>\n"
                     "        <rtept lat=\"-0.1000000\" lon=\"-180.0000000\">\n"
                     "            <name>WP 2 050314-0945</name>\n"
                     "        </rtept>\n"
                     "        <rtept lat=\"0.0000000\" lon=\"0.0000000\">\n"
                     "            <name>Dep. 050314-0945 no. 3</name>\n"
                     "        </rtept>\n"
                     "    </rte>\n"
                     "</gpx>\n");
    line.kind = ExportLine::Kind::Track;
    line.points.resize(1);
    line.points.front().UTC = 38425.40625;
    EXPECT_EQ(writeGpx(line, "Korvel", 38425.40625),
              head + "    <trk>\n"
                     "        <name>A &amp; B &lt;C&gt; 2005-03-14 09:45</name>\n"
                     "        <trkseg>\n"
                     "            <trkpt lat=\"35.5000000\" lon=\"-122.2500000\">\n"
                     "                <time>2005-03-14T09:45:00Z</time>\n"
                     "                <name>Dep. 050314-0945</name>\n"
                     "            </trkpt>\n"
                     "        </trkseg>\n"
                     "    </trk>\n"
                     "</gpx>\n");
}

} // namespace
} // namespace korvel
