// SPDX-License-Identifier: MIT
#include "tests/navlib/Calls.h"
#include "navlib/arithmetic_error.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

using korvel::testing::Golden;

std::vector<std::string> partsOf(const std::string& cell)
{
    std::vector<std::string> parts;
    for (std::size_t from = 0; from <= cell.size();) {
        const std::size_t end = std::min(cell.find(';', from), cell.size());
        const std::size_t first = std::min(cell.find_first_not_of(' ', from), end);
        parts.push_back(cell.substr(first, end - first));
        from = end + 1;
    }
    return parts;
}

/// One row: "call" gives "result", its parts with ";" between them and numbers to "within"; or the
/// fault in words.
void check(const Golden& row)
{
    calls::Result result;
    try {
        result = calls::resultOf(row.text("call"));
    } catch (const ArithmeticError& error) {
        result.add(error.what());
    }
    const auto wanted = partsOf(row.text("result"));
    ASSERT_EQ(result.texts.size(), wanted.size()) << row;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (std::isnan(result.figures[i])) {
            EXPECT_EQ(result.texts[i], wanted[i]) << row;
        } else if (wanted[i] != "-") {
            EXPECT_NEAR(result.figures[i], calls::numberOf(wanted[i]), row.number("within")) << row;
        }
    }
}

class Calls : public ::testing::TestWithParam<const char*>
{
};

TEST_P(Calls, giveTheFiguresOfTheTable)
{
    for (const Golden& row : korvel::testing::golden(std::string("navlib_") + GetParam()))
        check(row);
}

INSTANTIATE_TEST_SUITE_P(Navlib, Calls,
                         ::testing::Values("angles", "datetime", "sailing", "great_circle",
                                           "composite", "compass", "wind", "weather", "units",
                                           "ephemeris", "rise_set", "sights", "tide", "cargo",
                                           "tanks"),
                         [](const auto& table) { return std::string(table.param); });

} // namespace
} // namespace NavFunc113
