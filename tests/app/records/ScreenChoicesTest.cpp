// SPDX-License-Identifier: MIT
#include "app/records/ScreenChoices.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

TEST(ScreenChoices, onlyWholePlacesAreTaken)
{
    const struct {
        const char *text, *names;
        bool ownFrames = false;
    } cases[] = {
        {"frmETA 1 -2 1 1 100 1", "frmETA "},
        {"frmETA 1 2 0 300 100 1;frmWind 1 2 400 300 100 0", "frmWind "},
        {"frmETA 1 2 400 0 100 1", ""},
        {"frmETA 1 2 400 300 100", ""},
        {"frmETA 1 2 400 300 100 yes", ""},
        {"frmETA 1 2 400 300.5 100 1", ""},
        {"frmETA 100001 2 400 300 100 1", ""},
        {"frmETA 100000 2 400 300 100 1;ownFrames", "frmETA ", true},
        {"ownFrames", "", true},
        {"notownFrames", ""},
        {"ownFrames;frmETA 1 2 400 300 100 1", "frmETA "},
    };
    for (const auto& [text, names, ownFrames] : cases) {
        const ScreenChoices choices = ScreenChoices::of({1.0, 125.0, true, false, text});
        std::string found;
        for (const auto& [name, place] : choices.places)
            found += name + " ";
        EXPECT_EQ(found, names) << text;
        EXPECT_EQ(choices.ownFrames, ownFrames) << text;
    }
    EXPECT_EQ(ScreenChoices::of({1.0, 125.0, true, false}), ScreenChoices()) << "cut short";
    EXPECT_EQ(ScreenChoices::of({3.0, 126.0, false, false, ""}), ScreenChoices());
}

TEST(ScreenChoices, theLargestZoomIsThreeTimesTheUsual)
{
    ScreenChoices choices = ScreenChoices::of({1.0, 250.0, true, false, ""});
    EXPECT_TRUE(choices.changeZoom(1));
    EXPECT_EQ(choices.zoom, 300);
    EXPECT_FALSE(choices.changeZoom(1));
    EXPECT_TRUE(choices.changeZoom(0));
    EXPECT_EQ(choices.zoom, 100);
}

} // namespace
} // namespace korvel
