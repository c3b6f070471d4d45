// SPDX-License-Identifier: MIT
#pragma once

#include "app/alarms.h"
#include "app/shell/AlarmBoxes.h"
#include "app/shell/Program.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <map>
#include <vector>

class QAction;
class QLabel;
class QMenu;
class QTimer;

namespace korvel
{

class CalculatorWindow;

/// A calculator window that the main window can open: its class name and how it is made.
struct WindowFactory {
    QString name;
    std::function<CalculatorWindow*(Program&)> make;
};

/// The main window: ship's clocks, memo line, distance unit, and the menus that open everything.
class frmKORVEL2000 : public QMainWindow
{
    Q_OBJECT

public:
    /// Loads the saved values and builds the window. start() then asks for TD and shows it.
    /// @param machine   must outlive the window
    /// @param factories the windows of this program; menu entries without one are greyed out
    frmKORVEL2000(const Machine& machine, std::vector<WindowFactory> factories);
    ~frmKORVEL2000() override;

    /// Asks for the time difference, draws clocks and memo line, shows the window and starts the
    /// clock timer.
    void start();

    /// Opens a calculator window, or brings it to the front, and ticks its entry.
    void openWindow(const QString& name);

    Program& program() { return m_program; }

    /// Called by the clock timer, and by tests.
    void tmrClock_Timer();

signals:
    /// The officer confirmed the exit; every window is closed and all is saved.
    void ended();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void loadSavedValues();
    void buildLabels();
    void buildMenus();
    void buildCalculatorMenus();
    void buildPropertyMenu();
    QAction* addEntry(QMenu* menu, const QString& name, const QString& caption,
                      std::function<void()> action);
    void MemoHyoujiAtStart();
    void showClock(const std::string& text);
    void buildAlarmMenu(QMenu* property);
    void setUpTime();
    void timeChanged();
    void chooseClockZone(ClockZone zone);
    void chooseDistanceUnit();
    void chooseColours();
    void applyColours();
    void showTicks();
    void endProgram();

    Machine m_machine;
    std::vector<WindowFactory> m_factories;
    KV_Savedvalue m_saved;
    SettingsFile m_settings;
    SettingsFile m_offsetSettings; ///< offset of ship's time where the clock cannot be set
    ShipsTime m_shipsTime;
    KORVEL2000Actions m_actions;
    Program m_program;
    Alarms m_alarms{m_saved};
    AlarmBoxes m_alarmBoxes;

    QLabel* m_lblTime = nullptr;
    QLabel* m_lblMEMO = nullptr;
    QLabel* m_lbl1NM = nullptr;
    QLabel* m_lblOffset = nullptr;
    QTimer* m_tmrClock = nullptr;
    std::map<QString, QAction*> m_entries; ///< menu entries by object name
    std::map<QString, QAction*> m_windowEntries;
    std::map<QString, QPointer<CalculatorWindow>> m_windows;
    bool m_ending = false;
};

} // namespace korvel
