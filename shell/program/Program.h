// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/KORVEL2000Actions.h"
#include "app/records/KV_Savedvalue.h"
#include "app/watch/ShipsTime.h"
#include "app/working/WorkingPaper.h"
#include "shell/machine/Machine.h"
#include "shell/screen/Screen.h"

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QMenuBar;

namespace korvel
{

/// A calculator window as the main window's menus know it.
struct WindowLink {
    QString name;    ///< "frmGC2000"
    QString caption; ///< menu caption with its mnemonic
};

/// The part of the main window that calculator windows may know. One object, owned by the main
/// window, handed to every calculator window at construction.
class Program : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive this object.
    Program(const Machine& machine, KV_Savedvalue& saved, Screen& screen,
            KORVEL2000Actions& actions, ShipsTime& shipsTime);

    KV_Savedvalue& saved() { return m_saved; }
    const KV_Savedvalue& saved() const { return m_saved; }
    KORVEL2000Actions& actions() { return m_actions; }
    ShipsTime& shipsTime() { return m_shipsTime; }
    const ShipsTime& shipsTime() const { return m_shipsTime; }
    Questions& questions() { return m_machine.questions; }
    FileStore& files() { return m_machine.files; }
    ComputerClock& clock() { return m_machine.clock; }

    /// Spheroid option of the sailing routines, by the distance unit that is chosen.
    NavFunc113::Earth earth() const { return m_saved.earth(); }

    Screen& screen() { return m_screen; }
    /// The colours in force.
    const ColourScheme& colours() const;
    /// While one lives, the colours in force are those of paper.
    class PaperColours
    {
    public:
        explicit PaperColours(Program& program) : m_program(program) { m_program.m_onPaper = true; }
        ~PaperColours() { m_program.m_onPaper = false; }
        PaperColours(const PaperColours&) = delete;
        PaperColours& operator=(const PaperColours&) = delete;

    private:
        Program& m_program;
    };

    /// Ship and voyage as the officer set them once; empty until then.
    struct Ship {
        std::string name;
        std::string voyage;
    };
    Ship ship;
    /// The heading of a working paper that is made at this moment.
    PaperHeading paperHeading() const;

    /// The other windows that can be opened, in menu order.
    std::vector<WindowLink> links;
    /// Opens a window by its name, as its menu entry does.
    std::function<void(const QString&)> openWindow = [](const QString&) {};
    /// Adds the menu of the manual to a window.
    std::function<void(QMenuBar&)> addHelpMenu = [](QMenuBar&) {};
    /// Gives the keyboard to the open window after this one, the main window among them.
    std::function<void(const QWidget&)> nextWindow = [](const QWidget&) {};

signals:
    void distanceUnitChanged();
    void coloursChanged();
    void TDChanged();
    /// Every window is to write its record now: the program may be about to end.
    void recordsWanted();
    /// The clocks show another minute.
    void minuteChanged();
    /// The officer wants to go somewhere by its name.
    /// @param from the window in hand
    void goToWanted(QWidget* from);
    /// A calculator window closed; its menu entry is unticked.
    void windowClosed(const QString& name);

private:
    Machine m_machine;
    KV_Savedvalue& m_saved;
    Screen& m_screen;
    KORVEL2000Actions& m_actions;
    ShipsTime& m_shipsTime;
    bool m_onPaper = false;
};

} // namespace korvel
