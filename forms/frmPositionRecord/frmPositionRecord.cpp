// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/frmPositionRecord.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmPositionRecord/FixTime.h"
#include "forms/frmPositionRecord/PrintRecord.h"
#include "forms/frmPositionRecord/RecordList.h"
#include "forms/frmPositionRecord/RecordPaper.h"
#include "forms/frmPositionRecord/RecordText.h"
#include "forms/frmPositionRecord/RowReading.h"
#include "shell/layout/CellLayout.h"
#include "shell/layout/FollowingScrollArea.h"
#include "shell/layout/Panels.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr std::array<Field, 2> steeredFields = {{
    {"txtCourseSteered", "&Course steered", "Course steered since the last fix but one",
     "degrees true", FieldKind::Figure, "°", SteeredField::course.low, SteeredField::course.high},
    {"txtSpeedSteered", "&Speed steered", "Speed steered", "knots", FieldKind::Figure, "kn",
     SteeredField::speed.low, SteeredField::speed.high},
}};

using Totals = PositionRecordResult;
enum : std::size_t { TotalDistance, TotalHours, AverageSpeed, LatestRun, Set, Drift };
constexpr std::array<Result<Totals>, 6> recordResults = {{
    {"lblTotalDistance", "Total distance", "nm", Weight::Answer, &Totals::totalDistance},
    {"lblTotalHours", "Hours", "h", Weight::Figure, &Totals::totalHours},
    {"lblAverageSpeed", "Average speed", "kn", Weight::Answer, &Totals::averageSpeed},
    {"lblLatestRun", "Latest day's run", "", Weight::Answer, &Totals::dayRun},
    {"lblSet", "Set towards", "°", Weight::Figure, &Totals::set},
    {"lblDrift", "Drift", "", Weight::Figure, &Totals::drift},
}};
constexpr std::array<const char*, 6> widest = {
    "00000.'0", "00000.00", "000.00", "0000.'0 in 000.0 h", "000", "0000.'0 = 00.00 kn"};

} // namespace

frmPositionRecord::frmPositionRecord(Program& program)
    : CalculatorWindow(program, "frmPositionRecord", "Position record"), m_table(new PositionTable),
      m_steered(addFields(steeredFields)), m_txtCourseSteered(m_steered[0]),
      m_txtSpeedSteered(m_steered[1]), m_results(addResults(recordResults)),
      m_fixesFile(program.files(), program.questions(), program.clock(), observedFixesFile),
      m_focus([this](QWidget* now) { focusMoved(now); })
{
    auto* area = new FollowingScrollArea(m_table);
    area->setHeading(m_table->makeHeading());
    setScrollArea(area);
    addTotals();
    addMenus();
    addCalculationOfRecord();
    useRecordSettings();
    loadSettings();
    m_table->row(0).satelliteSMT->setFocus();
    loadFixes();
    connect(&program, &Program::fixOffered, this, &frmPositionRecord::takeFix);
}

void frmPositionRecord::addTotals()
{
    for (EntryBox* box : {m_txtCourseSteered, m_txtSpeedSteered})
        box->setFixedWidth(box->fontMetrics().horizontalAdvance("000000000"));
    auto* below = new QWidget;
    auto* lines = new QVBoxLayout(below);
    layOutBody(*lines);
    auto* answers = new AnswerStrip;
    for (const std::size_t result : {LatestRun, AverageSpeed, TotalDistance})
        m_results.addAnswer(answers, result, widest[result]);
    lines->addWidget(answers);
    auto* cells = new CellLayout(nullptr, 5, Qt::Horizontal);
    lines->addLayout(cells);
    const auto put = [&](const char* caption, QWidget* field, const char* unit) {
        auto* label = new QLabel(caption);
        label->setBuddy(field);
        cells->addCell({label, field, new QLabel(unit)});
    };
    const auto putResult = [&](std::size_t result) {
        m_results[result]->setRoom(widest[result]);
        put(recordResults[result].caption, m_results[result], recordResults[result].unit);
    };
    putResult(TotalHours);
    for (std::size_t i = 0; i < steeredFields.size(); ++i)
        put(steeredFields[i].caption, m_steered[i], steeredFields[i].unit);
    putResult(Set);
    putResult(Drift);
    addStrip(below);
}

