// SPDX-License-Identifier: MIT
#include "forms/frmWind/CalculateWind.h"

#include "navlib/arithmetic_error.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::Knots;

using testing::Each;
using testing::ElementsAre;

TEST(CalculateWind, textsOfTheTrueWind)
{
    const struct {
        const char* fault;
        std::array<std::string, 4> boxes;
        const char* direction;
        const char* speed;
    } rows[] = {
        {"port side", {"0", "10", "-90", "10"}, "SW <225>", "Beaufort 4 (14.1Kn)"},
        {"calm", {"200", "12", "0", "12"}, "SSW <200>", "Beaufort 0 (0.0Kn)"},
        {"empty boxes are 0", {"", "", "", ""}, "North <000>", "Beaufort 0 (0.0Kn)"},
        {"bounds", {"360", "0", "-180", "5"}, "South <180>", "Beaufort 2 (5.0Kn)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_THAT(CalculateWind(row.boxes).lblWind, ElementsAre(row.direction, row.speed));
    }
    const std::array<std::string, 4> refused[] = {
        {"360.1", "0", "0", "1"}, {"-1", "0", "0", "1"},  {"0", "-0.1", "0", "1"},
        {"0", "0", "180.1", "1"}, {"0", "0", "0", "-1"},  {"0", "0", "0", "kn"},
        {"0", "-", "0", "1"},     {"0", "0", "-181", "1"}};
    for (const auto& boxes : refused) {
        const WindResult result = CalculateWind(boxes);
        EXPECT_THAT(result.lblWind, Each(""));
        EXPECT_FALSE(result.figures);
        EXPECT_NE(result.notice, "");
    }
    EXPECT_EQ(CalculateWind({"0", std::string(400, '9'), "0", "1"}).notice,
              "Ship's speed: too large a number");
}

TEST(WindPicture, vectorsMakeAParallelogram)
{
    for (const auto orientation : {WindOrientation::HeadUp, WindOrientation::NorthUp})
        for (const char* course : {"0", "75", "300"})
            for (const char* relative : {"-135", "-30", "10", "100"}) {
                const auto wind = CalculateWind({course, "13", relative, "22"}).figures;
                ASSERT_TRUE(wind);
                const WindPicture picture = pictureOfWind(*wind, orientation);
                EXPECT_NEAR(picture.apparentWind.x, picture.trueWind.x + picture.heading.x, 1e-4);
                EXPECT_NEAR(picture.apparentWind.y, picture.trueWind.y + picture.heading.y, 1e-4);
            }
    const WindFigures abeam{Degrees(90), Knots(10), Degrees(90), Knots(15), {}, {}};
    EXPECT_NEAR(pictureOfWind(abeam, WindOrientation::HeadUp).apparentWind.x, 15, 1e-9);
    EXPECT_NEAR(pictureOfWind(abeam, WindOrientation::NorthUp).apparentWind.y, -15, 1e-9);
    EXPECT_NEAR(pictureOfWind(abeam, WindOrientation::NorthUp).heading.x, 10, 1e-9);
}

TEST(WindPicture, ringsHoldTheStrongestAndStayWhileDragging)
{
    const struct {
        double apparent, held, radius;
    } rows[] = {{0, 0, 20},   {20, 0, 20},   {20.1, 0, 40}, {79, 0, 80},
                {81, 0, 200}, {900, 0, 200}, {5, 80, 80},   {45, 40, 40}};
    for (const auto& row : rows) {
        WindFigures wind;
        wind.apparentSpeed = Knots(row.apparent);
        const WindPicture picture = pictureOfWind(wind, WindOrientation::HeadUp, Knots(row.held));
        EXPECT_EQ(picture.rings.back(), Knots(row.radius));
        EXPECT_GT(picture.scale.top, row.radius);
    }
}

TEST(WindPicture, pointerSetsTheRelativeWind)
{
    const struct {
        WindVector place;
        WindOrientation orientation;
        double course;
        const char* text;
        const char* relative;
        const char* speed;
    } rows[] = {
        {{10, 10}, WindOrientation::HeadUp, 77, "Relative:045/14kn", "45", "14"},
        {{-10, 0}, WindOrientation::HeadUp, 77, "Relative:-090/10kn", "-90", "10"},
        {{0, 0}, WindOrientation::HeadUp, 0, "Relative:000/0kn", "0", "0"},
        {{0, 30}, WindOrientation::NorthUp, 350, "Relative:010/30kn", "10", "30"},
        {{-20, 0}, WindOrientation::NorthUp, 45, "Relative:-135/20kn", "-135", "20"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        const WindPointer pointer = windAt(row.place, row.orientation, Degrees(row.course));
        EXPECT_EQ(pointer.text, row.text);
        EXPECT_EQ(pointer.relative, row.relative);
        EXPECT_EQ(pointer.apparentSpeed, row.speed);
    }
}

} // namespace
} // namespace korvel
