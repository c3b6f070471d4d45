// SPDX-License-Identifier: MIT
#include "app/shell/frmKORVEL2000.h"

#include "app/RecoveryFile.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMenuBar>
#include <QTimer>

namespace korvel
{
namespace
{

constexpr int clockInterval = 500; // milliseconds: the minute display is never a second late

} // namespace

frmKORVEL2000::frmKORVEL2000(const Machine& machine, WindowCatalogue catalogue)
    : m_machine(machine), m_settings(machine.files, machine.questions, machine.clock,
                                     "KV_KORVEL.ini", KV_Savedvalue::kinds()),
      m_offsetSettings(machine.files, machine.questions, machine.clock, "KV_Clock.ini",
                       {Kind::Number}),
      m_panel(new MainPanel), m_shipsTime(m_saved, machine.questions, machine.clock, clockHooks()),
      m_actions(m_saved, machine.questions, m_settings,
                {[this] { MemoHyoujiAtStart(); }, [this] { endProgram(); }}),
      m_program(machine, m_saved, m_actions, m_shipsTime),
      m_windows(m_program, std::move(catalogue)), m_alarmBoxes(machine.bell),
      m_menus(*menuBar(), m_windows.catalogue(), menuActions()), m_tmrClock(new QTimer(this))
{
    setObjectName("frmKORVEL2000");
    setCentralWidget(m_panel);
    layout()->setSizeConstraint(QLayout::SetMinimumSize);
    connect(&m_windows, &CalculatorWindows::opened, this,
            [this](const QString& name) { m_menus.tickWindow(name, true); });
    connect(&m_windows, &CalculatorWindows::closed, this,
            [this](const QString& name) { m_menus.tickWindow(name, false); });

    loadSavedValues();
    m_menus.show(m_saved);
    applyColours();
    setWindowTitle(QString::fromStdString(ShipsTime::caption(m_saved.TD())));

    m_tmrClock->setObjectName("tmrClock");
    m_tmrClock->setInterval(clockInterval);
    connect(m_tmrClock, &QTimer::timeout, this, &frmKORVEL2000::tmrClock_Timer);
}

ShipsTime::Hooks frmKORVEL2000::clockHooks()
{
    return {[this](const std::string& text) { m_panel->showClock(text); },
            [this](const std::string& text) { setWindowTitle(QString::fromStdString(text)); },
            [this](NavFunc113::DateTime smt) { m_alarmBoxes.show(m_alarms.check(smt)); }};
}

MainMenus::Actions frmKORVEL2000::menuActions()
{
    // The entry of a choice has toggled its tick: whatever comes of the choice is shown after it.
    const auto choice = [this](auto run) {
        return [this, run] {
            run();
            m_menus.show(m_saved);
        };
    };
    MainMenus::Actions actions;
    actions.openWindow = [this](const QString& name) { openWindow(name); };
    actions.setUpTime = choice([this] {
        m_shipsTime.setUp();
        timeChanged();
    });
    actions.inputTD = choice([this] {
        m_shipsTime.inputTD();
        timeChanged();
    });
    actions.chooseClockZone = [this](ClockZone zone) {
        m_saved.setClockZone(zone);
        m_menus.show(m_saved);
        timeChanged();
    };
    actions.setUpAlarm = [this](int n) {
        setUpAlarm(n, m_saved, m_machine.questions, [this] { m_menus.show(m_saved); });
        m_menus.show(m_saved);
    };
    actions.setUpTimeSignal = choice([this] { setUpTimeSignal(m_saved, m_machine.questions); });
    actions.chooseDistanceUnit = choice([this] {
        m_saved.setUnitOfLatitude(!m_saved.unitOfLatitude());
        MemoHyoujiAtStart();
        emit m_program.distanceUnitChanged();
    });
    actions.chooseColours = choice([this] {
        m_saved.setNightColours(!m_saved.nightColours());
        applyColours();
    });
    actions.end = [this] { m_actions.ExitApplication(); };
    return actions;
}

void frmKORVEL2000::loadSavedValues()
{
    if (const auto record = m_settings.load(m_saved.record()))
        takeAndTell(m_saved, *record, m_settings.name(), m_machine.questions);
    const auto offset = m_offsetSettings.load();
    if (offset && !m_shipsTime.takeOffset(numberOf(offset->front())))
        m_machine.questions.ask(
            {"The offset of ship's time in \"KV_Clock.ini\" is refused: with it "
             "ship's time would be beyond the calendar, which reaches from "
             "1900 to 9999.\rShip's time goes by the computer's clock.",
             programTitle, Buttons::Ok});
}

void frmKORVEL2000::start()
{
    m_tmrClock->start();
    m_shipsTime.inputTD();
    timeChanged();
    tmrClock_Timer();
    MemoHyoujiAtStart();
    show();
}

void frmKORVEL2000::tmrClock_Timer()
{
    m_shipsTime.JikokuHyouji();
    showClockRemarks();
}

void frmKORVEL2000::timeChanged()
{
    m_shipsTime.refresh();
    m_alarms.clockChanged(m_shipsTime.SMT());
    showClockRemarks();
    emit m_program.TDChanged();
}

void frmKORVEL2000::showClockRemarks()
{
    const std::string offset = m_shipsTime.offsetText();
    m_panel->showOffset(
        offset.empty() ? "" : "Ship's time is kept " + offset + " of the computer's clock");
    m_panel->showZoneNotice(m_shipsTime.zoneNotice());
}

void frmKORVEL2000::MemoHyoujiAtStart()
{
    m_panel->showMemories(m_actions.memoLine());
    m_panel->showUnit(m_saved.unitOfLatitude() ? "1nm=1' (of LATITUDE)" : "1nm=1852m");
}

void frmKORVEL2000::applyColours()
{
    const ColourScheme& colours = m_program.colours();
    QApplication::setPalette(colours.palette);
    m_panel->applyColours(colours);
    emit m_program.coloursChanged();
}

void frmKORVEL2000::closeEvent(QCloseEvent* event)
{
    if (m_ending) {
        event->accept();
        return;
    }
    event->ignore();
    m_actions.ExitApplication();
}

void frmKORVEL2000::endProgram()
{
    m_ending = true;
    m_tmrClock->stop();
    if (m_shipsTime.offsetSeconds() != 0 ||
        m_machine.files.read("KV_Clock.ini").status != FileStore::Content::Status::Missing)
        m_offsetSettings.saveAtClose({m_shipsTime.offsetSeconds()});
    m_windows.closeAll();
    close();
    emit ended();
}

} // namespace korvel
