// SPDX-License-Identifier: MIT
#include "app/shell/frmKORVEL2000.h"

#include "app/Format.h"
#include "app/shell/CalculatorWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>

namespace korvel
{
namespace
{

constexpr int clockInterval = 500; // milliseconds: the minute display is never a second late

/// The calculator entries of the menus, in the order in which the menu arrays number them.
struct CalculatorEntry {
    const char* menu;
    int index; ///< 0: an entry that is no array
    const char* window;
    const char* caption;
};
constexpr CalculatorEntry calculatorEntries[] = {
    {"mnuNAV", 1, "frmCDDR", "&Course, distance and dead reckoning"},
    {"mnuNAV", 2, "frmGC2000", "&Great circle"},
    {"mnuNAV", 3, "frmSunMoon", "&Sun and moon, rise and set"},
    {"mnuWATCH", 1, "frmPositionRecord", "&Position record"},
    {"mnuWATCH", 2, "frmSunSight", "&Sun sight"},
    {"mnuWATCH", 3, "frmETA", "&ETA"},
    {"mnuWATCH", 4, "frmWind", "True &wind"},
    {"mnuWATCH", 5, "frmWeather", "We&ather"},
    {"mnuCONV", 1, "frmCRUDE", "&Crude oil"},
    {"mnuCONV", 2, "frmLength", "&Length"},
    {"mnuCONV", 3, "frmVolume", "&Volume"},
    {"mnuCONV", 4, "frmArea", "&Area"},
    {"mnuCONV", 5, "frmWeight", "&Weight"},
    {"mnuCONV", 6, "frmPressure", "&Pressure"},
    {"mnuTide", 0, "frmTIDE", "&Tide and tidal stream"},
};

std::vector<Kind> savedValueKinds()
{
    std::vector<Kind> kinds(KV_Savedvalue::count, Kind::Number);
    for (int zone = 0; zone < 3; ++zone)
        kinds[static_cast<std::size_t>(zone)] = Kind::Tick;
    for (int n = 1; n <= KV_Savedvalue::alarms; ++n) {
        const auto first = static_cast<std::size_t>(3 * n);
        kinds[first] = Kind::Tick;
        kinds[first + 1] = Kind::Text;
        kinds[first + 2] = Kind::Text;
    }
    kinds[18] = Kind::Tick;
    kinds[20] = Kind::Any;
    kinds[21] = Kind::Any;
    return kinds;
}

} // namespace

frmKORVEL2000::frmKORVEL2000(const Machine& machine, std::vector<WindowFactory> factories)
    : m_machine(machine), m_factories(std::move(factories)),
      m_settings(machine.files, machine.questions, "KV_KORVEL.ini", savedValueKinds()),
      m_offsetSettings(machine.files, machine.questions, "KV_Clock.ini", {Kind::Number}),
      m_shipsTime(
          m_saved, machine.questions, machine.clock,
          {[this](const std::string& text) { showClock(text); },
           [this](const std::string& text) { setWindowTitle(QString::fromStdString(text)); },
           [this](NavFunc113::DateTime smt) {
               m_alarmBoxes.show(m_alarms.check(smt));
               emit m_program.minuteChanged();
           }}),
      m_actions(m_saved, machine.questions, m_settings,
                {[this] { MemoHyoujiAtStart(); }, [this] { endProgram(); }}),
      m_program(machine, m_saved, m_actions, m_shipsTime), m_alarmBoxes(machine.bell)
{
    setObjectName("frmKORVEL2000");
    m_program.openWindow = [this](const QString& name) { openWindow(name); };
    loadSavedValues();
    buildLabels();
    buildMenus();
    showTicks();
    applyColours();
    setWindowTitle(QString::fromStdString(ShipsTime::caption(m_saved.TD())));
    connect(&m_program, &Program::windowClosed, this, [this](const QString& name) {
        if (QAction* entry = m_windowEntries[name]) entry->setChecked(false);
    });

    m_tmrClock = new QTimer(this);
    m_tmrClock->setObjectName("tmrClock");
    m_tmrClock->setInterval(clockInterval);
    connect(m_tmrClock, &QTimer::timeout, this, &frmKORVEL2000::tmrClock_Timer);
}

frmKORVEL2000::~frmKORVEL2000()
{
    for (auto& [name, window] : m_windows)
        delete window;
}

void frmKORVEL2000::loadSavedValues()
{
    if (const auto record = m_settings.load()) m_saved.take(*record);
    if (const auto offset = m_offsetSettings.load())
        m_shipsTime.setOffsetSeconds(numberOf(offset->front()));
}

void frmKORVEL2000::start()
{
    m_shipsTime.inputTD();
    tmrClock_Timer();
    MemoHyoujiAtStart();
    show();
    m_tmrClock->start();
}

void frmKORVEL2000::tmrClock_Timer()
{
    m_shipsTime.JikokuHyouji();
}

void frmKORVEL2000::buildLabels()
{
    const auto addLabel = [this](const char* name, double size) {
        auto* label = new QLabel;
        label->setObjectName(name);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * size);
        label->setFont(font);
        return label;
    };
    m_lblTime = addLabel("lblTime", 1.8);
    m_lblMEMO = addLabel("lblMEMO", 1.1);
    m_lbl1NM = addLabel("lbl1NM", 1.1);
    m_lblOffset = addLabel("lblOffset", 1.0);
    m_lblOffset->hide();

    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    for (QLabel* label : {m_lblTime, m_lblOffset, m_lblMEMO, m_lbl1NM})
        column->addWidget(label);
    setCentralWidget(centre);
    layout()->setSizeConstraint(QLayout::SetMinimumSize);
}

