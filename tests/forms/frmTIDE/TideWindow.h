// SPDX-License-Identifier: MIT
#pragma once

#include "tests/forms/frmTIDE/TideFolder.h"
#include "tests/shell/ShellTesting.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>

namespace korvel::testing
{

/// A window beside copies of the shipped data and a stream station of the test's own.
class TideWindowTest : public WindowTest
{
protected:
    TideWindowTest()
    {
        QDir(folder.path()).mkdir("Harmonic Constants");
        for (const char* file :
             {"AF2005.txt", "stations.txt", "accuracy.txt", "constituents.txt",
              "Harmonic Constants/HC_Yokohama.txt", "Harmonic Constants/HC_Port Dickson.txt"})
            writeFile(file, TideFolder::shipped().files.at(file));
        writeFile("Harmonic Constants/HC_Brothers_.txt", syntheticStream);
    }
    void setDate(const QWidget& window, const std::string& date)
    {
        questions.willType(date);
        choose(window, "mnuFrmTIDE(2)");
    }
    static void press(QWidget& window, const std::string& name, std::initializer_list<int> keys)
    {
        control(window, name).setFocus(Qt::TabFocusReason);
        for (int key : keys)
            QTest::keyClick(&control(window, name), static_cast<Qt::Key>(key));
    }
    static int scrollValue(const QWidget& window)
    {
        return static_cast<QScrollBar&>(control(window, "scrDate")).value();
    }
    /// What is seen in a table that a menu entry shows, which is closed then.
    static void whileShown(const QWidget& window, const std::string& entry, const char* dialog,
                           const std::function<void(QWidget&)>& look)
    {
        bool isSeen = false;
        QTimer::singleShot(0, &window, [&] {
            QWidget* box = shown(dialog);
            ASSERT_TRUE(box) << dialog;
            isSeen = true;
            look(*box);
            box->close();
        });
        choose(window, entry);
        EXPECT_TRUE(isSeen) << entry;
    }
    static std::string rowOf(const QWidget& dialog, int row)
    {
        const auto& table = dynamic_cast<QTableWidget&>(control(dialog, "tblRows"));
        std::string cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells += table.item(row, column)->text().toStdString() + " | ";
        return cells;
    }
    static bool hasLabel(const QWidget& window, const QString& words)
    {
        return std::ranges::any_of(window.findChildren<QLabel*>(), [&](const QLabel* label) {
            return label->text() == words && label->isVisible();
        });
    }
    static std::string tooFar(const std::string& last)
    {
        return "This version of KORVEL can calculate the tide only 2002/10/1 to " + last + ".";
    }
};

inline constexpr const char* yokohama = "mnuJapan(10)";
inline constexpr const char* portDickson = "mnuSpore(3)";
inline constexpr const char* brothersStream = "mnuCuSpore(0)";
inline constexpr const char* inchon = "mnuAsia(3)";

} // namespace korvel::testing
