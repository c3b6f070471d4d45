// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/frmTIDE.h"

#include "forms/frmTIDE/StationSearch.h"
#include "navlib/arithmetic_error.h"
#include "navlib/datetime.h"

#include <QSignalBlocker>

#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

constexpr auto scrollPause = 300ms; // the date has come to rest

} // namespace

frmTIDE::frmTIDE(Program& program)
    : CalculatorWindow(program, "frmTIDE", "TIDE"), m_list(program.files()),
      m_constants(program.files()), m_dates(TideDates::of(program.files())),
      m_habitsFile(program.files(), program.questions(), program.clock(), "KV_TideOwn.ini",
                   habitKinds()),
      m_stationMenus(program, menus(), m_list,
                     [this](const StationChoice& station) { choose(station); }),
      m_progress(new QProgressBar(body())),
      m_extender(program, *m_progress, [this] { readDates(); }), m_reports(program, *this, paper())
{
    loadHabits();
    addControls();
    addMenus();
    m_save.setSingleShot(true);
    connect(&m_save, &QTimer::timeout, this, [this] { record().saveNow(); });
    connect(&program, &Program::minuteChanged, this, &frmTIDE::showNow);

    put(m_choice);
    record().use(
        "KV_Tide.ini", {Kind::Tick, Kind::Text, Kind::Text}, [this] { return recordOf(m_choice); },
        [this](const Record& record) {
            const SavedChoice saved = choiceOf(record, m_dates);
            m_choice = saved.choice;
            setNotice("saved", QString::fromStdString(saved.notice));
        });
    loadSettings();
    readDates();
    take(m_choice, Telling::Box, AfterFault::Stay);
    m_scrDate->setFocus();
    fitToScreen();
}

void frmTIDE::choose(const StationChoice& station)
{
    take({station.TideMode, station.place, m_choice.lblDate}, Telling::Box, AfterFault::GoBack);
}

void frmTIDE::findStation()
{
    const std::string typed = m_txtFind->value();
    const std::vector<FoundStation> found = findStations(typed);
    std::string others;
    for (std::size_t i = 1; i < found.size(); ++i)
        others += (i == 1 ? "" : ", ") + found[i].place + (found[i].TideMode ? "" : " (stream)");
    if (found.empty()) {
        setNotice("find",
                  QString::fromStdString(typed.empty() ? ""
                                                       : "No station has \"" + typed +
                                                             "\" (three letters at least)"));
        return;
    }
    setNotice("find", QString::fromStdString(others.empty() ? "" : "Found too: " + others));
    const StationChoice first{found[0].TideMode, found[0].place};
    if (const QString reason = m_stationMenus.reasonAgainst(first); !reason.isEmpty()) {
        setNotice("find", QString::fromStdString(first.place) + ": " + reason);
        return;
    }
    choose(first);
}

std::int64_t frmTIDE::today()
{
    return static_cast<std::int64_t>(std::floor(program().shipsTime().SMT()));
}

void frmTIDE::askDate()
{
    std::optional<std::int64_t> date;
    while (!date)
        date = TideDates::dateIn(
            program()
                .questions()
                .input(std::string(tideDatePrompt), programTitle, TideDates::defaultAnswer(today()))
                .value_or(""));
    chooseDate(*date);
}

void frmTIDE::chooseDate(std::int64_t date)
{
    if (!m_dates.contains(date)) {
        program().questions().ask({m_dates.refusal(), programTitle, Buttons::Ok});
        if (date < m_dates.firstSerial() || !m_extender.offer(date)) return;
    }
    take({m_choice.TideMode, m_choice.lblPlace, TideDates::label(date)}, Telling::Box,
         AfterFault::GoBack);
}

void frmTIDE::scrDate_Change(int value)
{
    const std::int64_t date = m_dates.serialOfScrollValue(value);
    take({m_choice.TideMode, m_choice.lblPlace, TideDates::label(date)}, Telling::Line,
         AfterFault::GoBack);
}

