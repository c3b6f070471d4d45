// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/BodySight.h"

#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "tests/forms/frmSunSight/WorkedSights.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace worked;
using ::testing::HasSubstr;

SightTexts bodySight(const char* body, const char* date, const char* time, const char* Hs,
                     const char* indexError, const char* eye)
{
    SightTexts texts = sight(date, time, Hs, indexError, eye);
    texts.body = body;
    return texts;
}

// source: a round of four stars of 1978 with its published fix
const SightList round1978 =
    listOf({bodySight("Capella", "1978/2/28", "12:20:26", "50.060", "0", "23"),
            bodySight("20", "1978/2/28", "12:27:17", "51.064", "0", "23"),
            bodySight("Canopus", "1978/2/28", "12:28:31", "28.512", "0", "23"),
            bodySight("Hamal", "1978/2/28", "12:33:04", "43.238", "0", "23")});
const TrackTexts track1978{"6.025", "90.400", "1978/2/28 12:30:00", "110", "16"};

TEST(BodySight, publishedRoundOfFourStars)
{
    const SightFixResult fix = CalculateFix(round1978, track1978, {}, {});
    ASSERT_TRUE(fix.fix) << fix.notice;
    EXPECT_LT(milesBetween(fix.fix->position, 6.097, 90.302), 0.5)
        << fix.latitude << fix.longitude << fix.notice;
    for (const FixLine& line : fix.lines)
        std::cout << line.body << " " << line.text << "\n";
    std::cout << fix.latitude << fix.longitude << fix.notice << fix.ellipseText << "\n";
}

} // namespace
} // namespace korvel
