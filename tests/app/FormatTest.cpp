// SPDX-License-Identifier: MIT
#include "app/Format.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

TEST(Format, masks)
{
    for (const testing::Golden& row : testing::golden("format"))
        EXPECT_EQ(Format(row.number("value"), row.text("mask")), row.text("text")) << row;
}

} // namespace
} // namespace korvel
