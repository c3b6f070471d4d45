// SPDX-License-Identifier: MIT
#include "app/records/QuoteSigns.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

TEST(QuoteSigns, aTextComesBackAsItWas)
{
    for (const std::string text :
         {"M/V \"Prüfling\"", "100 %", "%22", "%2522", "\"%22\"", "%", "", "%2"}) {
        const std::string written = withoutQuoteSigns(text);
        EXPECT_EQ(written.find('"'), written.npos) << text;
        EXPECT_EQ(withQuoteSigns(written), text) << written;
    }
    EXPECT_EQ(withQuoteSigns("M/V 'Star' 100 %"), "M/V 'Star' 100 %") << "as written by 1.0";
}

} // namespace
} // namespace korvel
