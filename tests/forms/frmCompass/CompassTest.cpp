// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "forms/frmCompass/CalculateCompass.h"
#include "forms/frmCompass/CompassTexts.h"

#include "forms/frmCompass/CompassBody.h"
#include "forms/frmCompass/CompassWorking.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using NavFunc113::Degrees;
using NavFunc113::Hours;

constexpr std::array<const char*, CompassFields.size()> boxNames{
    "time",         "lat",      "long",         "body",      "gyro", "gyrohead", "standard",
    "standardhead", "steering", "steeringhead", "variation", "eye",  "speed"};

CompassInput inputOf(const Golden& row)
{
    CompassInput input;
    for (const auto& [name, sign, text] : row.pairs("input")) {
        const auto box = std::ranges::find(boxNames, name);
        if (box != boxNames.end())
            input.txtCompass[static_cast<std::size_t>(box - boxNames.begin())] = text;
        else if (name == "TD") {
            input.clock = CompassClock::ShipsTime;
            input.TD = Hours(std::stod(text));
        } else if (name == "method")
            input.method = CompassMethod::Amplitude;
        else if (name == "side")
            input.side = text == "rising" ? AmplitudeSide::Rising : AmplitudeSide::Setting;
        else if (name == "horizon")
            input.horizon = text == "limb" ? AmplitudeHorizon::VisibleUpperLimb
                                           : AmplitudeHorizon::VisibleCentre;
        else
            ADD_FAILURE() << row << ": " << name;
    }
    input.usesModel = input.box(CompassBox::Variation).empty();
    return input;
}

TEST(Compass, errorsOfCompasses)
{
    for (const Golden& row : golden("compass_errors")) {
        const CompassResult result = CalculateCompass(inputOf(row));
        expectTexts(row, "shows",
                    {{"bearing", result.trueBearing},
                     {"gyro", result.errors[0]},
                     {"standard", result.errors[1]},
                     {"steering", result.errors[2]},
                     {"deviation", result.deviations[1]},
                     {"steeringdeviation", result.deviations[2]},
                     {"variation", result.variation},
                     {"head", result.trueHead},
                     {"speed", result.speedError},
                     {"rise", result.riseOrSet},
                     {"celestial", result.byHorizon[0]},
                     {"visible", result.byHorizon[1]},
                     {"notice", result.notice}});
    }
}

TEST(Compass, anErrorOfNothingHasNoSide)
{
    EXPECT_EQ(eastWestText(Degrees(-0.04)), "0.0");
    EXPECT_EQ(gyroErrorText(Degrees(0.04)), "0.0");
    EXPECT_EQ(gyroErrorText(Degrees(0.06)), "0.1 E (low)");
    EXPECT_EQ(gyroErrorText(Degrees(-0.06)), "0.1 W (high)");
}

TEST(Compass, everyBoxHasItsRange)
{
    const struct {
        CompassBox box;
        const char* name;
        double most;
        const char* range;
    } rows[] = {
        {CompassBox::Latitude, "Latitude", 90, "-90 to 90 degrees"},
        {CompassBox::Longitude, "Longitude", 180, "-180 to 180 degrees"},
        {CompassBox::GyroBearing, "Bearing by gyro", 360, "0 to 360 degrees"},
        {CompassBox::GyroHead, "Head by gyro", 360, "0 to 360 degrees"},
        {CompassBox::StandardBearing, "Bearing by standard compass", 360, "0 to 360 degrees"},
        {CompassBox::StandardHead, "Head by standard compass", 360, "0 to 360 degrees"},
        {CompassBox::SteeringBearing, "Bearing by steering compass", 360, "0 to 360 degrees"},
        {CompassBox::SteeringHead, "Head by steering compass", 360, "0 to 360 degrees"},
        {CompassBox::Variation, "Variation", 180, "-180 to 180"},
        {CompassBox::HeightOfEye, "Height of eye", 200, "0 to 200 metres"},
        {CompassBox::Speed, "Ship's speed", 100, "0 to 100 knots"},
    };
    for (const auto& row : rows) {
        const auto noticeOf = [&row](double typed) {
            CompassInput input;
            input.usesModel = false;
            input.txtCompass[static_cast<std::size_t>(row.box)] = Format(typed, "0.###");
            return CalculateCompass(input).notice;
        };
        const double least = row.range[0] == '-' ? -row.most : 0;
        for (const double typed : {least, row.most})
            EXPECT_EQ(noticeOf(typed), "") << row.name << " " << typed;
        for (const double typed : {least - 0.1, row.most + 0.1})
            EXPECT_EQ(noticeOf(typed), std::string(row.name) + ": not within " + row.range)
                << typed;
    }
}

