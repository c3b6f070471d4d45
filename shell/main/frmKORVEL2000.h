// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/RecoveryFile.h"
#include "app/watch/Alarms.h"
#include "shell/machine/SessionQuestions.h"
#include "shell/main/AlarmBoxes.h"
#include "shell/main/CalculatorWindows.h"
#include "shell/main/MainMenus.h"
#include "shell/main/MainPanel.h"
#include "shell/main/ShipKeeper.h"
#include "shell/manual/HelpDesk.h"
#include "shell/paper/JournalWindow.h"
#include "shell/program/Program.h"

#include <QMainWindow>

#include <memory>
#include <set>

class QTimer;

namespace korvel
{

/// The main window: ship's clocks, memo line, distance unit, and the menus that open everything.
class frmKORVEL2000 : public QMainWindow
{
    Q_OBJECT

public:
    /// Loads the saved values and builds the window. start() then asks for TD and shows it.
    /// @param machine   must outlive the window
    /// @param catalogue the calculator windows of this program
    frmKORVEL2000(const Machine& machine, WindowCatalogue catalogue);

    /// Starts the clock, so that alarms ring from now on, asks for the time difference, and shows
    /// the window.
    void start();

    /// Opens a calculator window, or brings it to the front, and ticks its entry.
    void openWindow(const QString& name) { m_windows.open(name); }

    Program& program() { return m_program; }

    /// Restores and raises the window, and a question that stands before it.
    void comeToFront();

    /// Ends the program without a question, as a logout or SIGTERM wants it: every window writes
    /// its record. The saved values stay in the recovery file, for the officer has not confirmed.
    void endSession();

    /// Called by the clock timer, and by tests.
    void tmrClock_Timer();

    HelpDesk& help() { return m_help; }

signals:
    /// Every window is closed and all is saved.
    void ended();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    ShipsTime::Hooks clockHooks();
    MainMenus::Actions menuActions();
    void loadSavedValues();
    bool hasFile(const std::string& name) const;
    void greet();
    void MemoHyoujiAtStart();
    void showClockRemarks();
    void setShip();
    void openJournal();
    void openGoTo(QWidget& from);
    void timeChanged();
    void keepValues();
    void placeWindows();
    void applyColours();
    void keepOpen(const std::set<QString>& windows);
    void endProgram();
    void closeEverything();

    SessionQuestions m_questions;
    Machine m_machine;
    KV_Savedvalue m_saved;
    Screen m_screen;
    SettingsFile m_settings;
    SettingsFile m_offsetSettings; ///< offset of ship's time where the clock cannot be set
    SettingsFile m_shipSettings;   ///< ship and voyage, for the heading of papers
    RecoveryFile m_recovery;
    MainPanel* m_panel;
    ShipsTime m_shipsTime;
    KORVEL2000Actions m_actions;
    HelpDesk m_help;
    Program m_program;
    CalculatorWindows m_windows;
    Alarms m_alarms{m_saved};
    AlarmBoxes m_alarmBoxes;
    MainMenus m_menus;
    QTimer* m_tmrClock;
    std::unique_ptr<JournalWindow> m_journal; ///< once it was opened
    ShipKeeper m_ship;
    SettingsFile m_greeted; ///< there once the page of the first start was shown
    bool m_isFirstStart;
    bool m_ending = false;
};

} // namespace korvel
