// SPDX-License-Identifier: MIT
#include "almanac/magnetic_model.h"
#include "almanac/time_scales.h"
#include "tests/SourceFolder.h"
#include "tests/almanac/AlmanacTesting.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <sstream>

namespace almanac
{
namespace
{

using korvel::testing::Golden;
using korvel::testing::golden;
using ::testing::HasSubstr;

TEST(MagneticModel, meetsThePublishedValues)
{
    for (const Golden& row : golden("wmm2025_values")) {
        const MagneticField field =
            MagneticModel::ofProgram().field({row.number("decimal_year"), row.number("height_km"),
                                              row.degrees("lat_deg"), row.degrees("lon_deg")});
        const bool isPrecise = row.text("set") == "precise";
        EXPECT_LE(minutesApart(field.declination, row.number("D_deg")) / 60, 0.006) << row;
        if (!row.has("H_nT")) continue;
        const double bar = isPrecise ? 0.001 : 0.06;
        EXPECT_NEAR(field.horizontal, row.number("H_nT"), bar) << row;
        EXPECT_NEAR(field.north, row.number("X_nT"), bar) << row;
        EXPECT_NEAR(field.east, row.number("Y_nT"), bar) << row;
        EXPECT_NEAR(field.down, row.number("Z_nT"), bar) << row;
        EXPECT_NEAR(field.declinationChange.value(), row.number("D_dot_deg_per_year"),
                    isPrecise ? 2e-6 : 0.006)
            << row;
    }
}

TEST(MagneticModel, uncertaintyGrowsAndZonesAreNamedTowardsThePoles)
{
    const auto at = [](double latitude, double longitude) {
        return MagneticModel::ofProgram().variation(
            {2026, 0, Degrees(latitude), Degrees(longitude)});
    };
    // Worked by hand from published horizontal fields: 2302.427 nT and 1504.298 nT.
    const auto uncertainty = [](double height, double latitude, double longitude) {
        const MagneticPoint point{2025, height, Degrees(latitude), Degrees(longitude)};
        return MagneticModel::ofProgram().variation(point).uncertainty.value();
    };
    EXPECT_NEAR(uncertainty(54, 82, 87), 2.36705, 1e-5);
    EXPECT_NEAR(uncertainty(28, 89, -121), 3.61039, 1e-5);
    const Variation fair = at(35, 140);
    EXPECT_EQ(fair.zone, CompassZone::Reliable);
    EXPECT_EQ(describe(fair.zone), "");
    EXPECT_EQ(at(-60, 130).zone, CompassZone::Caution);
    const Variation pole = at(85.9, 139);
    EXPECT_EQ(pole.zone, CompassZone::Unreliable);
    EXPECT_GT(pole.uncertainty.value(), 3);
    EXPECT_LE(pole.uncertainty.value(), 180);
    EXPECT_THAT(std::string(describe(pole.zone)), HasSubstr("not to be used"));
    // The bounds of the zones, met to some nanoteslas on the way to a pole.
    double nearest[] = {HUGE_VAL, HUGE_VAL};
    for (double latitude = 55; latitude < 89; latitude += 0.02) {
        const Variation found = at(latitude, -100);
        const CompassZone zone = found.horizontal < 2000   ? CompassZone::Unreliable
                                 : found.horizontal < 6000 ? CompassZone::Caution
                                                           : CompassZone::Reliable;
        EXPECT_EQ(found.zone, zone) << found.horizontal;
        nearest[0] = std::min(nearest[0], std::fabs(found.horizontal - 2000));
        nearest[1] = std::min(nearest[1], std::fabs(found.horizontal - 6000));
    }
    EXPECT_LT(std::max(nearest[0], nearest[1]), 10);
    // At a geographic pole the field is one, whatever longitude is named.
    const auto total = [&](double longitude) { return at(90, longitude).horizontal; };
    EXPECT_NEAR(total(0), total(123), 1e-6);
}

TEST(MagneticModel, refusesWhatItDoesNotHoldFor)
{
    const struct {
        MagneticPoint point;
        const char* says;
    } cases[] = {
        {{2024.999, 0, Degrees(0), Degrees(0)}, "WMM-2025 holds for 2025.0 to 2030.0"},
        {{2030.001, 0, Degrees(0), Degrees(0)}, "2025.0 to 2030.0"},
        {{std::nan(""), 0, Degrees(0), Degrees(0)}, "2025.0 to 2030.0"},
        {{2026, -1.1, Degrees(0), Degrees(0)}, "-1 to 850 km"},
        {{2026, 850.1, Degrees(0), Degrees(0)}, "-1 to 850 km"},
        {{2026, 0, Degrees(90.01), Degrees(0)}, "latitude"},
        {{2026, 0, Degrees(0), Degrees(std::nan(""))}, "longitude"},
    };
    for (const auto& each : cases) {
        try {
            MagneticModel::ofProgram().variation(each.point);
            ADD_FAILURE() << "taken: " << each.says;
        } catch (const OutOfRange& fault) {
            EXPECT_THAT(fault.what(), HasSubstr(each.says));
        }
    }
    EXPECT_NO_THROW(MagneticModel::ofProgram().variation({2025, 0, Degrees(90), Degrees(-180)}));
    EXPECT_NO_THROW(MagneticModel::ofProgram().variation({2030, 850, Degrees(-90), Degrees(360)}));
    EXPECT_NEAR(decimalYear(instantOf("2028-07-01T12:00:00Z")), 2028 + 182.5 / 366, 1e-12);
}

/// The coefficients of data/sky in their producer's format.
std::string coefficientFile(const std::string& epoch)
{
    std::istringstream rows(korvel::contentOf(korvel::sourceFile("data/sky/wmm2025.csv")));
    std::string file = "    " + epoch + "            WMM-TEST     11/13/2029\n", row;
    std::getline(rows, row);
    while (std::getline(rows, row)) {
        std::ranges::replace(row, ',', ' ');
        file += "  " + row + "\n";
    }
    return file + std::string(48, '9') + "\n" + std::string(48, '9') + "\n";
}

TEST(CoefficientFile, anotherEditionIsReadAsItsProducerWritesIt)
{
    const MagneticModel later = MagneticModel::read(coefficientFile("2030.0"));
    EXPECT_EQ(later.name(), "WMM-TEST");
    EXPECT_EQ(later.lastYear(), 2035);
    const auto& ours = MagneticModel::ofProgram();
    EXPECT_EQ(later.variation({2032.5, 0, Degrees(50), Degrees(-30)}).variation,
              ours.variation({2027.5, 0, Degrees(50), Degrees(-30)}).variation);
    EXPECT_THROW(later.variation({2029.9, 0, Degrees(0), Degrees(0)}), OutOfRange);

    std::string dos;
    for (const char letter : coefficientFile("2030.0"))
        dos += letter == '\n' ? std::string("\r\n") : std::string(1, letter);
    EXPECT_EQ(MagneticModel::read(dos).firstYear(), 2030);
}

std::string faultOf(const std::string& file)
{
    try {
        MagneticModel::read(file);
        return "";
    } catch (const ModelFault& fault) {
        return fault.what();
    }
}

TEST(CoefficientFile, aCutOneIsNeverTaken)
{
    const std::string whole = coefficientFile("2030.0");
    const std::size_t firstNines = whole.find("99999999");
    for (std::size_t length = 0; length < firstNines + 8; ++length)
        ASSERT_NE(faultOf(whole.substr(0, length)), "") << length;
    EXPECT_EQ(faultOf(whole.substr(0, firstNines + 8)), "") << "eight are enough";
    EXPECT_EQ(faultOf(whole.substr(0, firstNines + 48)), "")
        << "the second line of 9s says nothing";
}

TEST(CoefficientFile, aDamagedOneIsNamedByItsLine)
{
    const struct {
        const char* what;
        const char* by;
        const char* says;
    } cases[] = {
        {"2030.0", "2030", ""},
        {"2030.0", "30.0", "line 1 of the coefficient file: 30.0 is no year"},
        {"2030.0", "nan", "line 1"},
        {"2030.0", "1900.0", ""},
        {"2030.0", "1899.9", "line 1 of the coefficient file: 1899.9 is no year"},
        {"2030.0", "2200.0", ""},
        {"2030.0", "2200.1", "line 1 of the coefficient file: 2200.1 is too large"},
        {"WMM-TEST", "WMM-TEST-of-forty-letters-0123456789-ABC", ""},
        {"WMM-TEST", "WMM-TEST-of-41-letters-0123456789-ABCDEFG", "line 1"},
        {"  1 0 -29351.8", "  1 0 -100000.0", ""},
        {"  1 0 -29351.8", "  1 0 -100000.1",
         "line 2 of the coefficient file: -100000.1 is too large"},
        {" 12.0 ", " 1000.0 ", ""},
        {" 12.0 ", " 1000.1 ", "line 2 of the coefficient file: 1000.1 is too large"},
        {"  1 1 ", "  2 1 ", "line 3 of the coefficient file: degree and order 1 1 are due"},
        {"\n9999", "\n8999", "line 92 of the coefficient file: the line of 9s"},
        {"WMM-TEST", "", "line 1"},
        {"WMM-TEST", "WMM\x1b[31m", "line 1"},
        {"  1 0 -29351.8", "  1 0 -29351.8.", "line 2"},
        {"  1 0 -29351.8", "  1 0 -2935180.",
         "line 2 of the coefficient file: -2935180. is too large"},
        {"  1 1 ", "  1 2 ", "line 3 of the coefficient file: degree and order 1 1 are due"},
        {"  2 0 ", "  2 0 0 ", "line 4"},
        {"  2 0 -2556.6 0.0", "  2 0 -2556.6 x", "line 4"},
        {"  12 12 ", "\n  12 12 ", "line 91"},
        {"\n9999", "\n  13 0 1.0 0.0 0.0 0.0\n9999", "line 92"},
    };
    const std::string whole = coefficientFile("2030.0");
    for (const auto& each : cases) {
        const std::size_t at = whole.find(each.what);
        ASSERT_NE(at, std::string::npos) << each.what;
        const std::string damaged =
            std::string(whole).replace(at, std::string(each.what).size(), each.by);
        if (*each.says)
            EXPECT_THAT(faultOf(damaged), HasSubstr(each.says)) << each.what << " by " << each.by;
        else
            EXPECT_EQ(faultOf(damaged), "") << each.what << " by " << each.by;
    }
    constexpr std::size_t longest = 65536;
    EXPECT_THAT(faultOf(std::string(longest + 1, ' ')), HasSubstr("64 KiB"));
    EXPECT_THAT(faultOf(std::string(longest, ' ')), Not(HasSubstr("64 KiB")));
    EXPECT_NE(faultOf(std::string(60000, '\0')), "");
}

} // namespace
} // namespace almanac