TEST(Compass, aBearingIsWorthLittleBeyondItsLimits)
{
    const auto said = [](double altitude, double change) {
        Remarks remarks;
        judgeBearing(almanac::Body::Sun, {Degrees(90), Degrees(altitude), Degrees(change)},
                     remarks);
        return remarks.text();
    };
    EXPECT_EQ(said(60, 0.5), "");
    EXPECT_EQ(said(-1.5, -0.5), "");
    EXPECT_EQ(said(60.05, 0), "The Sun stands at 60°03.0', above 60°: the bearing is worth little");
    EXPECT_EQ(said(0, 0.55), "The bearing changes by 0.6° a minute: it is worth little");
    EXPECT_EQ(said(0, -0.55), said(0, 0.55));
    EXPECT_EQ(said(-1.55, 0), "The Sun is below the horizon, at -1°33.0'");
}

// At the time that was found for an amplitude the azimuth says the same, with every horizon, in
// both hemispheres, on both sides; and a minute later it has changed by what was said.
TEST(Compass, amplitudeAndAzimuthAgreeAtTheTimeFound)
{
    for (const char* latitude : {"55.30", "-40.15", "0.20"})
        for (const auto side : {AmplitudeSide::Rising, AmplitudeSide::Setting})
            for (const auto horizon : {AmplitudeHorizon::Celestial, AmplitudeHorizon::VisibleCentre,
                                       AmplitudeHorizon::VisibleUpperLimb}) {
                CompassInput input;
                input.txtCompass = {"2026/5/3 12:00", latitude, "178.30", "Sun"};
                input.txtCompass[static_cast<std::size_t>(CompassBox::HeightOfEye)] = "20";
                input.method = CompassMethod::Amplitude;
                input.horizon = horizon;
                input.side = side;
                const auto found = CalculateCompass(input).crossing;
                ASSERT_TRUE(found) << latitude;
                EXPECT_EQ(found->rising, side == AmplitudeSide::Rising);
                const almanac::Observer eye{
                    *CalculateCompass(input).latitude, *CalculateCompass(input).longitude, {}};
                const auto azimuthAt = [&](double minutes) {
                    const double at = found->instant + minutes / 1440;
                    return azimuthOf(almanac::Sky(at).place(almanac::Body::Sun), eye);
                };
                const almanac::Place place = almanac::Sky(found->instant).place(almanac::Body::Sun);
                const auto there =
                    amplitudeOf(place, eye.latitude, azimuthAt(0).altitude, found->rising);
                ASSERT_TRUE(there);
                EXPECT_NEAR(there->bearing.value(), azimuthAt(0).bearing.value(), 1e-6);
                EXPECT_NEAR(there->change.value(),
                            (azimuthAt(0.5).bearing - azimuthAt(-0.5).bearing).value(), 0.002);
            }
}

TEST(Compass, nearTheZenithTheBearingTurnsFastInTheZenithByHalfATurn)
{
    using NavFunc113::Degrees;
    const almanac::Place body{Degrees(0), Degrees(20), {}, {}, {}};
    const auto changeFrom = [&](double latitude) {
        return azimuthOf(body, {Degrees(latitude), Degrees(0), {}}).change;
    };
    EXPECT_EQ(fabs(changeFrom(20)), NavFunc113::halfTurn);
    EXPECT_NEAR(fabs(changeFrom(20.5)).value(), 26.9, 0.2) << "0.25° cos d / sin z";
}

TEST(CompassWorking, aFigureGoesOnceRoundWhereTheResultDoes)
{
    using NavFunc113::Degrees;
    for (const auto& [sum, turn] :
         {std::pair{-0.1, " + 360"}, {0.0, ""}, {359.9, ""}, {360.0, " - 360"}})
        EXPECT_EQ(turnToCircle(Degrees(sum)), turn) << sum;
    for (const auto& [apart, turn] :
         {std::pair{-180.1, " + 360"}, {-180.0, ""}, {179.9, ""}, {180.0, " - 360"}})
        EXPECT_EQ(turnToHalf(Degrees(apart)), turn) << apart;
}

} // namespace
} // namespace korvel