void frmPositionRecord::addCalculationOfRecord()
{
    std::vector<EntryBox*> inputs = m_table->boxes();
    inputs.insert(inputs.end(), {m_txtCourseSteered, m_txtSpeedSteered});
    std::vector<ResultLabel*> results = m_table->results();
    results.insert(results.end(), m_results.all().begin(), m_results.all().end());
    for (std::size_t i = 0; i < positionRowCount; ++i)
        m_table->row(i).satelliteSMT->onLeave = [this, i] { normaliseTime(i); };
    m_calculation = calculations().add(
        {"Position record", std::move(inputs), std::move(results), [this] { run(); }, false,
         [this](const EntryBox& input) { return resultsRestingOn(input); }});
    connect(&program(), &Program::TDChanged, this, [this] { calculations().runAll(); });
}

/// A fix has its say in its own row, in the leg that leads to it, and in all sums.
std::vector<ResultLabel*> frmPositionRecord::resultsRestingOn(const EntryBox& input) const
{
    const auto row = m_table->rowOf(&input);
    if (!row) return {m_results[Set], m_results[Drift]};
    std::vector<ResultLabel*> resting = m_results.all();
    // Rows that are not complete are passed over: the leg may begin further up.
    for (std::size_t from = *row + 1; from-- > 0;) {
        const auto ofRow = m_table->resultsOfRow(from);
        resting.insert(resting.end(), ofRow.begin(), ofRow.end());
        if (from < *row && !m_shown.rows[from].distance.empty()) break;
    }
    return resting;
}

void frmPositionRecord::addMenus()
{
    QMenu* menu = menus().add("Rec&ord", "mnuRecord");
    int index = 0;
    // With Shift: the boxes have Ctrl+D, Ctrl+U and the like for their own editing.
    const auto entry = [&](const char* caption, const char* keys, std::function<void()> action) {
        menus()
            .addEntry(menu, "mnuRecord", index++, caption, std::move(action))
            ->setShortcut(QKeySequence(keys));
    };
    entry("Ship's time &now and TD into the row", "Ctrl+Shift+T", [this] { putTimeNow(); });
    entry("&Insert a row", "Ctrl+Shift+I", [this] { insertRowHere(); });
    entry("&Delete the row", "Ctrl+Shift+D", [this] {
        changeRows(RowChange::Kind::Deleted,
                   [this](PositionRows& rows) { deleteRow(rows, m_row); });
    });
    entry("C&lear the row", "Ctrl+Shift+L", [this] {
        changeRows(RowChange::Kind::Replaced,
                   [this](PositionRows& rows) { clearRow(rows, m_row); });
    });
    entry("Clear &all rows..", "", [this] { clearAll(); });
    entry("&Undo the last change of rows", "Ctrl+Shift+U", [this] { undo(); });
    entry("&Copy as text", "Ctrl+Shift+C", [this] { copyAsText(); });
    entry("&Print..", "Ctrl+P", [this] { print(); });
    entry("I&mport a saved list (CSV)..", "", [this] { importList(); });

    const auto figure = [](const std::optional<double>& value) {
        return value ? memoText(*value) : std::string();
    };
    menus().addStorePosition(
        "&Position of the row", [this] { return m_table->row(m_row).latitude->value(); },
        [this] { return m_table->row(m_row).longitude->value(); });
    menus().addStoreSingle("Total &distance",
                           [this, figure] { return figure(m_shown.totalMiles); });
    menus().addStoreSingle("&Average speed",
                           [this, figure] { return figure(m_shown.averageKnots); });
    menus().addRecallPosition(
        "&Position into the row", [this]() -> std::pair<QLineEdit*, QLineEdit*> {
            return {m_table->row(m_row).latitude, m_table->row(m_row).longitude};
        });
    menus().addRecallSingle("into &course steered", m_txtCourseSteered);
    menus().addRecallSingle("into &speed steered", m_txtSpeedSteered);
    using ShipFigure = WindowMenus::ShipFigure;
    menus().addShipNow(ShipFigure::Course, "into course steered", m_txtCourseSteered);
    menus().addShipNow(ShipFigure::Speed, "into speed steered", m_txtSpeedSteered);
    menus().addLinks("mnuLinks");
}

