// SPDX-License-Identifier: MIT
#include "shell/controls/RowTable.h"
#include "shell/screen/ColourScheme.h"
#include "tests/shell/WholeProgram.h"

#include <QAbstractButton>
#include <QLayout>

// Whoever looks at a window sees its answers first, and everything in its place.

namespace korvel
{
namespace
{

using namespace korvel::testing;

const RowTable* tableOf(const QWidget& control)
{
    const QWidget* row = control.parentWidget();
    return row ? dynamic_cast<const RowTable*>(row->parentWidget()) : nullptr;
}

bool isAccented(const QWidget& control)
{
    return control.font().weight() >= QFont::DemiBold &&
           (control.foregroundRole() == accentRole ||
            control.palette().color(control.foregroundRole()) == ColourScheme::day().accent);
}

/// In a table of rows those of the row in hand, which is the first in a new window; where nothing
/// but boxes tells the answer, the box in hand.
std::vector<QWidget*> answersOf(const QWidget& window)
{
    std::vector<QWidget*> answers;
    for (auto* label : window.findChildren<ResultLabel*>()) {
        const RowTable* table = tableOf(*label);
        if (label->weight() == Weight::Answer && label->isVisible() &&
            (!table || table->rowOf(label) == 0u))
            answers.push_back(label);
    }
    if (answers.empty()) answers.push_back(window.focusWidget());
    return answers;
}

bool holds(const QLayout* layout, const QWidget* widget)
{
    for (int i = 0; layout && i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (item->widget() == widget || holds(item->layout(), widget)) return true;
    }
    return false;
}

class AnswersTest : public WholeProgram
{
};

TEST_F(AnswersTest, areTheLargestLettersOfTheirWindowAndTheOnlyOnesOfTheirColour)
{
    for (const CatalogueEntry& entry : calculatorWindows()) {
        QWidget& opened = window(entry.name);
        QApplication::processEvents();
        const std::vector<QWidget*> answers = answersOf(opened);
        double size = 0;
        for (const QWidget* answer : answers) {
            size = std::max(size, answer->font().pointSizeF());
            EXPECT_TRUE(isAccented(*answer)) << nameOf(*answer);
        }
        for (const QWidget* answer : answers)
            EXPECT_EQ(answer->font().pointSizeF(), size) << nameOf(*answer);
        for (auto* each : opened.findChildren<QWidget*>()) {
            if (!each->isVisible() || each->window() != &opened) continue;
            const bool isAnswer = std::ranges::find(answers, each) != answers.end();
            EXPECT_LE(each->font().pointSizeF(), size) << nameOf(*each);
            EXPECT_TRUE(isAnswer || !isAccented(*each)) << nameOf(*each);
        }
        opened.close();
    }
}

/// A control that no layout places stands in the corner of its window, over whatever is there.
TEST_F(AnswersTest, andEveryBoxStandInALayout)
{
    std::size_t placed = 0;
    for (const CatalogueEntry& entry : calculatorWindows()) {
        QWidget& opened = window(entry.name);
        for (const QWidget* each : opened.findChildren<QWidget*>()) {
            if (!dynamic_cast<const EntryBox*>(each) && !dynamic_cast<const ResultLabel*>(each))
                continue;
            EXPECT_TRUE(holds(each->parentWidget()->layout(), each)) << nameOf(*each);
            ++placed;
        }
        opened.close();
    }
    EXPECT_GT(placed, 500U);
}

} // namespace
} // namespace korvel
