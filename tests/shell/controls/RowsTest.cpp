// SPDX-License-Identifier: MIT
// Rows of boxes and rows of a list.
#include "shell/controls/RowTable.h"
#include "shell/controls/RowsView.h"
#include "shell/controls/TextTable.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QImage>
#include <QKeyEvent>
#include <QScrollArea>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QVBoxLayout>

#include <array>
#include <string>
#include <vector>

namespace korvel
{
namespace
{

struct Row {
    std::string figure;
};
constexpr std::array<RowColumn<Row>, 3> columnsOfBoxes = {
    {{{"lblRow", "No.", "00"}},
     {{"txtSpeed", "Speed", "000.0", FieldKind::Figure, "Row %1, speed", "knots"}},
     {{"lblRun", "Run", "000.0", TableColumn::Label::Result, "Row %1, run", "miles"},
      &Row::figure}}};
constexpr auto boxColumns = columnsOf(columnsOfBoxes);

TEST(RowTable, keysGoToOtherRowsThatAreSeen)
{
    QScrollArea area;
    auto* table = new RowTable(boxColumns, 12);
    area.setWidget(table);
    area.setWidgetResizable(true);
    table->setRowSeen(4, false);
    for (std::size_t row = 8; row < 12; ++row)
        table->setRowSeen(row, false);
    area.show();
    area.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    const int line = table->number(0)->parentWidget()->height();
    const auto rowAfter = [&](std::size_t from, Qt::Key key, int linesSeen,
                              Qt::KeyboardModifiers modifiers = {}) {
        area.resize(area.width(), linesSeen * line + 2 * area.frameWidth());
        area.ensureVisible(0, 0);
        table->box(from, 1)->setFocus();
        QTest::keyClick(table->box(from, 1), key, modifiers);
        const auto row = table->rowOf(QApplication::focusWidget());
        return row ? static_cast<int>(*row) : -1;
    };
    const struct {
        std::size_t from;
        Qt::Key key;
        int linesSeen, row;
    } rows[] = {
        {0, Qt::Key_Up, 4, 0},       {0, Qt::Key_Down, 4, 1},     {3, Qt::Key_Down, 4, 5},
        {5, Qt::Key_Up, 4, 3},       {0, Qt::Key_PageDown, 4, 3}, {7, Qt::Key_PageUp, 3, 5},
        {2, Qt::Key_PageDown, 1, 3}, {3, Qt::Key_PageUp, 1, 2},   {2, Qt::Key_PageDown, 2, 3},
        {1, Qt::Key_PageUp, 4, 0},   {0, Qt::Key_Left, 4, 0},     {7, Qt::Key_Down, 4, 7},
        {7, Qt::Key_Up, 4, 6},
    };
    for (const auto& [from, key, linesSeen, row] : rows)
        EXPECT_EQ(rowAfter(from, key, linesSeen), row) << from << " " << key << " " << linesSeen;
    EXPECT_EQ(rowAfter(6, Qt::Key_Home, 4, Qt::ControlModifier), 0);
    EXPECT_EQ(rowAfter(6, Qt::Key_Down, 4, Qt::AltModifier), 6);
    for (std::size_t row = 8; row < 12; ++row)
        table->setRowSeen(row, true);
    EXPECT_EQ(rowAfter(1, Qt::Key_End, 4, Qt::ControlModifier), 11);
    EXPECT_EQ(rowAfter(11, Qt::Key_Down, 4), 11);
    EXPECT_EQ(rowAfter(10, Qt::Key_PageDown, 4), 11);
    table->result(2, 2)->setText("1.5");
    table->result(2, 2)->setFocus();
    QTest::keyClick(table->result(2, 2), Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), table->result(2, 2)) << "no result below";
    table->setRowSeen(1, false);
    EXPECT_EQ(rowAfter(2, Qt::Key_Up, 4), 0);
    std::string inHand;
    for (std::size_t row = 0; row < table->rows(); ++row)
        if (table->number(row)->font().bold()) inHand += std::to_string(row) + " ";
    EXPECT_EQ(inHand, "0 ");
    EXPECT_FALSE(table->rowOf(&area));
    EXPECT_FALSE(table->rowOf(nullptr));
}

TEST(RowsView, keysOfARowInHand)
{
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int rows;
    } cases[] = {{Qt::Key_Up, {}, -1},
                 {Qt::Key_Down, {}, 1},
                 {Qt::Key_Down, Qt::KeypadModifier, 1},
                 {Qt::Key_PageUp, {}, -5},
                 {Qt::Key_PageDown, {}, 5},
                 {Qt::Key_Left, {}, 0},
                 {Qt::Key_Home, {}, 0},
                 {Qt::Key_Down, Qt::ShiftModifier, 0},
                 {Qt::Key_Down, Qt::ControlModifier, 0}};
    for (const auto& [key, modifiers, rows] : cases)
        EXPECT_EQ(rowsWanted(QKeyEvent(QEvent::KeyPress, key, modifiers)), rows) << key;
    // A plan or a list of tanks may have thousands of rows.
    EXPECT_GE(rowsWanted(QKeyEvent(QEvent::KeyPress, Qt::Key_End, Qt::ControlModifier)), 100000);
    EXPECT_LE(rowsWanted(QKeyEvent(QEvent::KeyPress, Qt::Key_Home, Qt::ControlModifier)), -100000);
    const QKeyEvent paste(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
    for (const auto& [text, isOfRows] :
         {std::pair("1\n2", true), {"1\n", false}, {"\n1\n", false}, {"1", false}}) {
        QApplication::clipboard()->setText(text);
        EXPECT_EQ(pastesRows(paste), isOfRows) << text;
    }
}

/// Two columns of two lines, the second row in hand and with a remark.
class RowsViewTest : public ::testing::Test
{
protected:
    RowsViewTest()
    {
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 2; ++column) {
                auto* cell = new QStandardItem(QString("%1%2").arg(row).arg(column));
                cell->setData("below", RowsView::SecondLine);
                model.setItem(row, column, cell);
            }
        model.setHorizontalHeaderLabels({"Tank", "Volume"});
        for (int column = 0; column < 2; ++column)
            model.item(1, column)->setData(true, RowsView::HasRemark);
        scheme.notice = QColor(255, 0, 0);
        view.resize(view.sizeHint());
        view.show();
    }
    /// Pixels of a colour in a cell.
    int pixels(int row, int column, const QColor& colour)
    {
        const QImage image = view.viewport()->grab().toImage();
        const QRect cell = view.visualRect(model.index(row, column));
        int count = 0;
        for (int y = cell.top(); y <= cell.bottom(); ++y)
            for (int x = cell.left(); x <= cell.right(); ++x)
                count += image.rect().contains(x, y) && image.pixel(x, y) == colour.rgb();
        return count;
    }
    QColor pixel(int row, QPoint fromCorner)
    {
        const QRect cell = view.visualRect(model.index(row, 0));
        return view.viewport()->grab().toImage().pixelColor(
            (fromCorner.y() < 0 ? cell.bottomLeft() + QPoint(0, 1) : cell.topLeft()) + fromCorner);
    }

