// SPDX-License-Identifier: MIT
#pragma once

#include "calculator_windows.h"
#include "shell/controls/Boxes.h"
#include "tests/SourceFolder.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QTest>

#include <filesystem>

namespace korvel::testing
{

/// A control and its window, for messages.
inline std::string nameOf(const QWidget& widget)
{
    return widget.window()->objectName().toStdString() + " " + widget.metaObject()->className() +
           " " + widget.objectName().toStdString();
}

/// A place and a size, for messages.
inline std::string textOf(const QRect& place)
{
    return QString("%1 %2 %3 %4")
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height())
        .toStdString();
}

/// The whole program with its manual beside it, as after the page of the first start.
class WholeProgram : public ::testing::Test
{
protected:
    WholeProgram()
    {
        questions.willType(FakeQuestions::acceptDefault);
        main.start();
    }
    ~WholeProgram() override { main.endSession(); }

    static QString afterTheFirstStart(const QTemporaryDir& folder)
    {
        std::filesystem::copy(sourceFile("docs/manual"), folder.filePath("manual").toStdString(),
                              std::filesystem::copy_options::recursive);
        ProgramFolder(folder.path()).save("KV_Help.ini", "1\r\n");
        return folder.path();
    }
    /// Every window of the program, with something in every box: the main window, those of the
    /// catalogue, a paper, the journal with that paper, the manual.
    std::vector<QWidget*> openAll()
    {
        std::vector<QWidget*> windows = {&main};
        for (const CatalogueEntry& entry : calculatorWindows())
            windows.push_back(&window(entry.name));
        fillBoxes(windows, "12.34");
        choose(window("frmWind"), "mnuPaper(0)");
        choose(window("frmWind"), "mnuPaper(4)");
        choose(main, "mnuJournal");
        for (const char* page : {"about", "frmWind"}) // there is a way back
            main.help().openPage(page);
        for (const char* name : {"frmPaper", "frmJournal", "frmHelp"})
            windows.push_back(&onScreen(name));
        QApplication::processEvents();
        return windows;
    }
    static void fillBoxes(const std::vector<QWidget*>& windows, const QString& text)
    {
        for (QWidget* each : windows)
            for (auto* box : each->findChildren<EntryBox*>())
                if (text.isEmpty() || box->text().isEmpty()) box->setText(text);
        QApplication::processEvents();
    }
    /// A calculator window, brought to the front.
    QWidget& window(const QString& name)
    {
        main.openWindow(name);
        return onScreen(name);
    }
    static QWidget& onScreen(const QString& name)
    {
        if (QWidget* found = shown(name)) return *found;
        throw std::runtime_error("no window " + name.toStdString());
    }

    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    FakeBell bell;
    ProgramFolder files{afterTheFirstStart(folder)};
    frmKORVEL2000 main{{questions, clock, files, bell}, calculatorWindows()};
};

} // namespace korvel::testing
