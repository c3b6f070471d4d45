// SPDX-License-Identifier: MIT
#include "navlib/sea/weather_terms.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace NavFunc113
{
namespace
{

// Greatest height of the states 1 to 8, metres.
constexpr std::array<double, 8> greatestHeight{0.1, 0.5, 1.25, 2.5, 4, 6, 9, 14};

constexpr std::array<std::string_view, 10> seaStateNames{
    "Calm",  "Rippled",    "Smooth", "Slight",    "Moderate",
    "Rough", "Very Rough", "High",   "Very High", "Phenomenal"};

// Least visibility of the codes 1 to 9, kilometres.
constexpr std::array<double, 9> leastVisibility{0.05, 0.2, 0.5, 1, 2, 4, 10, 20, 50};

constexpr std::array<std::string_view, 10> visibilityNames{"Dence fog",
                                                           "Thick fog",
                                                           "Fog",
                                                           "Moderate fog",
                                                           "Thin fog",
                                                           "Visivility poor",
                                                           "Visivility moderate",
                                                           "Visivility good",
                                                           "Visivility very good",
                                                           "Visivility exceptional"};

constexpr std::array<WeatherLetter, 20> letters{{
    {"b", "Blue sky", "快晴"},
    {"bc", "Blue sky with clouds", "晴"},
    {"c", "Cloudy", "薄曇"},
    {"d", "Drizzling rain", "細雨"},
    {"e", "Wet", "湿潤"},
    {"f", "Fog", "霧"},
    {"g", "Gloomy", "陰鬱"},
    {"h", "Hail", "霞"},
    {"l", "Lightening", "電光"},
    {"m", "Mist", "もや"},
    {"o", "Overcast sky", "雲"},
    {"p", "Passing shower", "時雨"},
    {"q", "Squall", "早手"},
    {"r", "Rain", "雨"},
    {"s", "Snow", "雪"},
    {"t", "Thunder", "雷"},
    {"u", "Ugly weather", "天候険悪"},
    {"v", "Unusual visibility", "空気透明"},
    {"w", "Dew", "露"},
    {"z", "Haze", "煙霧"},
}};

} // namespace

int SeaStateCode(Metres waveHeight)
{
    if (waveHeight == Metres(0)) return 0;
    const auto bound = std::ranges::lower_bound(greatestHeight, waveHeight.value());
    return 1 + static_cast<int>(bound - greatestHeight.begin());
}

std::span<const double> SeaStateHeights()
{
    return greatestHeight;
}

std::string_view SeaStateName(Metres waveHeight)
{
    return seaStateNames[static_cast<std::size_t>(SeaStateCode(waveHeight))];
}

int VisibilityCode(Kilometres visibility)
{
    const auto bound = std::ranges::upper_bound(leastVisibility, visibility.value());
    return static_cast<int>(bound - leastVisibility.begin());
}

std::span<const double> VisibilityDistances()
{
    return leastVisibility;
}

std::string_view VisibilityName(Kilometres visibility)
{
    return visibilityNames[static_cast<std::size_t>(VisibilityCode(visibility))];
}

std::string_view SwellTerm(Metres swellHeight)
{
    if (swellHeight <= Metres(0)) return "No swell";
    if (swellHeight < Metres(2)) return "Slight swell";
    if (swellHeight < Metres(4)) return "Mod./Rough swell";
    return "Heavy swell";
}

std::span<const WeatherLetter> WeatherLetters()
{
    return letters;
}

std::string_view WeatherName(std::string_view language, std::string_view letter)
{
    const bool japanese = language == "J";
    const auto found = std::ranges::find(letters, letter, &WeatherLetter::letter);
    if (found == letters.end()) return japanese ? "不明" : "-";
    return japanese ? found->japanese : found->english;
}

} // namespace NavFunc113
