// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/frmTIDE.h"

#include "forms/frmTIDE/day/StationCheck.h"
#include "forms/frmTIDE/paper/TidePaper.h"
#include "forms/frmTIDE/stations/StationSearch.h"
#include "navlib/arithmetic_error.h"
#include "navlib/datetime.h"
#include "shell/machine/AsQString.h"

#include <cmath>
#include <cstdint>
#include <functional>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

constexpr auto scrollPause = 300ms;      // the date has come to rest
constexpr const char* findKey = "~find"; // of no day: it stays off papers

} // namespace

frmTIDE::frmTIDE(Program& program)
    : CalculatorWindow(program, "frmTIDE", "TIDE"), m_list(program.files()),
      m_constants(program.files()), m_dates(TideDates::of(program.files())),
      m_habitsFile(program.files(), program.questions(), program.clock(), "KV_TideOwn.ini",
                   habitKinds()),
      m_habits(loadedHabits()), m_sheet(new TideSheet(body())),
      m_extender(program, m_sheet->foot().progress(), [this] { readDates(); }),
      m_reports(program, *this, printer()),
      m_tideMenus(program, menus(), *menuBar(), m_list, m_habits, actions())
{
    addControls();
    m_save.setSingleShot(true);
    connect(&m_save, &QTimer::timeout, this, [this] { record().saveNow(); });
    connect(&program, &Program::minuteChanged, this, &frmTIDE::showNow);

    put(m_choice);
    record().use(
        "KV_Tide.ini", {FieldKind::Tick, FieldKind::Text, FieldKind::Text},
        [this] { return recordOf(m_choice); },
        [this](const Record& record) {
            const SavedChoice saved = choiceOf(record, m_dates);
            m_choice = saved.choice;
            setNotice("saved~", asQString(saved.notice));
        });
    loadSettings();
    readDates();
    take(m_choice, Telling::Box, AfterFault::Stay);
    m_sheet->head().txtFind()->setFocus();
    fitToScreen();
}

void frmTIDE::addControls()
{
    m_sheet->head().onDate = [this] { askDate(); };
    m_sheet->head().onToday = [this] { chooseDate(today()); };
    connect(m_sheet->head().txtFind(), &QLineEdit::textEdited, this,
            [this] { setNotice(findKey, {}); });
    m_sheet->head().onFind = [this](const std::string& typed) { findStation(typed); };
    m_sheet->onDay = [this](std::int64_t date) { stepTo(date); };
    m_sheet->onNotice = [this](const QString& key, const std::string& notice) {
        setNotice(key, asQString(notice));
    };
    m_sheet->showDates(m_dates, program().files().path(factorsFileName));
    DetailsFold& details = m_sheet->foot().details();
    details.open(m_habits.showsDetails);
    details.onFold = [this](bool isOpen) {
        m_habits.showsDetails = isOpen;
        storeHabits();
    };
    setScrollArea(new FollowingScrollArea(m_sheet));
    foldColumns();
}

TideActions frmTIDE::actions()
{
    const auto reported = [this](auto make) {
        return [this, make] {
            report([this, make](const TideSubject& day) { make(m_reports, day); });
        };
    };
    return {
        .choose = [this](const StationChoice& station) { choose(station); },
        .askDate = [this] { askDate(); },
        .print =
            [this] {
                report([this](const TideSubject& day) {
                    m_reports.printDay(day, m_sheet->picture());
                });
            },
        .close = [this] { close(); },
        .about =
            [this] {
                program().questions().ask({m_dates.aboutNotice(), programTitle, Buttons::Ok});
            },
        .find = [this] { m_sheet->head().txtFind()->setFocus(); },
        .checkFile = [this](TideKind kind) { m_reports.checkFile(kind, m_choice.lblPlace); },
        .extend = [this] { m_extender.extend(offeredYear); },
        .takeBack = [this] { m_extender.takeBack(); },
        .showWeek = reported(std::mem_fn(&TideReports::showWeek)),
        .printWeek = reported(std::mem_fn(&TideReports::printWeek)),
        .saveMonth = reported(std::mem_fn(&TideReports::saveMonth)),
        .drawAll = [this](bool isWanted) { drawAll(isWanted); },
        .openKeel = [this] { openKeel(); },
    };
}

void frmTIDE::choose(const StationChoice& station)
{
    setNotice(findKey, {});
    m_agreedTo.clear(); // whoever chooses a doubtful station once more is asked once more
    take({station.TideMode, station.place, m_choice.lblDate}, Telling::Box, AfterFault::GoBack);
}

