// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/KORVEL2000Actions.h"
#include "app/records/KV_Savedvalue.h"
#include "app/records/ObservedFix.h"
#include "app/records/PlannedSights.h"
#include "app/records/RecordFile.h"
#include "app/watch/ShipNow.h"
#include "app/watch/ShipsTime.h"
#include "app/working/WorkingPaper.h"
#include "shell/machine/Machine.h"
#include "shell/manual/HelpDesk.h"
#include "shell/program/PlanExchange.h"
#include "shell/screen/Screen.h"

#include <QObject>
#include <QString>
#include <QWidget>

#include <optional>
#include <string>
#include <vector>

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
            KORVEL2000Actions& actions, ShipsTime& shipsTime, HelpDesk& help);

    KV_Savedvalue& saved() { return m_saved; }
    const KV_Savedvalue& saved() const { return m_saved; }
    KORVEL2000Actions& actions() { return m_actions; }
    ShipsTime& shipsTime() { return m_shipsTime; }
    const ShipsTime& shipsTime() const { return m_shipsTime; }
    HelpDesk& help() { return m_help; }
    Questions& questions() { return m_machine.questions; }
    FileStore& files() { return m_machine.files; }
    ComputerClock& clock() { return m_machine.clock; }

    /// Spheroid option of the sailing routines, by the distance unit that is chosen.
    NavFunc113::Earth earth() const { return m_saved.earth(); }

    Screen& screen() { return m_screen; }
    /// The colours in force.
    const ColourScheme& colours() const { return m_screen.colours(); }

    /// Ship and voyage as the officer set them once; empty until then.
    struct Ship {
        std::string name;
        std::string voyage;
    };
    Ship ship;
    /// Where the ship is, and how she goes. Whoever changes it says so by tellShipNow().
    ShipNow shipNow;
    /// Her position run on to this minute.
    std::optional<ShipNow::Position> shipsPosition() const;

    PlanExchange plan;

    /// A fix by observation that waits to be taken into the position record.
    std::optional<ObservedFix> fixForRecord;

    /// Sights that are to be taken; those of the last run from their file.
    const PlannedSights& plannedSights();
    /// Plans other sights instead, and writes their file.
    /// @return why the file could not be written, in words; the plan stands all the same
    std::string planSights(const PlannedSights& sights);

    /// The heading of a working paper that is made at this moment.
    PaperHeading paperHeading() const;

    /// The other windows that can be opened, in menu order.
    std::vector<WindowLink> links;

    // What a window wants of the others.

    /// Opens a window by its name, as its menu entry does.
    void openWindow(const QString& name) { emit windowWanted(name); }
    /// The same at a place, as CalculatorWindow::goTo() takes it.
    void openWindowAt(const QString& name, const QString& place) { emit placeWanted(name, place); }
    /// Gives the keyboard to the open window after this one, the main window among them.
    void nextWindow(const QWidget& from) { emit nextWanted(&from); }
    /// Asks the officer where to go.
    /// @param from the window in hand
    void goTo(QWidget& from) { emit goToWanted(&from); }
    /// A calculator window is closing.
    void tellClosed(const QWidget& window) { emit windowClosed(window.objectName()); }

    // What the main window tells them all.

    void setUnitOfLatitude(bool latitude);
    void tellTD() { emit TDChanged(); }
    void tellMinute() { emit minuteChanged(); }
    /// The ship now is another.
    void tellShipNow() { emit shipNowChanged(); }
    /// A circle is to be taken into the plan, whose window is opened.
    void sendToPlan(const PlanExchange::Circle& circle);
    /// A fix is to be taken into the position record, whose window is opened.
    void sendToRecord(const ObservedFix& fix);
    /// Sights are to be taken: plans them and opens the window that takes them.
    /// @return as planSights()
    std::string sendToSights(const PlannedSights& sights);
    /// Has every window write its record now: the program may be about to end.
    void saveRecords() { emit recordsWanted(); }

signals:
    void distanceUnitChanged();
    void coloursChanged();
    void TDChanged();
    void shipNowChanged();
    /// PlanExchange::circleForPlan is there to be taken.
    void circleOffered();
    /// fixForRecord is there to be taken.
    void fixOffered();
    /// plannedSights() are others now.
    void sightsPlanned();
    /// Every window is to write its record now: the program may be about to end.
    void recordsWanted();
    /// The clocks show another minute.
    void minuteChanged();
    void windowWanted(const QString& name);
    void placeWanted(const QString& name, const QString& place);
    void nextWanted(const QWidget* from);
    void goToWanted(QWidget* from);
    /// A calculator window closed; its menu entry is unticked.
    void windowClosed(const QString& name);

private:
    Machine m_machine;
    RecordFile m_plannedFile;
    std::optional<PlannedSights> m_plannedSights; ///< nothing before the file was read
    KV_Savedvalue& m_saved;
    Screen& m_screen;
    KORVEL2000Actions& m_actions;
    ShipsTime& m_shipsTime;
    HelpDesk& m_help;
};

} // namespace korvel
