// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/frmCRUDE.h"

#include "tests/shell/ShellTesting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;

class frmCRUDETest : public WindowTest
{
protected:
    static void pick(const QWidget& window, const char* list, int index)
    {
        static_cast<QComboBox&>(control(window, list)).setCurrentIndex(index);
    }
};

// Both cargoes were recomputed by an independent program.
TEST_F(frmCRUDETest, aMetricCargo)
{
    auto& window = open<frmCRUDE>();
    whileTyping(window, "txtVolume", "10000\r\r45\r870", "lblVCF");
    EXPECT_EQ(focused(), "txtDensity");
    EXPECT_EQ(text(window, "lblVCF"), "0.97550");
    EXPECT_EQ(text(window, "lblGrossStandard"), "9755.000");
    EXPECT_EQ(text(window, "lblMetricTonsInVacuo"), "8486.850");
    EXPECT_EQ(text(window, "lblMetricTonsInAir"), "8476.120");
    EXPECT_EQ(text(window, "lblLongTonsInAir"), "8342.252");
    EXPECT_EQ(text(window, "lblBarrels15"), "61357.10");
    EXPECT_EQ(text(window, "lblBarrels60"), "61384.77");
    EXPECT_EQ(text(window, "lblAPI60"), "31.06");
    pick(window, "cboWeightRule", 2);
    EXPECT_EQ(text(window, "lblMetricTonsInAir"), "8476.226");
    EXPECT_THAT(text(window, "lblWeightMethod"), HasSubstr("Table 56"));

    click(window, "cmdFromDensity");
    EXPECT_EQ(text(window, "txtKLperBbl"), "0.1589156");
    EXPECT_EQ(text(window, "lblBarrels").substr(0, 5), "61384");
    QTest::keyPress(&control(window, "txtTemperature"), '9');
    EXPECT_EQ(text(window, "lblVCF"), "0.97550") << "only when the key is released";
    QTest::keyRelease(&control(window, "txtTemperature"), '9');
    EXPECT_NE(text(window, "lblVCF"), "0.97550");
    EXPECT_EQ(text(window, "lblRangeFlag"), "outside Table 54A");
}

TEST_F(frmCRUDETest, aCargoInBarrelsOutlivesTheWindow)
{
    {
        auto& window = open<frmCRUDE>();
        pick(window, "cboVolumeUnit", 1);
        pick(window, "cboTemperatureUnit", 1);
        pick(window, "cboDensityBase", 1);
        type(window, "txtVolume", "500000");
        type(window, "txtTemperature", "100");
        type(window, "txtDensity", "32.8");
        EXPECT_THAT(control(window, "txtDensity").accessibleName().toStdString(), HasSubstr("API"));
        close(window);
    }
    auto& window = open<frmCRUDE>();
    EXPECT_EQ(text(window, "lblVCF"), "0.98147");
    EXPECT_EQ(text(window, "lblGrossStandard"), "490735.00");
    pick(window, "cboVCFDecimals", 1);
    EXPECT_EQ(text(window, "lblLongTonsInAir"), "65984.693");
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuMemo(3)");
    EXPECT_EQ(program().saved().singleMemo(), 67043.544);
}

TEST_F(frmCRUDETest, whatMakesNoSenseIsNamedAndBlank)
{
    auto& window = open<frmCRUDE>();
    type(window, "txtVolume", "1000");
    type(window, "txtTemperature", "20");
    type(window, "txtDensity", "0");
    EXPECT_EQ(text(window, "lblMetricTonsInAir"), "");
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("density must be greater than 0"));
    click(window, "cmdFromDensity");
    EXPECT_EQ(text(window, "txtKLperBbl"), defaultKLPerBarrel);
    type(window, "txtDensity", "870");
    EXPECT_NE(text(window, "lblMetricTonsInAir"), "");
    EXPECT_EQ(text(window, "lblNotice"), "");

    // The box for the temperature of an observed density is passed over while there is none.
    QTest::keyClick(&control(window, "txtDensity"), Qt::Key_Return);
    EXPECT_EQ(focused(), "txtSedimentAndWater");
    static_cast<QCheckBox&>(control(window, "chkObserved")).click();
    control(window, "txtDensity").setFocus();
    QTest::keyClick(&control(window, "txtDensity"), Qt::Key_Return);
    EXPECT_EQ(focused(), "txtObservedTemperature");
    EXPECT_NE(text(window, "lblDensity15"), "870.0") << "reduced from 20 degrees";
    choose(window, "mnuCargo(0)");
    EXPECT_EQ(text(window, "lblVCF"), "");
}

} // namespace
} // namespace korvel
