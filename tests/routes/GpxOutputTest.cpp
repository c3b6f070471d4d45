// SPDX-License-Identifier: MIT
#include "routes/files/Gpx.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

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
