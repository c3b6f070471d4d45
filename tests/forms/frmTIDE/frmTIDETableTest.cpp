// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/pages/TableDialog.h"

#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;

TEST(TableDialog, showsCopiesAndPrints)
{
    int printed = 0;
    TableDialog dialog(nullptr, "dlgRows", "Rows", "Two rows.", {"a", "b", "c"},
                       {{"1", "2", "3"}, {"4", "5", "6"}}, [&] { ++printed; });
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(text(dialog, "lblSummary"), "Two rows.");
    auto& table = dynamic_cast<QTableWidget&>(control(dialog, "tblRows"));
    EXPECT_EQ(table.item(1, 2)->text(), "6");
    table.setRangeSelected({0, 1, 1, 2}, true);
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "2\t3\n5\t6\n");
    click(dialog, "cmdPrint");
    EXPECT_EQ(printed, 1);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    dialog.show();
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close)->click();
    EXPECT_FALSE(dialog.isVisible());
    const TableDialog other(nullptr, "dlg", "", "", {"a"}, {}, {});
    EXPECT_EQ(other.findChild<QWidget*>("cmdPrint"), nullptr);
}

} // namespace
} // namespace korvel
