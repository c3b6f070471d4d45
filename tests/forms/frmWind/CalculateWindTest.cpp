// SPDX-License-Identifier: MIT
#include "forms/frmWind/CalculateWind.h"

#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::Knots;

using namespace korvel::testing;

TEST(CalculateWind, textsOfTheTrueWind)
{
    for (const Golden& row : golden("true_winds")) {
        const WindResult wind = CalculateWind(
            {row.text("course"), row.text("speed"), row.text("relative"), row.text("apparent")});
        expectTexts(row, "shows",
                    {{"from", wind.lblWind[0]},
                     {"force", wind.lblWind[1]},
                     {"picture", wind.figures ? "wind" : "rings"},
                     {"notice", wind.notice}});
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
    for (const Golden& row : golden("wind_rings")) {
        WindFigures wind;
        wind.apparentSpeed = row.knots("apparent");
        const WindPicture picture = pictureOfWind(wind, WindOrientation::HeadUp, row.knots("held"));
        EXPECT_EQ(picture.rings.back(), row.knots("radius")) << row;
        EXPECT_GT(picture.scale.top, row.number("radius")) << row;
    }
}

TEST(WindPicture, pointerSetsTheRelativeWind)
{
    for (const Golden& row : golden("wind_pointers")) {
        const auto up = row.tick("northUp") ? WindOrientation::NorthUp : WindOrientation::HeadUp;
        const WindPointer pointer =
            windAt({row.number("x"), row.number("y")}, up, row.degrees("course"));
        EXPECT_EQ(pointer.text, row.text("text")) << row;
        EXPECT_EQ(pointer.relative, row.text("relative")) << row;
        EXPECT_EQ(pointer.apparentSpeed, row.text("apparent")) << row;
    }
}

} // namespace
} // namespace korvel
