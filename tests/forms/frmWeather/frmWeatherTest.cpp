// SPDX-License-Identifier: MIT
#include "forms/frmWeather/frmWeather.h"

#include "navlib/weather_terms.h"
#include "tests/shell/ShellTesting.h"

#include <QRadioButton>
#include <QTest>

#include <set>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;

class frmWeatherTest : public WindowTest
{
};

TEST_F(frmWeatherTest, termsFollowTheKeys)
{
    auto& window = open<frmWeather>();
    type(window, "txtWave", "1.5");
    type(window, "txtSWELL", "2");
    EXPECT_EQ(text(window, "lblWave"), "4-Moderate");
    EXPECT_EQ(text(window, "lblSWELL"), "Mod./Rough swell");
    auto& visibility = control(window, "txtVISIBILITY");
    type(window, "txtVISIBILITY", "1.852");
    EXPECT_EQ(text(window, "lblVISIBILITYnm"), "1 nm");
    QTest::keyPress(&visibility, Qt::Key_Home);
    QTest::keyPress(&visibility, '5');
    EXPECT_EQ(text(window, "lblVISIBILITY"), "4-Thin fog") << "only when the key is released";
    QTest::keyRelease(&visibility, '5');
    EXPECT_EQ(text(window, "lblVISIBILITY"), "9-Visivility exceptional");
    QTest::keyClick(&visibility, Qt::Key_Return);
    EXPECT_EQ(focused(), "txtWave");
}

TEST_F(frmWeatherTest, everyLetterHasItsButton)
{
    auto& window = open<frmWeather>();
    std::set<std::string> shown;
    for (int i = 0; i < 20; ++i) {
        const std::string name = "optWr(" + std::to_string(i) + ")";
        auto& option = static_cast<QRadioButton&>(control(window, name));
        option.click();
        const std::string letter = text(window, "lblWr").substr(0, text(window, "lblWr").find(' '));
        EXPECT_EQ(option.text().toStdString().substr(0, letter.size() + 1), letter + " ");
        EXPECT_THAT(text(window, "lblWr"),
                    HasSubstr(std::string(NavFunc113::WeatherName("J", letter))));
        shown.insert(text(window, "lblWr"));
    }
    EXPECT_EQ(shown.size(), 20U);
    EXPECT_EQ(text(window, "lblWr"), "z Haze 煙霧");
    control(window, "optWr(19)").setFocus();
    QTest::keyClick(&control(window, "optWr(19)"), Qt::Key_Up);
    EXPECT_EQ(text(window, "lblWr"), "w Dew 露") << "by arrow key";
    close(window);
    EXPECT_EQ(fileText("KV_Weather.ini"), "(no file)");
}

} // namespace
} // namespace korvel
