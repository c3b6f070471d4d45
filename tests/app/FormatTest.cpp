// SPDX-License-Identifier: MIT
#include "app/Format.h"

#include "navlib/datetime.h"

#include <gtest/gtest.h>

#include <limits>

namespace korvel
{
namespace
{

struct Row {
    double value;
    const char* format;
    const char* text;
};

TEST(Format, positionsAndAngles)
{
    const Row rows[] = {{35.305, "00.00'0N;00.00'0S", "35.30'5N"},
                        {-5.3, "00.00'0N;00.00'0S", "05.30'0S"},
                        {-0.305, "00.00'0N;00.00'0S", "00.30'5S"},
                        {-0.0, "000.00'0E;000.00'0W", "000.00'0E"},
                        {35.305, "  00.-00'0N;  00.-00'0S", "  35.-30'5N"},
                        {35.305, "00-.00'0N;00-.00'0S", "35-.30'5N"},
                        {-139.5, "0.00'0E;0.00'0W", "139.50'0W"},
                        {-5.3, "00.-00'0", "-05.-30'0"},
                        {89.9999, "00.00'0N;00.00'0S", "90.00'0N"},
                        {-0.00001, "00.00'0N;00.00'0S", "00.00'0S"}};
    for (const auto& [value, format, text] : rows)
        EXPECT_EQ(Format(value, format), text) << value << " as " << format;
}

TEST(Format, numbers)
{
    const Row rows[] = {{123.45, "0.'0", "123.'5"},
                        {12.5, "0'.00", "12'.50"},
                        {45.25, "000.0", "045.3"},
                        {9, "0.0 hE);0.0 hW)", "9.0 hE)"},
                        {-9.5, "0.0 hE);0.0 hW)", "9.5 hW)"},
                        {12.5, "0.0##", "12.5"},
                        {3.14159, "0.0##", "3.142"},
                        {0.0004, "0.0##", "0.0"},
                        {12.5, "    0.00##", "    12.50"},
                        {1.234, "0.00m   ", "1.23m   "},
                        {5.3, "00.-00: ", "05.-30: "},
                        {1.25, "0.#", "1.3"},
                        {0.4, "#.#", ".4"},
                        {1234567.5, "#,##0", "1,234,568"},
                        {999.5, "#,##0", "1,000"},
                        {12345, "00", "12345"},
                        {10, "000/", "010/"}};
    for (const auto& [value, format, text] : rows)
        EXPECT_EQ(Format(value, format), text) << value << " as " << format;
}

TEST(Format, roundsHalfAwayFromZeroOnTheDecimalValue)
{
    const Row rows[] = {{-1.005, "0.00", "-1.01"},
                        {0.285, "0.00", "0.29"},
                        {2.5, "0", "3"},
                        {9.995, "0.00", "10.00"},
                        {0.05, "0.0", "0.1"},
                        {0.04, "0.0", "0.0"},
                        {0.5, "0", "1"},
                        {0.05, "0", "0"},
                        {99999999999999.5, "0", "100000000000000"},
                        {1e20, "0", "100000000000000000000"},
                        {0.1 + 0.2, "0.0################", "0.3"},
                        {4.35 * 100, "0", "435"}};
    for (const auto& [value, format, text] : rows)
        EXPECT_EQ(Format(value, format), text) << value << " as " << format;
    EXPECT_EQ(Format(std::numeric_limits<double>::quiet_NaN(), "0.0"), "");
    EXPECT_EQ(Format(std::numeric_limits<double>::infinity(), "0.0"), "");
}

TEST(Format, datesAndTimes)
{
    const double evening = NavFunc113::MakeDateTime({2005, 3, 4}, 21 * 3600 + 7 * 60 + 5);
    const Row rows[] = {{evening, "yyyy/mm/dd hh:mm", "2005/03/04 21:07"},
                        {evening, "yy/mm/dd hh:mm", "05/03/04 21:07"},
                        {evening, "YYYY/M/d", "2005/3/4"},
                        {evening, "MM/dd hh:mm", "03/04 21:07"},
                        {evening, "hhmm", "2107"},
                        {evening, "hh:mm:00", "21:07:00"},
                        {evening, "dd-hhmm", "04-2107"},
                        {1 + 7384 / 86400.0, "d-hh:mm:ss", "1-02:03:04"},
                        {40.25, "d-hh:mm:ss", "40-06:00:00"},
                        {38000 + 0.999999, "hh:mm", "00:00"},
                        {38000 + 59.4 / 86400, "hh:mm", "00:00"}};
    for (const auto& [value, format, text] : rows)
        EXPECT_EQ(Format(value, format), text) << format;
    EXPECT_EQ(Format(1e15, "yyyy"), "");
}

} // namespace
} // namespace korvel
