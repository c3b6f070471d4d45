// SPDX-License-Identifier: MIT
#include "forms/conversion/ConversionWindow.h"
#include "shell/layout/TypeScale.h"
#include "shell/screen/ColourScheme.h"
#include "tests/shell/ShellTesting.h"

namespace korvel
{
namespace
{

using namespace korvel::testing;

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class frmUnitsTest : public WindowTest
{
};

TEST_F(frmUnitsTest, whatIsKnownBesideAValueIsThereAgain)
{
    auto& window = open<frmFlow>();
    type(window, "txtFlow(1)", "30");
    EXPECT_EQ(text(window, "txtFlow(0)"), "1.25");
    EXPECT_THAT(text(window, "txtFlow(5)"), IsEmpty());
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("type the density"));
    type(window, "txtFlowDensity", "991");
    EXPECT_EQ(text(window, "txtFlow(5)"), "1.261352");
    type(window, "txtFlowPower", "0");
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("Power of the engine"));
    type(window, "txtFlowPower", "9000");
    EXPECT_EQ(text(window, "txtFlow(11)"), "138.8889");
    EXPECT_THAT(window.notice().toStdString(), Not(HasSubstr("type the")));
    close(window);
    EXPECT_EQ(fileText("KV_Flow.ini"), "KORVEL2000 flow and consumption 1\ntxtFlowDensity=991\n"
                                       "txtFlowPower=9000\ntxtFlow(1)=30\n");
    const auto& again = open<frmFlow>();
    EXPECT_EQ(text(again, "txtFlow(5)"), "1.261352");
    EXPECT_EQ(text(again, "txtFlow(11)"), "138.8889");
    auto& angle = open<frmAngle>();
    type(angle, "txtAngle(0)", "7.5");
    close(angle);
    EXPECT_EQ(text(open<frmAngle>(), "txtAngle(5)"), "0:30:00");
}

TEST_F(frmUnitsTest, theUnitInHandStandsOutWhileADensityIsTyped)
{
    auto& window = open<frmFlow>();
    for (const auto& [focus, unitInHand] : {std::pair{"txtFlow(1)", "txtFlow(1)"},
                                            {"txtFlowDensity", "txtFlow(1)"},
                                            {"txtFlow(3)", "txtFlow(3)"},
                                            {"txtFlowPower", "txtFlow(3)"}}) {
        control(window, focus).setFocus();
        std::string inHand;
        for (int unit = 0; unit < 12; ++unit) {
            const std::string name = "txtFlow(" + std::to_string(unit) + ")";
            if (control(window, name).palette().color(QPalette::Text) == program().colours().accent)
                inHand += name;
        }
        EXPECT_EQ(inHand, unitInHand) << focus;
    }
}

TEST_F(frmUnitsTest, aRecordOfNoBoxBeginsAtTheFirst)
{
    for (const char* lead : {"13", "-1", "2"}) {
        std::string record;
        for (int box = 0; box < 13; ++box)
            record += "\"5\"\r\n";
        writeFile("KV_Area.ini", record + lead + "\r\n");
        auto& window = open<frmArea>();
        EXPECT_EQ(focused(), std::string(lead) == "2" ? "txtArea(2)" : "txtArea(0)") << lead;
        close(window);
    }
}

TEST_F(frmUnitsTest, aSumOfUnitsStaysAsItWasTyped)
{
    auto& window = open<frmLength>();
    type(window, "txtLength(0)", "6 ft 3 in");
    EXPECT_EQ(text(window, "txtLength(8)"), "75");
    close(window);
    EXPECT_THAT(fileText("KV_Length.ini"), StartsWith("\"6 ft 3 in\""));
    EXPECT_EQ(text(open<frmLength>(), "txtLength(8)"), "75");
}

} // namespace
} // namespace korvel