    static constexpr const char* widest[] = {"00000000", "00000000"};
    QStandardItemModel model;
    ColourScheme scheme = ColourScheme::day();
    std::size_t inHand = 1;
    RowsView view{model,
                  {.widest = widest,
                   .colours = [this]() -> const ColourScheme& { return scheme; },
                   .rowInHand = [this] { return inHand; }}};
};

TEST_F(RowsViewTest, theRowInHandIsTintedAndARemarkIsMarkedOnce)
{
    const QColor base = view.palette().color(QPalette::Base);
    const QColor chosen = view.palette().color(QPalette::Highlight);
    const QColor text = view.palette().color(QPalette::Text);
    const auto expectBetween = [](const QColor& seen, const QColor& near, const QColor& far,
                                  double most) {
        for (const auto& part : {&QColor::red, &QColor::green, &QColor::blue}) {
            const double share =
                double((seen.*part)() - (near.*part)()) / ((far.*part)() - (near.*part)());
            EXPECT_GT(share, 0.05) << seen.name().toStdString();
            EXPECT_LT(share, most) << seen.name().toStdString();
        }
    };
    EXPECT_EQ(pixel(0, {1, 1}), base);
    expectBetween(pixel(1, {1, 1}), base, chosen, 0.3);
    expectBetween(pixel(0, {1, -1}), base, text, 0.5); // the hairline
    EXPECT_GT(pixels(1, 0, scheme.notice), 0);
    EXPECT_EQ(pixels(1, 1, scheme.notice), 0) << "in its first column";
    EXPECT_EQ(pixels(0, 0, scheme.notice), 0);
}

