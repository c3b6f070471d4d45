// SPDX-License-Identifier: MIT
#include "calculator_windows.h"
#include "shell/controls/Boxes.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>

#include <algorithm>

#include <malloc.h>

// A voyage is weeks of the same program: a window that is closed leaves nothing behind.

namespace korvel
{
namespace
{

using namespace korvel::testing;

class OpenedAgainTest : public ::testing::TestWithParam<CatalogueEntry>
{
protected:
    void openAndClose(int times)
    {
        for (int i = 0; i < times; ++i) {
            main.openWindow(GetParam().name);
            QWidget* window = shown(GetParam().name);
            for (auto* box : window->findChildren<EntryBox*>())
                if (box->text().isEmpty()) box->setText("12.34");
            window->close(); // not painted: the platform keeps pictures of its own
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QApplication::processEvents();
        }
    }

    /// Bytes that an opening adds to the heap.
    double growthOver(int times)
    {
        const std::size_t before = mallinfo2().uordblks;
        openAndClose(times);
        return (static_cast<double>(mallinfo2().uordblks) - static_cast<double>(before)) / times;
    }

    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    FakeBell bell;
    ProgramFolder files{folder.path()};
    frmKORVEL2000 main{{questions, clock, files, bell}, calculatorWindows()};
};

TEST_P(OpenedAgainTest, leavesNoMemoryBehind)
{
    constexpr double allowed = 700; // bytes an opening: what the toolkit keeps of its own
    openAndClose(8);                // caches fill
    double grown = growthOver(16);
    if (grown >= allowed) grown = growthOver(24); // or filled late
    RecordProperty("bytesAnOpening", std::to_string(grown));
    EXPECT_LT(grown, allowed);
}

INSTANTIATE_TEST_SUITE_P(Windows, OpenedAgainTest, ::testing::ValuesIn(calculatorWindows()),
                         [](const auto& tested) { return tested.param.name.toStdString(); });

} // namespace
} // namespace korvel
