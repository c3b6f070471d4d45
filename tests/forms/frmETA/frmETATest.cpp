// SPDX-License-Identifier: MIT
#include "forms/frmETA/frmETA.h"

#include "forms/frmCDDR/frmCDDR.h"
#include "navlib/datetime.h"
#include "tests/shell/ShellTesting.h"

#include <chrono>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using NavFunc113::DegMin;

class frmETATest : public WindowTest
{
};

TEST_F(frmETATest, aLegOfThePlanFillsItsBoxes)
{
    using NavFunc113::MakeDateTime;
    PlanExchange::Leg leg{"Here to there",
                          {DegMin(35.305), DegMin(-37.45)},
                          {DegMin(139.45), DegMin(-122.3)},
                          NavFunc113::Miles(1234.56),
                          NavFunc113::Knots(14.25),
                          instantOf(MakeDateTime({2024, 1, 1}, 23 * 3600)),
                          instantOf(MakeDateTime({2024, 1, 5}, 1800 + 31)),
                          {std::chrono::minutes(570), std::chrono::hours(-11)}};
    program().plan.legInHand = leg;
    auto& course = open<frmCDDR>();
    choose(course, "mnuShip(4)");
    EXPECT_EQ(text(course, "txtCDDR(0)") + ";" + text(course, "txtCDDR(1)") + ";" +
                  text(course, "txtCDDR(2)") + ";" + text(course, "txtCDDR(3)"),
              "35.305;139.45;-37.45;-122.3");
    auto& window = open<frmETA>();
    choose(window, "mnuShip(3)");
    const auto boxes = [&window] {
        std::string all;
        for (const char* box : {"txtTime(0)", "txtTime(1)", "txtTime(2)", "txtTime(3)", "txtTD(0)",
                                "txtTD(1)", "txtDist", "txtSpeed"})
            all += text(window, box) + ";";
        return all;
    };
    EXPECT_EQ(boxes(), "2024/01/02;08:30;2024/01/04;13:31;9.5;-11.0;1234.56;14.25;");
    program().plan.legInHand->leaves.reset();
    program().plan.legInHand->arrives = instantOf(MakeDateTime({2024, 1, 6}, 0));
    program().plan.legInHand->speed.reset();
    choose(window, "mnuShip(3)");
    EXPECT_EQ(boxes(), "2024/01/02;08:30;2024/01/05;13:00;9.5;-11.0;1234.56;14.25;");
    // The ship's zone into either end.
    choose(window, "mnuShip(1)");
    choose(window, "mnuShip(2)");
    EXPECT_EQ(text(window, "txtTD(0)") + ";" + text(window, "txtTD(1)"), "9.0;9.0");
}

} // namespace
} // namespace korvel
