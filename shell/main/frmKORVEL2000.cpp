// SPDX-License-Identifier: MIT
#include "shell/main/frmKORVEL2000.h"
#include "app/records/QuoteSigns.h"

#include "app/reading/Format.h"
#include "shell/machine/AsQString.h"
#include "shell/main/GoToBox.h"
#include "shell/program/Shortcuts.h"
#include "shell/screen/WindowPlaces.h"
#include "shell/window/CalculatorWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMenuBar>
#include <QTimer>

#include <chrono>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

constexpr auto clockInterval = 500ms; // the minute display is never a second late
constexpr auto placingTime = 200ms;   // in which a desktop places a new window

} // namespace

frmKORVEL2000::frmKORVEL2000(const Machine& machine, WindowCatalogue catalogue)
    : m_questions(machine.questions), m_machine{m_questions, machine.clock, machine.files,
                                                machine.bell},
      m_screen(m_machine, m_saved), m_settings(machine.files, m_questions, machine.clock,
                                               KV_Savedvalue::file, KV_Savedvalue::kinds()),
      m_offsetSettings(machine.files, m_questions, machine.clock, "KV_Clock.ini",
                       {FieldKind::Number}),
      m_shipSettings(machine.files, m_questions, machine.clock, "KV_Ship.ini",
                     {FieldKind::Text, FieldKind::Text}),
      m_recovery(machine.files, m_questions, machine.clock), m_panel(new MainPanel),
      m_shipsTime(m_saved, m_questions, machine.clock, clockHooks()),
      m_actions(m_saved, m_questions, m_settings,
                {[this] {
                     MemoHyoujiAtStart();
                     keepValues();
                 },
                 [this] { endProgram(); }, [this] { m_recovery.remove(); }}),
      m_help(machine.files),
      m_program(m_machine, m_saved, m_screen, m_actions, m_shipsTime, m_help),
      m_windows(m_program, std::move(catalogue)), m_alarmBoxes(machine.bell),
      m_menus(*menuBar(), m_windows.catalogue(), menuActions()), m_tmrClock(new QTimer(this)),
      m_ship(m_program, m_questions, machine.files, machine.clock),
      m_greeted(machine.files, m_questions, machine.clock, "KV_Help.ini", {FieldKind::Number}),
      m_isFirstStart(!hasFile("KV_KORVEL.ini") && !hasFile(RecoveryFile::name) &&
                     !hasFile(m_greeted.name()))
{
    setObjectName("frmKORVEL2000");
    setCentralWidget(m_panel);
    new PlaceWatch(m_screen, *this);
    layout()->setSizeConstraint(QLayout::SetMinimumSize);
    connect(&m_windows, &CalculatorWindows::opened, this,
            [this](const QString& name) { m_menus.tickWindow(name, true); });
    connect(&m_windows, &CalculatorWindows::closed, this,
            [this](const QString& name) { m_menus.tickWindow(name, false); });

    m_help.addMenu(*menuBar());
    addShortcuts(*m_menus.view(), m_program, *this, true);
    m_help.dress = [this](QWidget& manual) {
        addKeys(manual, m_program);
        holdInPlace(m_screen, manual);
    };
    connect(&m_program, &Program::nextWanted, this,
            [this](const QWidget* from) { m_windows.openNext(*from, *this); });
    connect(&m_program, &Program::goToWanted, this, [this](QWidget* from) { openGoTo(*from); });
    connect(&m_program, &Program::shipNowChanged, this, [this] {
        m_menus.showShip(m_program.shipNow.isShown);
        showClockRemarks();
    });
    connect(&m_screen, &Screen::coloursChanged, this, &frmKORVEL2000::applyColours);
    connect(&m_screen, &Screen::zoomChanged, this, [this] {
        QTimer::singleShot(0, this, [this] { // its layout comes first
            m_panel->setLeastWidth(menuBar()->sizeHint().width());
            adjustSize();
            if (isVisible()) placeAfterZoom(*this, false);
        });
    });
    connect(&m_screen, &Screen::chosen, this, [this] {
        m_menus.show(m_saved, m_screen.choices());
        keepValues();
    });

    loadSavedValues();
    m_menus.show(m_saved, m_screen.choices());
    m_menus.showShip(m_program.shipNow.isShown);
    m_screen.apply();
    applyColours();
    setWindowTitle(asQString(ShipsTime::caption(m_saved.TD())));

    m_tmrClock->setObjectName("tmrClock");
    m_tmrClock->setInterval(clockInterval);
    connect(m_tmrClock, &QTimer::timeout, this, &frmKORVEL2000::tmrClock_Timer);
}

ShipsTime::Hooks frmKORVEL2000::clockHooks()
{
    return {[this](const std::string& text) { m_panel->showClock(text); },
            [this](const std::string& text) { setWindowTitle(asQString(text)); },
            [this](NavFunc113::DateTime smt) {
                m_alarmBoxes.show(m_alarms.check(smt));
                m_program.tellMinute();
            }};
}

