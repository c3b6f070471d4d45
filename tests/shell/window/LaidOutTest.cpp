// SPDX-License-Identifier: MIT
#include "calculator_windows.h"
#include "shell/controls/Boxes.h"
#include "shell/controls/ResultLabel.h"
#include "tests/shell/ShellTesting.h"

#include <QLayout>

// A control that no layout places stands in the corner of its window, over whatever is there.

namespace korvel
{
namespace
{

using namespace korvel::testing;

bool holds(const QLayout* layout, const QWidget* widget)
{
    for (int i = 0; layout && i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (item->widget() == widget || holds(item->layout(), widget)) return true;
    }
    return false;
}

TEST(LaidOut, everyBoxAndEveryResultHasItsPlace)
{
    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    FakeBell bell;
    ProgramFolder files{folder.path()};
    frmKORVEL2000 main{{questions, clock, files, bell}, calculatorWindows()};
    std::size_t placed = 0;
    for (const CatalogueEntry& entry : calculatorWindows()) {
        main.openWindow(entry.name);
        QWidget* window = shown(entry.name);
        ASSERT_TRUE(window) << entry.name.toStdString();
        for (const QWidget* each : window->findChildren<QWidget*>()) {
            if (!dynamic_cast<const EntryBox*>(each) && !dynamic_cast<const ResultLabel*>(each))
                continue;
            EXPECT_TRUE(holds(each->parentWidget()->layout(), each))
                << entry.name.toStdString() << " " << each->objectName().toStdString();
            ++placed;
        }
        window->close();
    }
    EXPECT_GT(placed, 500U);
}

} // namespace
} // namespace korvel