TEST_F(RowsViewTest, whatIsTypedGoesToTheBoxesOfTheRowInHand)
{
    view.showRowInHand();
    EXPECT_EQ(view.currentIndex(), model.index(1, 0));
    view.setCurrentIndex(model.index(1, 1));
    view.showRowInHand();
    EXPECT_EQ(view.currentIndex(), model.index(1, 1)) << "in its column";
    QSignalSpy typed(&view, &RowsView::typed), deleted(&view, &RowsView::deleteWanted);
    QSignalSpy pasted(&view, &RowsView::pasteWanted), chosen(&view, &RowsView::rowChosen);
    const auto said = [&] {
        std::string all;
        for (const auto& each : typed)
            all += std::to_string(each.at(0).toInt()) + "'" + each.at(1).toString().toStdString() +
                   "' ";
        all += std::string(static_cast<std::size_t>(deleted.count()), 'd') +
               std::string(static_cast<std::size_t>(pasted.count()), 'p');
        for (const auto& each : chosen)
            all += " row " + std::to_string(each.at(0).toULongLong());
        for (QSignalSpy* each : {&typed, &deleted, &pasted, &chosen})
            each->clear();
        return all;
    };
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* said;
    } rows[] = {
        {Qt::Key_7, {}, "1'7' "},
        {Qt::Key_7, Qt::KeypadModifier, "1'7' "},
        {Qt::Key_A, Qt::ShiftModifier, "1'a' "},
        {Qt::Key_A, Qt::ControlModifier, ""},
        {Qt::Key_Return, {}, "1'' "},
        {Qt::Key_Enter, {}, "1'' "},
        {Qt::Key_Return, Qt::ControlModifier, ""},
        {Qt::Key_Delete, {}, "d"},
        {Qt::Key_Delete, Qt::ControlModifier, ""},
        {Qt::Key_V, Qt::ControlModifier, "p"},
        {Qt::Key_Escape, {}, ""},
        {Qt::Key_Left, {}, ""},
        {Qt::Key_Down, {}, " row 2"},
        {Qt::Key_Up, {}, " row 1"},
    };
    for (const auto& [key, modifiers, expected] : rows) {
        QTest::keyClick(&view, key, modifiers);
        EXPECT_EQ(said(), expected) << key;
    }
    emit view.doubleClicked(model.index(1, 1));
    EXPECT_EQ(said(), "1'' ");
    view.follow(true);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(said(), "") << "nobody chose";
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "20\tbelow\t21\tbelow\n");
}

TEST(TextTable, wordsStandApartFromTheFigureBeforeThem)
{
    constexpr TextTable::Column columns[] = {{"No.", "00"}, {"Body", "Rigil Kent", false}};
    TextTable table(nullptr, "tblStars", "Bodies");
    table.setFont(QFont("", 12)); // before it has any columns
    table.showRows(columns, 2, [](std::size_t row, std::size_t column) {
        return column == 0 ? QString::number(row) : QString("Vega");
    });
    const QAbstractItemModelTester tester(table.model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto told = [&](int column, int role) {
        return table.model()->index(1, column).data(role);
    };
    EXPECT_EQ(table.model()->headerData(0, Qt::Vertical), QVariant());
    EXPECT_EQ(told(0, Qt::DisplayRole), "1");
    EXPECT_EQ(told(1, Qt::DisplayRole), "  Vega");
    EXPECT_EQ(told(1, Qt::ToolTipRole), "Vega");
    EXPECT_FALSE(told(1, Qt::DecorationRole).isValid());
    EXPECT_EQ(told(0, Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_EQ(told(1, Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_EQ(table.model()->headerData(0, Qt::Horizontal), "No.");
    EXPECT_EQ(table.model()->headerData(1, Qt::Horizontal), "  Body");
    EXPECT_TRUE(table.horizontalHeader()->stretchLastSection());
    EXPECT_GE(table.columnWidth(0), table.fontMetrics().horizontalAdvance("No."));
    EXPECT_LT(table.columnWidth(0), table.fontMetrics().horizontalAdvance("No. No. No."));
    EXPECT_LT(table.columnWidth(0), table.columnWidth(1)) << "as wide as what stands in it";
    EXPECT_FALSE(table.chosenRow());
    table.chooseRow(1);
    EXPECT_EQ(table.chosenRow(), 1u);
    // What is chosen is seen quietly: its ground between that of the table and what is chosen
    // elsewhere.
    table.resize(table.widthOfColumns() + 40, 200);
    table.show();
    const QRect cell = table.visualRect(table.model()->index(1, 1));
    const QColor ground =
        table.viewport()->grab().toImage().pixelColor(cell.topLeft() + QPoint(1, 1));
    const QPalette& palette = table.palette();
    for (const auto& part : {&QColor::red, &QColor::green, &QColor::blue}) {
        const int base = (palette.color(QPalette::Base).*part)();
        const int chosen = (palette.color(QPalette::Highlight).*part)();
        const double share = double((ground.*part)() - base) / (chosen - base);
        EXPECT_NEAR(share, 1.0 / 6, 0.02);
    }
    EXPECT_EQ(table.viewport()->grab().toImage().pixelColor(
                  table.visualRect(table.model()->index(0, 1)).topLeft() + QPoint(1, 1)),
              palette.color(QPalette::Base));
}

} // namespace
} // namespace korvel
