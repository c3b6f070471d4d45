// SPDX-License-Identifier: MIT
#include "shell/main/GoToPlaces.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace korvel
{
namespace
{

/// Places as they are found, by their names.
std::vector<std::string> found(const std::vector<GoToPlace>& places, const char* typed)
{
    std::vector<std::string> names;
    for (const GoToPlace* each : findPlaces(places, typed))
        names.push_back(each->name.toStdString());
    return names;
}

/// A symbol below the words that hold it; a word in the middle before one that begins; a station
/// found by one letter, a window not.
TEST(GoToPlaces, whatBeginsWithTheLettersComesFirst)
{
    const std::vector<GoToPlace> places = {
        {"Great circle", "window", {}}, {"True wind", "window", {}},
        {"Stones", "Weight", {}, "st"}, {"Short tons", "Weight", {}, "ST"},
        {"Custom", "Tide", {}},         {"Port Stanley", "Tide", {}},
        {"Stanley", "Tide", {}},        {"Stan, true", "Tide", {}},
    };
    const struct {
        const char* typed;
        std::vector<std::string> names;
    } rows[] = {
        {"", {"Great circle", "True wind"}},
        {"t", {"True wind", "Great circle"}},
        {"sta", {"Stanley", "Stan, true", "Port Stanley"}},
        {" STAN  TRUE ", {"Stan, true"}},
        {"tru", {"True wind", "Stan, true"}},
        {"sto", {"Stones", "Custom"}},
        {"st", {"Stones", "Short tons"}},
        {"ST", {"Short tons", "Stones"}},
        {"nowhere", {}},
    };
    for (const auto& [typed, names] : rows)
        EXPECT_EQ(found(places, typed), names) << typed;
}

} // namespace
} // namespace korvel