std::vector<CatalogueEntry::Place> frmTIDE::stationsToGoTo()
{
    std::vector<CatalogueEntry::Place> places;
    for (const FoundStation& station : allStations()) {
        const QString name = asQString(station.place);
        places.push_back({name + (station.TideMode ? "" : " (stream)"),
                          (station.TideMode ? "tide " : "stream ") + name});
    }
    return places;
}

void frmTIDE::goTo(const QString& place)
{
    const bool isTide = place.section(' ', 0, 0) == "tide";
    const StationChoice station{isTide, place.section(' ', 1).toStdString()};
    const QString reason = m_tideMenus.stations().reasonAgainst(station);
    if (reason.isEmpty())
        choose(station);
    else
        setNotice(findKey, asQString(station.place) + ": " + reason);
    m_sheet->dateBar().setFocus();
}

void frmTIDE::findStation(const std::string& typed)
{
    const SearchAnswer answer = answerSearch(typed);
    setNotice(findKey, asQString(answer.notice),
              answer.first ? NoticeLevel::Done : NoticeLevel::Remark);
    if (!answer.first) return;
    const StationChoice first{answer.first->TideMode, answer.first->place};
    const QString reason = m_tideMenus.stations().reasonAgainst(first);
    if (!reason.isEmpty()) return setNotice(findKey, asQString(first.place) + ": " + reason);
    choose(first);
    setNotice(findKey, asQString(answer.notice), NoticeLevel::Done);
}

/// The hours of the station when a ship has water enough.
void frmTIDE::openKeel()
{
    if (m_choice.lblPlace.empty() || !m_choice.TideMode)
        return setNotice(findKey, "Under-keel clearance: choose a tide station first");
    program().openWindowAt("frmUKC", "station " + asQString(m_choice.lblPlace));
}

std::int64_t frmTIDE::today()
{
    return static_cast<std::int64_t>(std::floor(program().shipsTime().SMT()));
}