QAction* frmKORVEL2000::addEntry(QMenu* menu, const QString& name, const QString& caption,
                                 std::function<void()> action)
{
    QAction* entry = menu->addAction(caption, this, std::move(action));
    entry->setObjectName(name);
    m_entries[name] = entry;
    return entry;
}

void frmKORVEL2000::buildMenus()
{
    buildCalculatorMenus();
    buildPropertyMenu();
    QAction* end = menuBar()->addAction("&End", this, [this] { m_actions.ExitApplication(); });
    end->setObjectName("mnuEND");
}

void frmKORVEL2000::buildCalculatorMenus()
{
    std::map<QString, QMenu*> menus;
    const auto addMenu = [&](QMenu* menu, const char* name) {
        menu->setObjectName(name);
        menus[name] = menu;
    };
    addMenu(menuBar()->addMenu("&Navigation"), "mnuNAV");
    addMenu(menuBar()->addMenu("&Watch"), "mnuWATCH");
    addMenu(menuBar()->addMenu("&Utilities"), "mnuUTIL");
    addMenu(menus["mnuUTIL"]->addMenu("&Conversion"), "mnuCONV");
    menus["mnuTide"] = menus["mnuUTIL"];

    for (const auto& [menu, index, window, caption] : calculatorEntries) {
        const QString name = index > 0 ? memberName(menu, index) : QString(menu);
        QAction* entry = addEntry(menus[menu], name, caption,
                                  [this, window = QString(window)] { openWindow(window); });
        entry->setCheckable(true);
        const bool known = std::any_of(m_factories.begin(), m_factories.end(),
                                       [&](const auto& each) { return each.name == window; });
        entry->setEnabled(known);
        m_windowEntries[window] = entry;
        if (known) m_program.links.push_back({window, caption});
    }
}

void frmKORVEL2000::buildPropertyMenu()
{
    QMenu* property = menuBar()->addMenu("&Property");
    property->setObjectName("mnuPROPERTY");
    addEntry(property, "mnuPROPERTY(1)", "&Ship's time set-up..", [this] { setUpTime(); });
    property->addSeparator()->setObjectName("mnuPROPERTY(2)");
    addEntry(property, "mnuPROPERTY(3)", "&Time difference..", [this] {
        m_shipsTime.inputTD();
        timeChanged();
    });

    QMenu* zone = property->addMenu("The computer's &clock keeps");
    zone->setObjectName("mnuSystemClock");
    const char* const zones[] = {"&JST", "&SMT", "&UTC"};
    for (int i = 0; i < 3; ++i)
        addEntry(zone, memberName("mnuSystemClock", i), zones[i], [this, i] {
            chooseClockZone(static_cast<ClockZone>(i));
        })->setCheckable(true);
    buildAlarmMenu(property);
    property->addSeparator();
    addEntry(property, "mnuDIST", "1nm=1' of &latitude", [this] {
        chooseDistanceUnit();
    })->setCheckable(true);
    addEntry(property, "mnuBackColor", "&Night colours", [this] {
        chooseColours();
    })->setCheckable(true);
}

