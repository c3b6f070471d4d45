// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "app/reading/PackedText.h"
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

TEST(Format, fullForms)
{
    for (const testing::Golden& row : testing::golden("full_forms"))
        EXPECT_EQ(inFullForm(row.text("packed")), row.text("full")) << row;
}

} // namespace
} // namespace korvel
