// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/PredictTide.h"

#include "forms/frmTIDE/data/TideData.h"
#include "forms/frmTIDE/data/TideDates.h"
#include "forms/frmTIDE/day/DrawCurve.h"
#include "forms/frmTIDE/day/TideTables.h"
#include "tests/forms/frmTIDE/TideFolder.h"

#include <gmock/gmock.h>

#include <cmath>

namespace korvel
{
namespace
{

// A folder whose every day has a semidiurnal wave of 12 hours with its crest at 00:00, factor 1,
// and nothing else: what comes out can be worked by hand.
class PlainTide : public ::testing::Test
{
protected:
    PlainTide()
    {
        std::string factors;
        for (int day = 0; day < 1189; ++day)
            factors += "20021001,000,1.00,000,1.00,000,1.00,000,1.00\r\n";
        beside.write("AF2005.txt", factors);
    }
    void tide(const std::string& fields)
    {
        beside.write("Harmonic Constants/HC_Keling.txt", "Keling," + fields);
    }
    void stream(const std::string& fields)
    {
        beside.write("Harmonic Constants/HC_Brothers_.txt", "Brothers," + fields);
    }
    TidePrediction predict(TideKind kind, const std::string& place, const std::string& date,
                           const TidePrediction& shown = {})
    {
        const StationDays station(beside.files, kind, place, StationList(beside.files),
                                  FullConstants(beside.files));
        return station.day(TideDates::dateIn(date).value(), shown).four;
    }
    TidePrediction predictTide(const std::string& date, const TidePrediction& shown = {})
    {
        return predict(TideKind::Tide, "Keling", date, shown);
    }
    TidePrediction predictStream() { return predict(TideKind::Stream, "Brothers", "2003/03/31"); }
    TideFolder beside;
};

const std::string corrections = ",0,0,0,0,.1,.2,.3,.4,.5,.6,.7,.8,.9,1,1.1,1.2";

TEST_F(PlainTide, heightsAndTheirTexts)
{
    tide("-3.5,2,0,0,15,1.5,0,0,0,0" + corrections);
    const auto shown = predictTide("2003/11/30");
    // Crests half an hour after 00:00 and 12:00, mean level 2 and November's 1.1.
    EXPECT_EQ(shown.lblTD, "3.5hW");
    EXPECT_EQ(shown.lblTideInfo, "00.-30: 4.60m   06.-30: 1.60m");
    EXPECT_NEAR(shown.values[0], 3.1 + 1.5 * std::cos(std::acos(-1) / 12), 1e-9);
    EXPECT_THAT(shown.lblCuDirection, ::testing::ElementsAre("", ""));
    EXPECT_EQ(predictTide("2003/12/01").lblTideInfo, "00.-30: 4.70m   06.-30: 1.70m");
    EXPECT_EQ(predictTide("2003/01/31").lblTideInfo, "00.-30: 3.60m   06.-30: 0.60m");
}

TEST_F(PlainTide, twentyFourHoursAndNothingAboveTheStart)
{
    tide("9,2,0,0,0,0,0,0,345,1" + corrections); // a diurnal crest at 23:00, trough at 11:00
    EXPECT_EQ(predictTide("2003/01/31").lblTideInfo, "23.-00: 3.10m   11.-00: 1.10m");
    tide("9,2,0,0,0,0,0,0,0,1" + corrections); // at 24:00, and the same at 00:00 does not count
    EXPECT_EQ(predictTide("2003/01/31").lblTideInfo, "24.-00: 3.10m   12.-00: 1.10m");

    TidePrediction earlier;
    earlier.extremes = {3, NavFunc113::Hours(5.5), 1, NavFunc113::Hours(11.5)};
    tide("9,-4,0,0,0,0,0,0,0,0" + corrections);
    EXPECT_EQ(predictTide("2003/01/31", earlier).lblTideInfo, "05.-30: 0.00m   00.-30: -3.90m");
    EXPECT_EQ(predictTide("2003/01/31", earlier).remark,
              "No height above 0 this day: the highest is not of this day.");
}

TEST_F(PlainTide, streamsHaveDirectionsAndNoMonths)
{
    stream("8,-.5,0,0,0,2,0,0,0,0,0,0,0,0,260");
    const auto shown = predictStream();
    EXPECT_EQ(shown.lblTideInfo, "12.-00: 1.5kn   06.-00: -2.5kn");
    EXPECT_THAT(shown.lblCuDirection, ::testing::ElementsAre("+ : West", "- : East"))
        << "260 and, not reduced before it is named, 440";
}

TEST_F(PlainTide, isThatOfTheDaysAndStationsInTheFiles)
{
    tide("8,2,0,0,0,1,0,0,0,0" + corrections);
    EXPECT_NO_THROW(predictTide("2005/12/31"));
    EXPECT_THROW(predictTide("2006/01/01"), TideDataFault);
    EXPECT_THROW(predictTide("2002/09/30"), TideDataFault);
    EXPECT_THROW(predict(TideKind::Tide, "Bombay", "2003/02/28"), TideDataFault);
}

TEST_F(PlainTide, pictureAndWhatThePointerReads)
{
    tide("9,2,0,0,0,1.5,0,0,0,0" + corrections);
    const auto shown = predictTide("2003/01/31"); // 0.6 to 3.6 m
    CurvePicture picture = DrawCurve(shown);
    EXPECT_NEAR(picture.scale.top, 5.1, 1e-9);
    EXPECT_NEAR(picture.scale.bottom, -0.6, 1e-9) << "from 0, the lowest being above it";
    EXPECT_EQ(picture.lblHeight[5].caption, "5 m");
    EXPECT_EQ(picture.levelLines.size(), 5u) << "1 to 5; 0 is the solid line";
    EXPECT_EQ(picture.fineLevelLines.size(), 3u + 20 + 0) << "-0.6 to 5.1 in fifths";
    EXPECT_EQ(picture.curve[48].x, 24);
    const auto expectLine = [](const CurveLine& line, CurvePoint from, CurvePoint to) {
        EXPECT_NEAR(line.from.x, from.x, 1e-9);
        EXPECT_NEAR(line.from.y, from.y, 1e-9);
        EXPECT_NEAR(line.to.x, to.x, 1e-9);
        EXPECT_NEAR(line.to.y, to.y, 1e-9);
    };
    expectLine(picture.zeroLine, {0, 0}, {24, 0});
    expectLine(picture.levelLines.front(), {0, 1}, {24, 1});
    expectLine(picture.fineLevelLines.front(), {0, -0.6}, {24, -0.6});
    ASSERT_EQ(picture.hourLines.size(), 11u);
    expectLine(picture.hourLines.back(), {22, -0.6}, {22, 5.1});
    EXPECT_EQ(picture.lblTime[0].caption, "2");
    EXPECT_NEAR(picture.lblTime[10].left, 21.7, 1e-9);
    ASSERT_EQ(picture.ticks.size(), 47u) << "none at the ends of the day";
    const double half = 0.057; // a hundredth of the scale
    expectLine(picture.ticks.front(), {0.5, shown.values[1] - half}, {0.5, shown.values[1] + half});
    EXPECT_TRUE(picture.furtherLevels.empty());

    EXPECT_EQ(readCurve(shown, 24)->text, "24:00  3.60m");
    EXPECT_EQ(readCurve(shown, 5.999)->text, "06:00  0.60m");
    EXPECT_NEAR(readCurve(shown, 0.25)->point.y, (shown.values[0] + shown.values[1]) / 2, 1e-9);
    EXPECT_FALSE(readCurve(shown, -0.1));
    EXPECT_FALSE(readCurve(shown, 24.1));
    EXPECT_FALSE(readCurve(shown, std::nan("")));

    stream("8,0,0,0,0,2,0,0,0,0,0,0,0,0,260");
    auto stream = predictStream();
    picture = DrawCurve(stream);
    EXPECT_NEAR(picture.scale.bottom, -2.6, 1e-9);
    EXPECT_EQ(picture.lblHeight[0].caption, "0 kn.");
    ASSERT_EQ(picture.furtherLevels.size(), 2u);
    EXPECT_EQ(picture.furtherLevels[0].caption, "-2 kn.");
    EXPECT_EQ(picture.furtherLevels[1].top, -1);
    EXPECT_THAT(readCurve(stream, 0)->text, ::testing::EndsWith(" West"));
    stream.floodDirection = NavFunc113::Degrees(-100); // written so in a file: 260
    EXPECT_EQ(readCurve(stream, 0)->text, readCurve(predictStream(), 0)->text);
    EXPECT_EQ(readCurve(stream, 0)->text, "00:00  2.0kn West");
    EXPECT_EQ(readCurve(stream, 6)->text, "06:00  2.0kn East") << "an ebb sets the other way";
    EXPECT_EQ(readCurve(stream, 3)->text, "03:00  0.0kn slack");
    this->stream("8,0.06,0,0,0,0,0,0,0,0,0,0,0,0,300");
    EXPECT_EQ(readCurve(predictStream(), 3)->text, "03:00  0.1kn WNW");
    this->stream("8,-0.06,0,0,0,0,0,0,0,0,0,0,0,0,300");
    EXPECT_EQ(readCurve(predictStream(), 3)->text, "03:00  0.1kn ESE") << "past north";
    this->stream("8,0.04,0,0,0,0,0,0,0,0,0,0,0,0,300");
    EXPECT_EQ(readCurve(predictStream(), 3)->text, "03:00  0.0kn slack");
    tide("9,8,0,0,0,4,0,0,0,0" + corrections); // to 12.1 m
    picture = DrawCurve(predictTide("2003/01/31"));
    EXPECT_EQ(picture.levelLines.size(), 10u) << "beyond 10 they would be a grey field";
    ASSERT_EQ(picture.furtherLevels.size(), 5u) << "above 5, where the labels end";
    EXPECT_EQ(picture.furtherLevels.front().caption, "6 m");
    EXPECT_EQ(picture.furtherLevels.back().top, 10);
}

TEST(TideDates, followTheFactorsFile)
{
    TideFolder beside;
    const std::string shipped = TideFolder::shippedFactors();
    const std::string day = "20060102,021,1.11,011,0.73,356,1.40,030,1.39\r\n";
    std::string lfOnly;
    for (int i = 0; i < 3000; ++i)
        lfOnly += day.substr(0, 44) + "\n";
    const struct {
        const char* name;
        std::string factors;
        long last;
    } rows[] = {{"shipped", shipped, 38717},
                {"its last line end missing", shipped.substr(0, shipped.size() - 2), 38717},
                {"one day longer", shipped + day, 38718},
                {"longer, blank line at the end", shipped + day + "\r\n", 38718},
                {"longer by half a line", shipped + day.substr(0, 20), 38717},
                {"shorter", shipped.substr(0, 46L * 500), 38717},
                {"longer, but lines of another length", lfOnly, 38717},
                {"longer, the line before the last without its line end",
                 shipped + day.substr(0, 44) + "\n\n" + day, 38717},
                {"empty", "", 38717}};
    for (const auto& row : rows) {
        beside.write("AF2005.txt", row.factors);
        EXPECT_EQ(TideDates::of(beside.files).lastSerial(), row.last) << row.name;
    }
}

TEST(TideDates, ofTheShippedFile)
{
    const TideDates dates = TideDates::of(TideFolder::shipped());
    EXPECT_THAT(dates.aboutNotice(), ::testing::HasSubstr("up to the end of 2005."));
    for (const char* noDate : {"", "Date", "yesterday", "2003/02/29"})
        EXPECT_FALSE(TideDates::dateIn(noDate)) << noDate;
}

} // namespace
} // namespace korvel