void frmTIDE::askDate()
{
    Questions& questions = program().questions();
    std::optional<std::int64_t> date;
    while (!date) {
        const auto answer = questions.input(std::string(tideDatePrompt), programTitle,
                                            TideDates::defaultAnswer(today()));
        if (questions.haveEnded()) return; // this window is gone
        date = TideDates::dateIn(answer.value_or(""));
    }
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

/// A day of the date bar.
void frmTIDE::stepTo(std::int64_t date)
{
    setNotice("dates", {});
    take({m_choice.TideMode, m_choice.lblPlace, TideDates::label(date)}, Telling::Line,
         AfterFault::GoBack);
}

/// The factors file is another one: so are the dates.
void frmTIDE::readDates()
{
    m_dates = TideDates::of(program().files());
    m_tideMenus.enableUndo(m_extender.canTakeBack());
    m_sheet->showDates(m_dates, program().files().path(factorsFileName));
    const auto shown = TideDates::dateIn(m_choice.lblDate);
    setNotice("dates", {});
    if (shown && !m_dates.contains(*shown)) {
        const std::string last = TideDates::label(m_dates.lastSerial());
        setNotice("dates", asQString(TideDates::label(*shown) +
                                     " is not in the factors file any more: " + last +
                                     ", its last day, is shown."));
        take({m_choice.TideMode, m_choice.lblPlace, last}, Telling::Line, AfterFault::GoBack);
    }
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

void frmTIDE::changeEvent(QEvent* event)
{
    CalculatorWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || m_hasBeenSeen) return;
    m_hasBeenSeen = true;
    // A question asked before would keep the window behind the one that it was opened from.
    QMetaObject::invokeMethod(this, &frmTIDE::offerUnasked, Qt::QueuedConnection);
}

/// Takes a choice over and predicts. When that fails, place and date go back with the curve that
/// stays: what is written above a curve is always what it shows.
void frmTIDE::take(const TideChoice& wanted, Telling telling, AfterFault afterFault)
{
    const TideChoice before = m_choice;
    put(wanted);
    std::string fault;
    bool isDeclined = false;
    try {
        const Outcome outcome = predict(wanted, telling);
        if (outcome == Outcome::Shown) storeSettings(telling);
        isDeclined = outcome == Outcome::Declined;
    } catch (const TideDataFault& error) {
        fault = error.what();
    } catch (const NavFunc113::ArithmeticError& error) {
        fault = "The figures of " + wanted.lblPlace + " cannot be computed: " + error.what() + ".";
    }
    if ((isDeclined || !fault.empty()) && afterFault == AfterFault::GoBack) put(before);
    const bool refused = !fault.empty() && telling == Telling::Line;
    tell(refused ? wanted.lblDate + " cannot be shown: " + fault : fault, telling);
}

void frmTIDE::put(const TideChoice& choice)
{
    m_choice = choice;
    m_sheet->showChoice(choice, m_dates);
}

/// Reads the station anew unless the date alone runs, and shows the day.
frmTIDE::Outcome frmTIDE::predict(const TideChoice& wanted, Telling telling)
{
    const auto date = TideDates::dateIn(wanted.lblDate);
    if (wanted.lblPlace == noPlace || wanted.lblPlace.empty()) return Outcome::Nothing;
    std::unique_ptr<StationDays> station;
    std::string doubts;
    if (!m_station || telling == Telling::Box) {
        station = std::make_unique<StationDays>(program().files(), kind(), wanted.lblPlace, m_list,
                                                m_constants);
        doubts = checkStation(program().files(), kind(), wanted.lblPlace).doubts();
        if (!isToBeUsed(doubts, telling)) return Outcome::Declined;
    }
    if (!date) return Outcome::Nothing;
    const StationDays& source = station ? *station : *m_station;
    const TideDayShown day = source.day(*date, m_shown ? m_shown->four : TidePrediction{});
    if (station) {
        m_station = std::move(station);
        m_doubts = std::move(doubts);
    }
    showDay(day);
    const StationChoice choice{wanted.TideMode, wanted.lblPlace};
    if (m_habits.stations.empty() || m_habits.stations.front() != choice) {
        m_habits.remember(choice);
        storeHabits();
    }
    return Outcome::Shown;
}

/// Doubtful figures are used when the officer says so, whichever way leads to them.
bool frmTIDE::isToBeUsed(const std::string& doubts, Telling telling)
{
    if (doubts.empty() || doubts == m_agreedTo) return true;
    if (telling == Telling::Line) return false;
    const Message question{doubts + "\r\rUse it all the same?", confirmationTitle, Buttons::YesNo};
    if (program().questions().ask(question) != Answer::Yes) return false;
    m_agreedTo = doubts;
    return true;
}

void frmTIDE::showDay(const TideDayShown& day)
{
    m_shown = day;
    setNotice("saved~", {});
    // The notes are about shipped tide stations; a stream station may bear the same name.
    const bool isShipped = m_choice.TideMode && !m_station->isOwn();
    m_lines = describeStation(day.four, isShipped ? m_list.notesOf(m_choice.lblPlace) : nullptr,
                              m_list.errorOf(m_choice.lblPlace), m_doubts);
    m_sheet->showDay(day, m_lines, m_habits.drawsAll);
    showNow();
}

void frmTIDE::showNow()
{
    if (!m_shown) return;
    const NavFunc113::Hours zone = m_shown->four.station.zone;
    const NavFunc113::DateTime UTC = program().shipsTime().UTC();
    m_sheet->showNow(nowText(*m_station, zone, m_dates, UTC, m_habits.drawsAll),
                     hourOf(m_shown->four.serial, zone, UTC));
}

void frmTIDE::drawAll(bool isWanted)
{
    m_habits.drawsAll = isWanted;
    storeHabits();
    if (m_shown) showDay(TideDayShown(*m_shown));
}

TideHabits frmTIDE::loadedHabits()
{
    const std::optional<Record> record = m_habitsFile.load();
    return record ? habitsOf(*record) : TideHabits{};
}

void frmTIDE::storeHabits()
{
    setNotice("habits~", asQString(m_habitsFile.saveQuietly(recordOf(m_habits))),
              NoticeLevel::Fault);
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
    setNotice("data", box ? QString() : asQString(fault), NoticeLevel::Fault);
    if (box && !fault.empty()) program().questions().ask({fault, programTitle, Buttons::Ok});
}

void frmTIDE::report(const Report& make)
{
    if (!m_shown) {
        program().questions().ask({"Choose a place and a date first.", programTitle, Buttons::Ok});
        return;
    }
    make({m_choice.lblPlace, *m_station, *m_shown, m_dates, m_lines});
}

/// What the water does at this moment is left out: it belongs to no day that is chosen.
WorkingPaper frmTIDE::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    if (!m_shown) {
        paper.remarks.emplace_back("Choose a place and a date first.");
        return paper;
    }
    const TideDayPanel& panel = m_sheet->dayPanel();
    for (PaperFigure& each : panel.questions())
        paper.inputs.push_back(std::move(each));
    TideAsked asked{*m_shown, panel.heightAnswer(), panel.timesAnswer()};
    if (!m_habits.drawsAll) asked.day.all.reset();
    if (!m_shown->four.remark.empty()) paper.remarks.push_back(m_shown->four.remark);
    tellDay(paper, m_choice.lblPlace, asked, m_lines);
    return paper;
}

std::vector<PaperPicture> frmTIDE::paperPictures()
{
    if (!m_shown) return {};
    return {paperPicture(m_sheet->picture(),
                         "The day's curve, zone time " + asQString(m_shown->four.lblTD),
                         QSize(640, 360))};
}

} // namespace korvel