/// The factors file is another one: so are the dates.
void frmTIDE::readDates()
{
    m_dates = TideDates::of(program().files());
    const QSignalBlocker quiet(m_scrDate);
    m_scrDate->setRange(m_dates.scrollMinimum(), m_dates.scrollMaximum());
    m_mnuUndo->setEnabled(m_extender.canTakeBack());
    const bool isShipped = m_dates.lastSerial() == TideDates().lastSerial();
    m_lblInUse->setVisible(!isShipped);
    m_lblInUse->setText(QString::fromStdString("Predictions to " +
                                               TideDates::label(m_dates.lastSerial()) + " with " +
                                               program().files().path(factorsFileName)));
    const auto shown = TideDates::dateIn(m_choice.lblDate);
    if (shown && !m_dates.contains(*shown))
        take({m_choice.TideMode, m_choice.lblPlace, TideDates::label(m_dates.lastSerial())},
             Telling::Line, AfterFault::GoBack);
    showNow();
}

/// Once in a year that the factors file does not reach, when the window is first seen in it.
void frmTIDE::offerUnasked()
{
    const int year = NavFunc113::DateOfSerial(today()).year;
    if (m_dates.contains(today()) || m_habits.offeredYear >= year) return;
    m_habits.offeredYear = year;
    storeHabits();
    if (!m_extender.offer(today())) return;
    take({m_choice.TideMode, m_choice.lblPlace, TideDates::label(today())}, Telling::Box,
         AfterFault::GoBack);
}

void frmTIDE::showEvent(QShowEvent* event)
{
    CalculatorWindow::showEvent(event);
    if (m_hasBeenShown) return;
    m_hasBeenShown = true;
    // A question would keep the window from appearing.
    QTimer::singleShot(0, this, &frmTIDE::offerUnasked);
}

/// Takes a choice over and predicts. When that fails, place and date go back with the curve that
/// stays: what is written above a curve is always what it shows.
void frmTIDE::take(const TideChoice& wanted, Telling telling, AfterFault afterFault)
{
    const TideChoice before = m_choice;
    put(wanted);
    std::string fault;
    try {
        if (predict(wanted, telling)) storeSettings(telling);
    } catch (const TideDataFault& error) {
        fault = error.what();
    } catch (const NavFunc113::ArithmeticError& error) {
        fault = "The figures of " + wanted.lblPlace + " cannot be computed: " + error.what() + ".";
    }
    if (!fault.empty() && afterFault == AfterFault::GoBack) put(before);
    const bool refused = !fault.empty() && telling == Telling::Line;
    tell(refused ? wanted.lblDate + " cannot be shown: " + fault : fault, telling);
}

void frmTIDE::put(const TideChoice& choice)
{
    m_choice = choice;
    m_lblPlace->setText(QString::fromStdString(choice.lblPlace));
    m_lblDate->setText(QString::fromStdString(choice.lblDate));
    if (const auto date = TideDates::dateIn(choice.lblDate)) {
        const QSignalBlocker quiet(m_scrDate);
        m_scrDate->setValue(m_dates.scrollValueOf(*date));
    }
}

/// Reads the station anew unless the date alone runs, and shows the day. @return whether there is
/// a day to show
bool frmTIDE::predict(const TideChoice& wanted, Telling telling)
{
    const auto date = TideDates::dateIn(wanted.lblDate);
    if (wanted.lblPlace == noPlace || wanted.lblPlace.empty()) return false;
    std::unique_ptr<StationDays> station;
    if (!m_station || telling == Telling::Box)
        station = std::make_unique<StationDays>(program().files(), kind(), wanted.lblPlace, m_list,
                                                m_constants);
    if (!date) return false;
    const StationDays& source = station ? *station : *m_station;
    const TideDayShown day = source.day(*date, m_shown ? m_shown->four : TidePrediction{});
    if (station) m_station = std::move(station);
    showDay(day);
    const StationChoice choice{wanted.TideMode, wanted.lblPlace};
    if (m_habits.stations.empty() || m_habits.stations.front() != choice) {
        m_habits.remember(choice);
        storeHabits();
    }
    return true;
}

