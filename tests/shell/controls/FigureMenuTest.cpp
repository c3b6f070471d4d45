// SPDX-License-Identifier: MIT
#include "shell/controls/FigureMenu.h"

#include "shell/controls/ResultLabel.h"
#include "shell/controls/RowTable.h"
#include "shell/controls/TextTable.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QMenu>
#include <QStandardItemModel>
#include <QTableView>

#include <gmock/gmock.h>

#include <array>
#include <vector>

namespace korvel
{
namespace
{

/// A sign that makes a number a word to other programs; something said twice in a letter.
TEST(FigureMenu, copiesWhatAProgramReadsAndWhatAnOfficerReads)
{
    struct Case {
        const char* words;
        const char* shown;
        const char* unit;
        const char* plain;
        const char* full;
    };
    const Case cases[] = {
        {"Distance", "104'.4", "nm", "104.4", "Distance 104.4 nm"},
        {"Change of the bearing", "0.17°", "", "0.17", "Change of the bearing 0.17°"},
        {"Lit part of the Moon", "5 %", "", "5", "Lit part of the Moon 5 %"},
        {"Altitude", "11°58.9'", "", "11°58.9'", "Altitude 11°58.9'"},
        {"Gyro error", "1.2 E (low)", "", "1.2 E (low)", "Gyro error 1.2 E (low)"},
        {"Coefficient A", "A 140.7 E", "", "A 140.7 E", "Coefficient A 140.7 E"},
        {"Greatest altitude", "greatest altitude 1 s earlier", "", "greatest altitude 1 s earlier",
         "Greatest altitude 1 s earlier"},
        {"", "12.5", "kn", "12.5", "12.5 kn"},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(plainFigure(each.shown).toStdString(), each.plain);
        EXPECT_EQ(figureInFull(each.words, each.shown, each.unit).toStdString(), each.full);
    }
}

TEST(FigureMenu, offersTheMemoryForWhatItKeepsAlone)
{
    struct Case {
        const char* figure;
        bool isKept;
    };
    for (const auto& [figure, isKept] :
         {Case{"104.4", true}, Case{"+3.41", true}, Case{"36°00.0'N 068°00.0'W", true},
          Case{"0", false}, Case{"-2.90", false}, Case{"04:25", false}, Case{"36°00.0'N", false},
          Case{"forward", false}, Case{"", false}}) {
        QMenu menu;
        addCopies(menu, {figure, figure, figure}, {[](const QString&) {}});
        EXPECT_EQ(menu.actions().back()->isEnabled(), isKept) << figure;
        EXPECT_EQ(menu.actions().front()->isEnabled(), *figure != 0) << figure;
    }
    QMenu without;
    addCopies(without, {"1", "1", "1"}, {});
    EXPECT_EQ(without.actions().size(), 3);
}

TEST(FigureMenu, aCellIsToldWithItsRow)
{
    constexpr TextTable::Column columns[] = {
        {"", "+"}, {"No.", "00"}, {"Body", "Rigil Kent", false}, {"Zn", "000.0"}};
    TextTable table(nullptr, "tblStars", "Bodies");
    const std::vector<QStringList> rows = {{"+", "49", "Vega", "54.6"},
                                           {"", "30", "Acrux", "148.1"}};
    table.showRows(columns, rows.size(), [&rows](std::size_t row, std::size_t column) {
        return rows[row][static_cast<int>(column)];
    });
    QString stored;
    table.storeInMemo = [&stored](const QString& figure) { stored = figure; };
    table.setCurrentIndex(table.model()->index(1, 3));
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&table, &asked);
    const auto* menu = table.findChild<QMenu*>();
    ASSERT_TRUE(menu);
    const auto copied = [menu](const QString& entry) {
        for (QAction* each : menu->actions())
            if (each->text().remove('&') == entry) each->trigger();
        return QApplication::clipboard()->text();
    };
    EXPECT_EQ(copied("Copy plain"), "148.1");
    EXPECT_EQ(copied("Copy in full"), "Body Acrux, Zn 148.1");
    EXPECT_EQ(copied("Copy row"), "\t30\tAcrux\t148.1\n");
    copied("Store in memo");
    EXPECT_EQ(stored, "148.1");
}

TEST(FigureMenu, theMouseMeansTheLineOfACellThatItIsOn)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), "upper");
    model.setData(model.index(0, 0), "lower", secondLineRole);
    QTableView table;
    table.setModel(&model);
    table.setRowHeight(0, 60);
    table.setCurrentIndex(model.index(0, 0));
    const auto figureAt = [&](int y, QContextMenuEvent::Reason by = QContextMenuEvent::Mouse) {
        const QPoint at(5, y);
        openCellMenu(table, {by, at, table.viewport()->mapToGlobal(at)}, {});
        return table.findChildren<QMenu*>().last()->actions()[0]->text().toStdString();
    };
    EXPECT_THAT(figureAt(10), ::testing::EndsWith("upper"));
    EXPECT_THAT(figureAt(50), ::testing::EndsWith("lower"));
    EXPECT_THAT(figureAt(50, QContextMenuEvent::Keyboard), ::testing::EndsWith("upper"));
    model.setData(model.index(0, 0), "36°00.0'N");
    model.setData(model.index(0, 0), "068°00.0'W", secondLineRole);
    EXPECT_THAT(figureAt(50), ::testing::EndsWith("36°00.0'N 068°00.0'W")) << "a position is one";
}

/// A fault blanks results one by one and knows of no rows: hairlines stood below empty ones.
TEST(RowTable, anEmptyRowHasNoHairlineWhoeverEmptiedIt)
{
    constexpr std::array<TableColumn, 2> columns = {
        {{"lblRow", "No.", "00"},
         {"lblCourse", "Course", "000.0", TableColumn::Label::Result, "Row %1, course"}}};
    RowTable table(columns, 2);
    table.resize(table.sizeHint());
    const QImage empty = table.grab().toImage();
    table.result(0, 1)->setText("073.6");
    EXPECT_NE(table.grab().toImage(), empty);
    table.result(0, 1)->clear();
    EXPECT_EQ(table.grab().toImage(), empty);
}

} // namespace
} // namespace korvel