void frmPositionRecord::useRecordSettings()
{
    std::vector<EntryBox*> boxes = m_table->boxes();
    boxes.push_back(m_txtCourseSteered);
    boxes.push_back(m_txtSpeedSteered);
    record().useTexts("KV_Position Record.ini", std::move(boxes), [this](Record& texts) {
        // Tomorrow 0930 would be another day.
        constexpr std::size_t boxesOfRow = 4;
        Value& time = texts[m_row * boxesOfRow];
        time = NormaliseSMT(textOf(time), program().shipsTime().SMT()).text;
    });
}

void frmPositionRecord::focusMoved(const QWidget* now)
{
    const auto row = m_table->rowOf(now);
    if (!row) return;
    m_row = *row;
    tellFixOfRow();
}

PositionRecordInput frmPositionRecord::input() const
{
    PositionRecordInput typed;
    typed.rows = m_table->texts();
    typed.earth = program().earth();
    typed.shipsTD = double(program().saved().TD());
    typed.now = program().shipsTime().UTC();
    typed.courseSteered = m_txtCourseSteered->value();
    typed.speedSteered = m_txtSpeedSteered->value();
    if (m_table->row(m_row).satelliteSMT->hasFocus()) typed.typingTimeIn = m_row;
    return typed;
}

void frmPositionRecord::run()
{
    if (m_filling) return;
    m_shown = CalculatePositionRecord(input(), m_memory);
    m_table->show(m_shown);
    m_results.show(m_shown);
    const bool isWhole = std::ranges::all_of(m_shown.rows, [](const PositionRowResult& row) {
        return row.remark.empty() || (row.read.latitude && row.read.longitude && row.read.utc);
    });
    setNotice("rows", asQString(m_shown.notice), levelBeside(isWhole));
    if (m_isStillRefused && !m_isStillRefused()) refuse({}, {});
    tellShip();
}

/// The program knows the ship by the last fix, and by course and speed steered.
void frmPositionRecord::tellShip()
{
    if (m_shown.fixes.empty()) return;
    const RecordedFix& last = *std::ranges::max_element(
        m_shown.fixes, {}, [](const RecordedFix& fix) { return fix.utc; });
    if (last.utc > program().shipsTime().UTC()) return; // typed ahead, or half typed
    ShipNow& ship = program().shipNow;
    bool isNew = ship.tellFix({last.latitude, last.longitude, instantOf(last.utc)});
    const auto course = readLeadingNumber(m_txtCourseSteered->value());
    const auto speed = readLeadingNumber(m_txtSpeedSteered->value());
    if (course && speed && *course >= 0 && *course <= 360 && *speed >= 0 && *speed <= 100)
        isNew = ship.tellMotion(
                    ShipNow::Motion{NavFunc113::Degrees(*course), NavFunc113::Knots(*speed)}) ||
                isNew;
    if (isNew) program().tellShipNow();
}

void frmPositionRecord::normaliseTime(std::size_t row)
{
    EntryBox* box = m_table->row(row).satelliteSMT;
    const auto time = NormaliseSMT(box->value(), program().shipsTime().SMT());
    const QString text = asQString(time.text);
    if (box->text() != text)
        box->setText(text);
    else
        calculations().runAll(); // what makes no sense is named once the box is left
}

/// Says why a change of rows was not made, for as long as that holds.
void frmPositionRecord::refuse(const QString& why, std::function<bool()> stillHolds)
{
    m_isStillRefused = why.isEmpty() ? nullptr : std::move(stillHolds);
    setNotice("change~", why);
}

