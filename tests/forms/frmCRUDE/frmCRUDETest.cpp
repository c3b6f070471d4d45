// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/frmCRUDE.h"

#include "tests/shell/ShellTesting.h"

#include <QComboBox>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;

class frmCRUDETest : public WindowTest
{
protected:
    static std::string limitsOf(const QWidget& window, const char* box)
    {
        return control(window, box).accessibleDescription().toStdString();
    }
};

TEST_F(frmCRUDETest, limitsAreThoseOfTheUnitChosen)
{
    const auto& window = open<frmCRUDE>();
    EXPECT_THAT(limitsOf(window, "txtTemperature"), HasSubstr("-273.15"));
    EXPECT_THAT(limitsOf(window, "txtDensity"), HasSubstr("above 0"));
    for (const char* list : {"cboTemperatureUnit", "cboDensityBase"})
        dynamic_cast<QComboBox&>(control(window, list)).setCurrentIndex(1);
    EXPECT_THAT(limitsOf(window, "txtTemperature"), HasSubstr("-459.67"));
    EXPECT_THAT(limitsOf(window, "txtObservedTemperature"), HasSubstr("-459.67"));
    EXPECT_THAT(limitsOf(window, "txtDensity"), HasSubstr("above -131.5"));
    EXPECT_THAT(limitsOf(window, "txtTemperature"), ::testing::Not(HasSubstr("inf")));
}

} // namespace
} // namespace korvel
