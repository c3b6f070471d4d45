// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"
#include "forms/frmSky/CalculateDay.h"
#include "forms/frmSky/CalculateStars.h"
#include "forms/frmSky/CalculateUnknown.h"

namespace korvel
{

/// The results of the day; its answers come first.
inline constexpr std::size_t dayAnswers = 3;
inline constexpr std::array DayResults = {
    Result<SkyDay>{"lblSky(0)", "Stars in the morning", "", Weight::Answer, &SkyDay::morning},
    Result<SkyDay>{"lblSky(1)", "Stars in the evening", "", Weight::Answer, &SkyDay::evening},
    Result<SkyDay>{"lblSky(2)", "Sun's passage", "", Weight::Answer, &SkyDay::noon,
                   "Sun's passage by ship's time"},
    Result<SkyDay>{"lblSky(3)", "Day", "", Weight::Figure, &SkyDay::date, "Day and TD"},
    Result<SkyDay>{"lblSky(4)", "Moon", "", Weight::Figure, &SkyDay::moonPhase,
                   "Phase of the Moon"},
    Result<SkyDay>{"lblSky(5)", "Age", "", Weight::Figure, &SkyDay::moonAge, "Age of the Moon"},
    Result<SkyDay>{"lblSky(6)", "Lit", "", Weight::Figure, &SkyDay::moonLit,
                   "Lit part of the Moon"},
};

/// The results of a minute.
inline constexpr std::array StarsResults = {
    Result<SkyStars>{"lblStars(0)", "Ship's time", "", Weight::Answer, &SkyStars::time,
                     "Minute of the stars by ship's time"},
    Result<SkyStars>{"lblStars(1)", "UTC", "", Weight::Figure, &SkyStars::zulu, "UTC of the stars"},
    Result<SkyStars>{"lblStars(2)", "Position then", "", Weight::Figure, &SkyStars::where},
    Result<SkyStars>{"lblStars(3)", "Fix of the round", "", Weight::Figure, &SkyStars::quality,
                     "Error of the fix of the round"},
    Result<SkyStars>{"lblStars(4)", "Polaris", "", Weight::Figure, &SkyStars::polaris},
};

/// The results of an unknown body.
inline constexpr std::array UnknownResults = {
    Result<UnknownResult>{"lblUnknown(0)", "Likeliest", "", Weight::Answer, &UnknownResult::answer,
                          "Likeliest body"},
    Result<UnknownResult>{"lblUnknown(1)", "Altitude seen", "", Weight::Figure,
                          &UnknownResult::observedText, "Altitude with dip and refraction off"},
    Result<UnknownResult>{"lblUnknown(2)", "UTC", "", Weight::Figure, &UnknownResult::zulu,
                          "UTC of the unknown body"},
    Result<UnknownResult>{"lblUnknown(3)", "Position then", "", Weight::Figure,
                          &UnknownResult::where, "Position at the unknown body's time"},
};

} // namespace korvel