void frmTIDE::showDay(const TideDayShown& day)
{
    m_shown = day;
    const TidePrediction& four = day.four;
    setNotice("saved", {});
    m_lblTD->setText(QString::fromStdString(four.lblTD));
    m_lblTideInfo->setText(QString::fromStdString(four.lblTideInfo));
    for (std::size_t i = 0; i < m_lblCuDirection.size(); ++i) {
        m_lblCuDirection[i]->setText(QString::fromStdString(four.lblCuDirection[i]));
        m_lblCuDirection[i]->setVisible(four.kind == TideKind::Stream);
    }
    showStation();
    std::optional<NavFunc113::TideValues> all;
    if (day.all && m_habits.drawsAll) all = day.all->halfHourly();
    m_picTIDE->showPrediction(four, all);
    m_day->showDay(day, m_habits.drawsAll);
    showNow();
}

void frmTIDE::showStation()
{
    // The notes are about tide stations; a stream station may bear the same name.
    const StationNotes* notes = m_choice.TideMode ? m_list.notesOf(m_choice.lblPlace) : nullptr;
    m_lines = describeStation(m_shown->four, notes, m_list.errorOf(m_choice.lblPlace));
    const auto show = [](QLabel* label, const std::string& text) {
        label->setText(QString::fromStdString(text));
        label->setVisible(!text.empty());
    };
    show(m_lblRemark, m_shown->four.remark);
    show(m_lblUncertainty, m_lines.uncertainty);
    show(m_lblEstimates, m_lines.estimates);
    show(m_lblAccuracy, m_lines.accuracy);
    m_lblStation->setText(QString::fromStdString(m_lines.station) + ".  Not for navigation.");
    m_lblSource->setText(QString::fromStdString(m_lines.source));
}

void frmTIDE::showNow()
{
    if (!m_station || !m_shown) return;
    const NavFunc113::DateTime utc = program().shipsTime().UTC();
    const auto date = static_cast<std::int64_t>(
        std::floor(utc + NavFunc113::DaysOfHours(m_shown->four.station.zone)));
    std::string text;
    try {
        if (m_dates.contains(date)) {
            TideDayShown day = m_station->day(date);
            if (!m_habits.drawsAll) day.all.reset();
            text = nowText(day, utc);
        }
    } catch (const TideDataFault&) {
        // The day that is shown is another one; that of the present is told when it is chosen.
    }
    m_day->showNow(text);
}

void frmTIDE::drawAll(bool isWanted)
{
    m_habits.drawsAll = isWanted;
    storeHabits();
    if (m_shown) showDay(TideDayShown(*m_shown));
}

void frmTIDE::loadHabits()
{
    if (const std::optional<Record> record = m_habitsFile.load()) m_habits = habitsOf(*record);
}

void frmTIDE::storeHabits()
{
    setNotice("habits", QString::fromStdString(m_habitsFile.saveQuietly(recordOf(m_habits))));
}

void frmTIDE::storeSettings(Telling telling)
{
    if (telling == Telling::Line) {
        m_save.start(scrollPause);
        return;
    }
    m_save.stop();
    record().saveNow();
}

void frmTIDE::tell(const std::string& fault, Telling telling)
{
    const bool box = telling == Telling::Box;
    setNotice("data", box ? QString() : QString::fromStdString(fault));
    if (box && !fault.empty()) program().questions().ask({fault, programTitle, Buttons::Ok});
}

void frmTIDE::report(const Report& make)
{
    if (!m_shown || !m_station) {
        program().questions().ask({"Choose a place and a date first: there is nothing to print.",
                                   programTitle, Buttons::Ok});
        return;
    }
    make({m_choice.lblPlace, *m_station, *m_shown, m_dates, m_lines});
}

void frmTIDE::applyColours()
{
    CalculatorWindow::applyColours();
    m_picTIDE->applyColours();
}

} // namespace korvel