MainMenus::Actions frmKORVEL2000::menuActions()
{
    // The entry of a choice has toggled its tick: whatever comes of the choice is shown after it.
    const auto choice = [this](auto run) {
        return [this, run] {
            run();
            m_menus.show(m_saved, m_screen.choices());
            keepValues();
        };
    };
    MainMenus::Actions actions;
    actions.openWindow = [this](const QString& name) { openWindow(name); };
    actions.setUpTime = choice([this] {
        m_shipsTime.setUp();
        if (m_shipsTime.offsetSeconds() != 0 || hasFile("KV_Clock.ini"))
            m_offsetSettings.saveQuietly({m_shipsTime.offsetSeconds()});
        timeChanged();
    });
    actions.inputTD = choice([this] {
        m_shipsTime.inputTD();
        timeChanged();
    });
    actions.chooseClockZone = [this](ClockZone zone) {
        m_saved.setClockZone(zone);
        m_menus.show(m_saved, m_screen.choices());
        timeChanged();
        keepValues();
    };
    actions.setUpAlarm = [this](int n) {
        const auto show = [this] { m_menus.show(m_saved, m_screen.choices()); };
        setUpAlarm(
            n, m_saved, m_questions, [this] { return m_shipsTime.SMT(); }, show);
        show();
        showClockRemarks();
        keepValues();
    };
    actions.setUpTimeSignal = choice([this] { setUpTimeSignal(m_saved, m_questions); });
    actions.chooseDistanceUnit = choice([this] {
        m_program.setUnitOfLatitude(!m_saved.unitOfLatitude());
        MemoHyoujiAtStart();
    });
    actions.chooseColours = [this](bool night) {
        if (night != m_saved.nightColours()) m_screen.toggleNight();
        m_menus.show(m_saved, m_screen.choices());
    };
    actions.chooseReopening = [this] { m_screen.toggleReopening(); };
    actions.chooseClockOnTop = [this] {
        m_screen.toggleClockOnTop();
        setWindowFlag(Qt::WindowStaysOnTopHint, m_screen.choices().clockOnTop);
        show(); // the flag has hidden it
    };
    actions.chooseOwnFrames = [this] { m_screen.toggleOwnFrames(); };
    actions.setShipNow = [this] { m_ship.ask(); };
    actions.chooseShipShown = [this] { m_ship.toggleShown(); };
    actions.openJournal = [this] { openJournal(); };
    actions.setShip = [this] { setShip(); };
    actions.end = [this] { m_actions.ExitApplication(); };
    return actions;
}

void frmKORVEL2000::loadSavedValues()
{
    if (const auto record = m_settings.load(m_saved.record()))
        takeAndTell(m_saved, *record, m_settings.name(), m_questions);
    m_screen.apply(); // before the first box
    m_recovery.offer(m_saved);
    if (const auto ship = m_shipSettings.load())
        m_program.ship = {withQuoteSigns(textOf(ship->front())),
                          withQuoteSigns(textOf(ship->back()))};
    m_ship.load();
    const auto offset = m_offsetSettings.load();
    if (offset && !m_shipsTime.takeOffset(numberOf(offset->front())))
        m_questions.ask({"The offset of ship's time in \"KV_Clock.ini\" is refused: with it "
                         "ship's time would be beyond the calendar, which reaches from "
                         "1900 to 9999.\rShip's time goes by the computer's clock.",
                         programTitle, Buttons::Ok});
}

void frmKORVEL2000::setShip()
{
    const char* const title = "Ship and voyage";
    Program::Ship& ship = m_program.ship;
    const auto name = m_questions.input("Name of the ship, as papers show it", title, ship.name);
    if (!name) return;
    const auto voyage = m_questions.input("Voyage, as papers show it", title, ship.voyage);
    if (!voyage) return;
    ship = {*name, *voyage};
    const std::string fault =
        m_shipSettings.saveQuietly({withoutQuoteSigns(ship.name), withoutQuoteSigns(ship.voyage)});
    if (!fault.empty()) m_questions.ask({fault, programTitle, Buttons::Ok});
}

void frmKORVEL2000::openJournal()
{
    if (!m_journal) m_journal = std::make_unique<JournalWindow>(m_program);
    m_journal->refresh();
    m_journal->show();
    m_journal->raise();
    m_journal->activateWindow();
}

void frmKORVEL2000::openGoTo(QWidget& from)
{
    auto* box = new GoToBox(from, placesToGo(m_windows, from, m_help));
    box->show();
    box->raise();
    box->activateWindow();
}

bool frmKORVEL2000::hasFile(const std::string& name) const
{
    return m_machine.files.look(name).status != FileStore::Content::Status::Missing;
}

