// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"
#include "forms/frmTIDE/day/PredictTide.h"
#include "forms/frmTIDE/day/TideWaters.h"

#include <array>

namespace korvel
{

/// What is shown above the picture.
namespace HeadShown
{
enum : std::size_t { zoneTime, highestLowest, flood, ebb };
}
inline constexpr std::array<Result<TidePrediction>, 4> headResults = {{
    {"lblTD", "Zone time", "hours", Weight::Figure, &TidePrediction::lblTD,
     "Zone time of the station"},
    {"lblTideInfo", "Highest, lowest", "", Weight::Figure, &TidePrediction::lblTideInfo,
     "Highest and lowest of the day with their zone times"},
    {"lblCuDirection(0)", "", "", Weight::Figure, textAt<&TidePrediction::lblCuDirection, 0>,
     "Direction of the flood stream"},
    {"lblCuDirection(1)", "", "", Weight::Figure, textAt<&TidePrediction::lblCuDirection, 1>,
     "Direction of the ebb stream"},
}};

/// What is shown below the picture.
struct TideDayTexts {
    static constexpr std::size_t rows = 8;

    std::array<WaterLine, rows> waters;
    std::string range;
    std::string now; ///< what the water does at this moment
    CurveAnswer height;
    CurveAnswer times;
};

template <std::size_t Row>
const std::string& waterByFour(const TideDayTexts& texts)
{
    return texts.waters[Row].four;
}
template <std::size_t Row>
const std::string& waterByAll(const TideDayTexts& texts)
{
    return texts.waters[Row].all;
}
/// A text of an answer.
template <CurveAnswer TideDayTexts::*Answer, std::string CurveAnswer::*Text>
const std::string& answerText(const TideDayTexts& texts)
{
    return texts.*Answer.*Text;
}

namespace DayShown
{
enum : std::size_t {
    waters,
    watersByAll = TideDayTexts::rows,
    range = 2 * TideDayTexts::rows,
    now,
    heightThen,
    timesOf,
    heightByAll,
    timesByAll
};
inline constexpr const char* sameWater = "The same water by all constituents and the difference";
} // namespace DayShown

inline constexpr std::array<Result<TideDayTexts>, DayShown::timesByAll + 1> dayResults = {{
    {"lblWater(0)", "", "", Weight::Figure, waterByFour<0>, "High or low water"},
    {"lblWater(1)", "", "", Weight::Figure, waterByFour<1>, "High or low water"},
    {"lblWater(2)", "", "", Weight::Figure, waterByFour<2>, "High or low water"},
    {"lblWater(3)", "", "", Weight::Figure, waterByFour<3>, "High or low water"},
    {"lblWater(4)", "", "", Weight::Figure, waterByFour<4>, "High or low water"},
    {"lblWater(5)", "", "", Weight::Figure, waterByFour<5>, "High or low water"},
    {"lblWater(6)", "", "", Weight::Figure, waterByFour<6>, "High or low water"},
    {"lblWater(7)", "", "", Weight::Figure, waterByFour<7>, "High or low water"},
    {"lblWaterAll(0)", "", "", Weight::Figure, waterByAll<0>, DayShown::sameWater},
    {"lblWaterAll(1)", "", "", Weight::Figure, waterByAll<1>, DayShown::sameWater},
    {"lblWaterAll(2)", "", "", Weight::Figure, waterByAll<2>, DayShown::sameWater},
    {"lblWaterAll(3)", "", "", Weight::Figure, waterByAll<3>, DayShown::sameWater},
    {"lblWaterAll(4)", "", "", Weight::Figure, waterByAll<4>, DayShown::sameWater},
    {"lblWaterAll(5)", "", "", Weight::Figure, waterByAll<5>, DayShown::sameWater},
    {"lblWaterAll(6)", "", "", Weight::Figure, waterByAll<6>, DayShown::sameWater},
    {"lblWaterAll(7)", "", "", Weight::Figure, waterByAll<7>, DayShown::sameWater},
    {"lblRange", "", "", Weight::Figure, &TideDayTexts::range, "Range of the day and the Moon"},
    {"lblNow", "", "", Weight::Answer, &TideDayTexts::now, "At this moment"},
    {"lblHeightAt", "Height then", "", Weight::Figure,
     answerText<&TideDayTexts::height, &CurveAnswer::text>, "Height at the time asked for"},
    {"lblTimesOf", "That or more", "", Weight::Figure,
     answerText<&TideDayTexts::times, &CurveAnswer::text>,
     "When the water stands at that height or more"},
    {"lblHeightAtAll", "", "", Weight::Figure, answerText<&TideDayTexts::height, &CurveAnswer::all>,
     "The same by all constituents"},
    {"lblTimesOfAll", "", "", Weight::Figure, answerText<&TideDayTexts::times, &CurveAnswer::all>,
     "The same by all constituents"},
}};

} // namespace korvel