void frmPositionRecord::changeRows(RowChange::Kind kind, const Change& change)
{
    normaliseTime(m_row); // the box is left: its text may move to another row
    RowChange made{kind, m_row, m_table->texts(), m_table->texts()};
    change(made.after);
    refuse({}, {});
    if (made.after == made.before) return;
    fill(made.after);
    m_lastChange = std::move(made);
}

void frmPositionRecord::fill(const PositionRows& rows)
{
    m_filling = true;
    m_table->fill(rows);
    m_filling = false;
    calculations().run(m_calculation);
}

void frmPositionRecord::insertRowHere()
{
    bool inserted = false;
    changeRows(RowChange::Kind::Inserted,
               [&](PositionRows& rows) { inserted = insertRow(rows, m_row); });
    if (!inserted)
        refuse("Row 29 is in use: no row was inserted, it would have been lost.",
               [this] { return !m_table->texts().back().isEmpty(); });
}

void frmPositionRecord::clearAll()
{
    const Message question{"Clear all 29 rows of the position record?", confirmationTitle,
                           Buttons::YesNo};
    if (program().questions().ask(question) == Answer::Yes)
        changeRows(RowChange::Kind::Replaced, [](PositionRows& rows) { rows = {}; });
}

void frmPositionRecord::undo()
{
    if (!m_lastChange) return;
    normaliseTime(m_row);
    PositionRows rows = m_table->texts();
    const std::string refusal = takeBack(rows, *m_lastChange);
    refuse(asQString(refusal), [this] {
        PositionRows now = m_table->texts();
        return m_lastChange && !takeBack(now, *m_lastChange).empty();
    });
    if (!refusal.empty()) return;
    m_lastChange.reset();
    fill(rows);
}

void frmPositionRecord::putTimeNow()
{
    changeRows(RowChange::Kind::Replaced, [this](PositionRows& rows) {
        rows[m_row].satelliteSMT = Format(program().shipsTime().SMT(), "yyyy/mm/dd hh:mm");
        rows[m_row].satelliteTD = Format(program().saved().TD(), "0.0");
    });
    m_table->row(m_row).latitude->setFocus(Qt::TabFocusReason);
}

void frmPositionRecord::copyAsText() const
{
    QApplication::clipboard()->setText(asQString(positionRecordText(input(), m_shown)));
}

void frmPositionRecord::print()
{
    const double TD = program().saved().TD();
    const std::string printed = Format(program().shipsTime().SMT(), "yyyy/mm/dd hh:mm") +
                                " SMT, TD " + Format(TD, "+0.0;-0.0") + " (ZD " +
                                Format(-TD, "+0.0;-0.0") + ")";
    const QString record = asQString(positionRecordText(input(), m_shown));
    printer().print("Position record", QPageLayout::Landscape,
                    [&](QPainter& painter, const QRect& room) {
                        printRecord(painter, room, record, asQString(printed));
                    });
}

void frmPositionRecord::importList()
{
    const auto path = program().questions().fileToRead("Import a position record", "csv");
    if (!path) return;
    const FileStore::Content file = program().files().readAnywhere(*path);
    const bool isRead = file.status == FileStore::Content::Status::Read;
    const ReadList list = isRead ? readRecordList(file.bytes) : ReadList{};
    const std::string fault = isRead                ? list.fault
                              : file.reason.empty() ? "it is missing"
                                                    : file.reason;
    if (!fault.empty()) {
        program().questions().ask(
            {'"' + *path + "\" was not imported: " + fault + ".\rThe record is as it was.",
             programTitle, Buttons::Ok});
        return;
    }
    changeRows(RowChange::Kind::Replaced, [&list](PositionRows& rows) { rows = list.rows; });
    const auto count = std::ranges::count_if(
        list.rows, [](const PositionRow& row) { return row != PositionRow{}; });
    sayForAWhile(QString("%1 rows imported; Record, Undo brings back what was there.").arg(count));
}

WorkingPaper frmPositionRecord::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    tellRecord(paper, input(), m_shown);
    addFixes(paper);
    return paper;
}

void frmPositionRecord::applyColours()
{
    CalculatorWindow::applyColours();
    m_table->setWarningColour(program().colours().notice);
}

} // namespace korvel