void frmKORVEL2000::buildAlarmMenu(QMenu* property)
{
    QMenu* alarms = property->addMenu("&Alarms");
    alarms->setObjectName("mnuALARM");
    for (int n = 1; n <= KV_Savedvalue::alarms; ++n)
        addEntry(alarms, memberName("mnuALARM", n), {}, [this, n] {
            setUpAlarm(n, m_saved, m_machine.questions, [this] { showTicks(); });
            // A choice toggles the tick; after No it must be what it was.
            showTicks();
        })->setCheckable(true);
    addEntry(property, "mnuSIGNAL", "Time s&ignal..", [this] {
        setUpTimeSignal(m_saved, m_machine.questions);
        showTicks();
    })->setCheckable(true);
}

void frmKORVEL2000::setUpTime()
{
    m_shipsTime.setUp();
    showTicks();
    timeChanged();
}

void frmKORVEL2000::timeChanged()
{
    m_shipsTime.refresh();
    m_alarms.clockChanged(m_shipsTime.SMT());
    emit m_program.TDChanged();
}

void frmKORVEL2000::showTicks()
{
    for (int n = 1; n <= KV_Savedvalue::alarms; ++n) {
        QAction* alarm = m_entries[memberName("mnuALARM", n)];
        alarm->setText(QString::fromStdString(alarmCaption(n, m_saved)));
        alarm->setChecked(m_saved.alarmEnabled(n));
    }
    m_entries["mnuSIGNAL"]->setChecked(m_saved.timeSignal());
    for (int i = 0; i < 3; ++i)
        m_entries[memberName("mnuSystemClock", i)]->setChecked(tickOf(m_saved(i)));
    m_entries["mnuDIST"]->setChecked(m_saved.unitOfLatitude());
    m_entries["mnuBackColor"]->setChecked(m_saved.nightColours());
    const double offset = m_shipsTime.offsetSeconds();
    m_lblOffset->setVisible(offset != 0);
    m_lblOffset->setText(QString("Ship's time is kept %1 s %2 of the computer's clock")
                             .arg(QString::fromStdString(Format(std::fabs(offset), "#,##0")),
                                  offset > 0 ? "ahead" : "behind"));
}

void frmKORVEL2000::MemoHyoujiAtStart()
{
    m_lblMEMO->setText(QString::fromStdString(m_actions.memoLine()));
    m_lbl1NM->setText(m_saved.unitOfLatitude() ? "1nm=1' (of LATITUDE)" : "1nm=1852m");
    m_entries["mnuDIST"]->setChecked(m_saved.unitOfLatitude());
}

void frmKORVEL2000::showClock(const std::string& text)
{
    m_lblTime->setText(QString::fromStdString(text));
}

void frmKORVEL2000::chooseClockZone(ClockZone zone)
{
    m_saved.setClockZone(zone);
    showTicks();
    timeChanged();
}

void frmKORVEL2000::chooseDistanceUnit()
{
    m_saved.setUnitOfLatitude(!m_saved.unitOfLatitude());
    MemoHyoujiAtStart();
    emit m_program.distanceUnitChanged();
}

void frmKORVEL2000::chooseColours()
{
    m_saved.setNightColours(!m_saved.nightColours());
    showTicks();
    applyColours();
}

void frmKORVEL2000::applyColours()
{
    const ColourScheme& colours = m_program.colours();
    QApplication::setPalette(colours.palette);
    const auto tint = [](QLabel* label, const QColor& colour) {
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, colour);
        label->setPalette(palette);
    };
    tint(m_lblTime, colours.clock);
    tint(m_lblMEMO, colours.memo);
    tint(m_lbl1NM, colours.unit);
    tint(m_lblOffset, colours.notice);
    emit m_program.coloursChanged();
}

void frmKORVEL2000::openWindow(const QString& name)
{
    QPointer<CalculatorWindow>& window = m_windows[name];
    for (const WindowFactory& factory : m_factories)
        if (!window && factory.name == name) window = factory.make(m_program);
    if (!window) return;
    m_windowEntries[name]->setChecked(true);
    window->show();
    window->raise();
    window->activateWindow();
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
    for (auto& [name, window] : m_windows)
        if (window) window->close();
    close();
    emit ended();
}

} // namespace korvel
