// SPDX-License-Identifier: MIT
#include "shell/window/CalculationRunner.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

/// Figures of a window that opens, worked out at each box that its record fills; one that nobody
/// entered anything in, and that claims something.
TEST(CalculationRunner, runsNothingWhileARecordFillsItsBoxes)
{
    NoticeLine notices;
    EntryBox box;
    int runs = 0;
    CalculationRunner runner(
        notices, [](const std::vector<QLabel*>&, bool) {}, nullptr);
    runner.add({"Wind", {&box}, {}, [&] { ++runs; }});
    for (const bool wasEntered : {false, true}) {
        runner.hold();
        EXPECT_TRUE(runner.isHeld());
        box.setText(wasEntered ? "12" : "11");
        runner.release(wasEntered);
        EXPECT_EQ(runs, 0);
        runner.runAll();
        EXPECT_EQ(runs, wasEntered ? 1 : 0);
    }
    box.setText("13");
    EXPECT_EQ(runs, 2);
}

} // namespace
} // namespace korvel
