// SPDX-License-Identifier: MIT
#include "almanac/daily_page.h"
#include "almanac/page_cells.h"
#include "almanac/page_text.h"
#include "tests/almanac/AlmanacTesting.h"

#include <gmock/gmock.h>

#include <array>
#include <cstddef>
#include <string>

namespace almanac
{
namespace
{

using NavFunc113::Degrees;
using ::testing::HasSubstr;

Degrees minutes(double value)
{
    return Degrees(value / 60);
}

/// Figures that tell by themselves where they belong.
DailyPage madeUp()
{
    using enum PageTime::Kind;
    DailyPage page;
    const double first = instantOf("2026-12-30T00:00:00Z");
    const auto at = [&](double hours) { return PageTime{At, first + hours / 24}; };
    page.firstDay = first;
    page.deltaT = {69.184, DeltaT::Source::LeapSeconds};
    page.ariesPassage = first + 1 + (17 + 23 / 60.0) / 24;
    page.sunSemiDiameter = minutes(16.27);
    page.sunChange = minutes(-0.21);
    for (const int hour : {0, 1}) {
        PageHour row;
        row.ut = first + hour / 24.0;
        row.ghaAries = Degrees(hour == 0 ? 98.5083 : 359.9995);
        for (std::size_t i = 0; i < wanderers; ++i) {
            const auto n = static_cast<double>(i);
            row.places[i].gha = Degrees(10 * n + 10);
            row.places[i].declination = Degrees((i % 2 == 0 ? 1 : -1) * (n + 0.5));
        }
        row.places[1].horizontalParallax = minutes(57.23);
        row.moonExcess = minutes(0.21);
        row.moonChange = minutes(-12.34);
        page.hours.push_back(row);
    }
    page.planets[0] = {Body::Venus,   Degrees(319.6667), minutes(-0.41),
                       minutes(1.21), minutes(0.31),     first + 1 + (12 + 5 / 60.0) / 24};
    page.planets[3].body = Body::Saturn;
    page.planets[3].change = minutes(-0.04);
    page.stars.assign(7, {*findBody("Sirius"), Degrees(258.9667), Degrees(-16.6833)});
    page.stars.push_back({*findBody("Polaris"), Degrees(315.5), Degrees(89.35)});
    PageDay& day = page.days[0];
    day.date = first;
    day.sunExcess[0] = Degrees(-0.75);
    day.sunExcess[1] = Degrees(0.504167);
    day.sunPassage = first + (12 + 3 / 60.0) / 24;
    day.moonLower = first + 0.5 / 24;
    day.moonSemiDiameter = minutes(15.62);
    day.moon = {Degrees(170), 14.76, 0.98};
    page.days[1].date = first + 1;
    page.days[2].date = first + 2;
    const std::array<PageTime, 4> risen{at(5 / 60.0), {}, {Below, {}}, at(23.993)};
    const std::array<PageTime, 4> set{at(1), at(26), at(51), at(76)};
    page.latitudes.push_back({Degrees(72),
                              at(6.25),
                              {Twilight, {}},
                              {Above, {}},
                              {Below, {}},
                              {Above, {}},
                              {},
                              risen,
                              set});
    page.latitudes.push_back({Degrees(0), {}, {}, {}, {}, {}, {}, {}, {}});
    page.latitudes.push_back({Degrees(-5), {}, {}, {}, {}, {}, {}, {}, {}});
    return page;
}

TEST(PageText, everyFigureStandsInItsColumn)
{
    const std::string text = pageText(madeUp());
    EXPECT_THAT(text, ::testing::Not(HasSubstr("-0.0")));
    const std::string sirius = "18 Sirius          258 58.0 S 16 41.0";
    std::string twice = sirius;
    twice.append("  ").append(sirius);
    std::string threeRows = twice;
    threeRows.append("  ").append(sirius).append("\n").append(twice);
    threeRows.append("     Polaris         315 30.0 N 89 21.0\n").append(twice + "\n");
    for (const std::string& line : {
             std::string("Wed 00 |  98 30.5  30 00.0 N  2 30.0  40 00.0 S  3 30.0  50 00.0 "
                         "N  4 30.0  60 00.0 S  5 30.0"),
             std::string("    01 |   0 00.0  30 00.0 N  2 30.0  40 00.0 S  3 30.0  50 00.0 "
                         "N  4 30.0  60 00.0 S  5 30.0"),
             std::string("Aries            -      17 23"),
             std::string("Venus      319 40.0    12 05      0.3   -0.4    1.2"),
             std::string("Saturn       0 00.0    -- --      0.0    0.0    0.0"),
             threeRows,
             std::string("Wed 00 |  10 00.0 N  0 30.0  20 00.0   0.2 S  1 30.0 -12.3   57.2"),
             std::string("Sun: SD 16.3', d -0.2' of the middle day. GHA exact, not smoothed."),
             std::string("Lat.  | Nautical Civil         |     30     31      1      2 |         "
                         "Civil Nautical |     30     31      1      2"),
             std::string("N 72  |  06 15  /////   above |  00 05  -----  below  24 00 |  below  "
                         "above   ----- |  01 00  02 00  03 00  04 00"),
             std::string("   0  |  -----  -----   ----- |  -----  -----  -----  ----- |  -----  "
                         "-----   ----- |  -----  -----  -----  -----"),
             std::string("S  5  |  -----  -----   ----- |  -----  -----  -----  ----- |  -----  "
                         "-----   ----- |  -----  -----  -----  -----"),
             std::string("2026 December 30 (Wed)    -03 00  +02 01       12 03       -- --  "
                         "00 30     14.8  98%  15.6"),
             std::string("Delta T 69.2 s. UT taken as UTC."),
         })
        EXPECT_THAT(text, HasSubstr("\n" + line + "\n"));
    EXPECT_TRUE(text.starts_with("2026 December 30, 31, 2027 January 1 (Wed, Thu, Fri)\n"));
    EXPECT_EQ(declinationCell(Degrees(-0.0004)), "N  0 00.0") << "no south of nothing";
    EXPECT_EQ(datesText(instantOf("2027-01-30T00:00:00Z"), 3),
              "2027 January 30, 31, February 1 (Sat, Sun, Mon)");
}

} // namespace
} // namespace almanac