void frmKORVEL2000::start()
{
    m_tmrClock->start();
    m_shipsTime.inputTD();
    timeChanged();
    tmrClock_Timer();
    MemoHyoujiAtStart();
    keepValues();
    setWindowFlag(Qt::WindowStaysOnTopHint, m_screen.choices().clockOnTop);
    m_panel->setLeastWidth(menuBar()->sizeHint().width()); // all its menus in sight
    adjustSize(); // first: a window that changes its size while it is placed would move
    putInPlace(m_screen, *this, false);
    show();
    QTimer::singleShot(placingTime, this, [this] { bringOntoScreen(*this); });
    placeWindows();
    if (m_isFirstStart) QTimer::singleShot(placingTime, this, &frmKORVEL2000::greet);
}

/// What an officer needs to know before the first figure: beside the main window, not before it,
/// and gone with one key.
void frmKORVEL2000::greet()
{
    if (QApplication::activeModalWidget()) { // first things first
        QTimer::singleShot(placingTime, this, &frmKORVEL2000::greet);
        return;
    }
    if (!m_help.manual().has("first-start")) return;
    m_help.openBelow(*this, "first-start");
    m_greeted.saveQuietly({1.0});
}

/// Brings the windows of the last exit back, and the keyboard to the main window.
void frmKORVEL2000::placeWindows()
{
    if (!m_screen.choices().reopensWindows) return;
    for (const CatalogueEntry& entry : m_windows.catalogue()) {
        const auto place = m_screen.placeOf(entry.name);
        if (place && place->open) openWindow(entry.name);
    }
    activateWindow();
}

void frmKORVEL2000::tmrClock_Timer()
{
    m_shipsTime.JikokuHyouji();
    showClockRemarks();
    keepValues();
}

/// Whatever changed a value: the disk knows it at once, at the next tick at the latest.
void frmKORVEL2000::keepValues()
{
    m_panel->showFault(m_recovery.keep(m_saved));
}

void frmKORVEL2000::timeChanged()
{
    m_shipsTime.refresh();
    m_alarms.clockChanged(m_shipsTime.SMT());
    showClockRemarks();
    m_program.tellTD();
}

void frmKORVEL2000::showClockRemarks()
{
    const std::string offset = m_shipsTime.offsetText();
    const bool before = m_panel->hasRemarks();
    m_panel->showOffset(offset.empty() ? ""
                                       : "Ship's time is kept " + offset +
                                             (m_shipsTime.offsetSeconds() > 0 ? " of" : "") +
                                             " the computer's clock");
    m_panel->showZoneNotice(m_shipsTime.zoneNotice());
    if (before != m_panel->hasRemarks()) QTimer::singleShot(0, this, [this] { adjustSize(); });
    m_panel->showShip(m_ship.line());
    m_panel->showAlarm(nextAlarmText(m_saved, m_shipsTime.SMT()));
    m_panel->showTD((m_saved.TD() < 0 ? "TD " : "TD +") + Format(m_saved.TD(), "0.0") + " hours");
}

void frmKORVEL2000::MemoHyoujiAtStart()
{
    m_panel->showMemories(m_actions.memoLine());
    m_panel->showUnit(m_saved.unitOfLatitude() ? "1nm=1' (of LATITUDE)" : "1nm=1852m");
}

void frmKORVEL2000::applyColours()
{
    m_panel->applyColours(m_program.colours());
}

void frmKORVEL2000::closeEvent(QCloseEvent* event)
{
    if (!m_ending) m_actions.ExitApplication();
    event->setAccepted(m_ending);
}

void frmKORVEL2000::endProgram()
{
    if (m_shipsTime.offsetSeconds() != 0 || hasFile("KV_Clock.ini"))
        m_offsetSettings.saveAtClose({m_shipsTime.offsetSeconds()});
    closeEverything();
}

void frmKORVEL2000::endSession()
{
    if (m_ending) return;
    m_questions.endSession();
    keepValues();
    closeEverything();
}

void frmKORVEL2000::closeEverything()
{
    m_ending = true;
    m_tmrClock->stop();
    if (isVisible()) keepPlace(m_screen, *this, true);
    std::set<QString> open;
    for (const CalculatorWindow* each : m_windows.all())
        open.insert(each->objectName());
    m_windows.closeAll();
    m_ship.save();
    keepOpen(open);
    m_journal.reset();
    close();
    emit ended();
}

/// Closing has said of every window that it is not to come back.
void frmKORVEL2000::keepOpen(const std::set<QString>& windows)
{
    for (const CatalogueEntry& entry : m_windows.catalogue()) {
        auto place = m_screen.placeOf(entry.name);
        if (!place) continue;
        place->open = windows.contains(entry.name);
        m_screen.keepPlace(entry.name, *place);
    }
    m_screen.saveAtClose();
}

void frmKORVEL2000::comeToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    QWidget* question = QApplication::activeModalWidget();
    for (QWidget* each : {static_cast<QWidget*>(this), question}) {
        if (!each || !each->isVisible()) continue;
        each->raise();
        each->activateWindow();
    }
}

} // namespace korvel
