// SPDX-License-Identifier: MIT
#include "tidedata/astronomy.h"
#include "tidedata/factors.h"

#include "navlib/angles.h"
#include "navlib/datetime.h"

#include <gtest/gtest.h>

namespace tidedata
{
namespace
{

Days2000 dayOf(const NavFunc113::CivilDate& date)
{
    return static_cast<double>(NavFunc113::DaySerial(date) - 36526);
}

// Check values of the method, computed with another program.
TEST(Astronomy, checkValues)
{
    const struct {
        NavFunc113::CivilDate date;
        std::array<double, 5> longitudes;
        std::array<std::pair<double, double>, 4> factors;
    } rows[] = {
        {{2002, 10, 1},
         {120.830, 189.564, 195.147, 71.905, 282.985},
         {{{208.785, 0.9747}, {355.443, 1.3042}, {88.450, 0.6888}, {118.970, 1.0971}}}},
        {{2003, 7, 15},
         {302.456, 112.444, 227.119, 56.708, 282.998},
         {{{30.144, 1.0932}, {14.793, 0.6957}, {170.267, 1.3246}, {222.776, 1.2503}}}},
        {{2004, 2, 29},
         {79.851, 338.158, 252.631, 44.581, 283.009},
         {{{207.424, 0.8494}, {14.575, 1.2923}, {310.102, 0.8570}, {266.672, 0.9987}}}},
        {{2006, 1, 1},
         {294.389, 280.513, 327.494, 8.996, 283.041},
         {{{20.732, 1.1075}, {10.897, 0.7270}, {356.182, 1.3992}, {29.532, 1.3872}}}},
        {{2026, 6, 1},
         {257.601, 69.499, 78.118, 334.173, 283.392},
         {{{18.757, 0.8471}, {347.619, 0.6593}, {184.999, 1.2948}, {182.669, 0.9335}}}},
        {{2050, 1, 1},
         {12.257, 280.851, 317.858, 237.977, 283.797},
         {{{191.835, 1.1536}, {10.212, 0.8859}, {345.991, 1.2952}, {213.337, 1.0741}}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.date.year);
        const MeanLongitudes at = meanLongitudesAt(dayOf(row.date));
        const std::array longitudes{at.moon, at.sun, at.lunarPerigee, at.lunarNode,
                                    at.solarPerigee};
        for (std::size_t i = 0; i < longitudes.size(); ++i)
            EXPECT_NEAR(longitudes[i].value(), row.longitudes[i], 6e-4) << i;
        const auto factors = dailyFactorsAt(dayOf(row.date));
        for (std::size_t j = 0; j < factors.size(); ++j) {
            EXPECT_NEAR(factors[j].angle.value(), row.factors[j].first, 6e-4) << j;
            EXPECT_NEAR(factors[j].factor, row.factors[j].second, 6e-5) << j;
        }
    }
}

// A slip in one multiple or digit of the table shows as a speed that is not the argument's own.
TEST(Astronomy, everyArgumentGrowsAtItsSpeed)
{
    constexpr Days2000 day = 1500;
    constexpr double days = 100;
    const MeanLongitudes start = meanLongitudesAt(day);
    const MeanLongitudes end = meanLongitudesAt(day + days);
    for (const Constituent& c : constituents()) {
        const auto V = [&c](const MeanLongitudes& at) {
            return c.moon * at.moon + c.sun * at.sun + c.perigee * at.lunarPerigee +
                   c.solarPerigee * at.solarPerigee;
        };
        const Degrees grown(c.speed * 24 * days);
        const Degrees slip = NavFunc113::WithinHalfTurn(V(end) - V(start) - grown);
        EXPECT_NEAR(slip.value(), 0, 2e-3) << c.name;
    }
}

TEST(Factors, everyDayTo2060IsFortySixBytesAndTakesTheRightNumberOfTurns)
{
    const std::string file = factorsFile(2060);
    ASSERT_EQ(file.size(), 46u * 21278) << "2002-10-01 to 2061-01-01";
    const auto angle = [&file](std::size_t line, std::size_t j) {
        return Degrees(std::stoi(file.substr(46 * line + 9 + 9 * j, 3)));
    };
    for (std::size_t line = 0; 46 * (line + 1) < file.size(); ++line) {
        ASSERT_EQ(file.substr(46 * line + 44, 2), "\r\n");
        const auto change = [&](std::size_t j) { return angle(line, j) - angle(line + 1, j); };
        ASSERT_NEAR(NavFunc113::SemidiurnalChange(change(0), {}).value(), 695, 4.1) << line;
        ASSERT_NEAR(NavFunc113::SemidiurnalChange(change(1), {}).value(), 719.5, 1.6) << line;
        ASSERT_NEAR(NavFunc113::DiurnalChange(change(2), {}).value(), 361, 3.1) << line;
        ASSERT_NEAR(NavFunc113::DiurnalChange(change(3), {}).value(), 334.5, 3.6) << line;
    }
    EXPECT_EQ(file.substr(0, 46), "20021001,209,0.97,355,1.30,088,0.69,119,1.10\r\n");
    EXPECT_EQ(factorsLine(38718), "20060101,021,1.11,011,0.73,356,1.40,030,1.39\r\n");
    EXPECT_THROW(factorsFile(2061), std::out_of_range);
    EXPECT_THROW(factorsFile(2004), std::out_of_range);
}

} // namespace
} // namespace tidedata
