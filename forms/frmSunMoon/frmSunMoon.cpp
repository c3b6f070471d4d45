// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/frmSunMoon.h"

#include "app/reading/Format.h"
#include "forms/frmSunMoon/RiseSetWorking.h"
#include "shell/layout/FollowingScrollArea.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/WidgetColours.h"

#include <QGridLayout>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

constexpr int daysEachWay = 366; // of the scroll bar
constexpr int longestPlace = 24; ///< characters of a name in the notice line

constexpr std::array<Field, 1> dateFields = {
    {{"txtSunMoon", "&Date", "Date", "year/month/day", FieldKind::Moment, "yyyy/m/d"}}};

using Label = TableColumn::Label;
enum : std::size_t { Number, Place, TD, Latitude, LatitudeEcho, Longitude, LongitudeEcho, Results };

using Shown = RiseSetResult;

/// What is shown of an event or an azimuth: the figure of the window, and the refined one beside it
/// in a column of its own.
template <RiseSetLabel Shown::*Label>
const std::string& shortText(const Shown& of)
{
    return (of.*Label).text;
}
template <RiseSetLabel Shown::*Label>
const std::string& refinedText(const Shown& of)
{
    return (of.*Label).refined;
}

template <RiseSetLabel Shown::*Time>
constexpr RowColumn<Shown> timeColumn(const char* name, const char* heading, const char* words,
                                      bool startsGroup = false)
{
    return {{name, heading, "0000LT", Label::Result, words, "row %1", Qt::AlignRight, false,
             startsGroup, nullptr, Weight::Answer},
            shortText<Time>};
}

template <RiseSetLabel Shown::*Azimuth>
constexpr RowColumn<Shown> azimuthColumn(const char* name, const char* heading, const char* words)
{
    return {{name, heading, "<000.0>", Label::Result, words, "row %1", Qt::AlignRight},
            shortText<Azimuth>};
}

template <RiseSetLabel Shown::*Of>
constexpr RowColumn<Shown> refinedColumn(const char* name, const char* words)
{
    return {{name, "", "000.0", Label::Correction, words, "row %1", Qt::AlignLeft},
            refinedText<Of>};
}

constexpr std::array<RowColumn<Shown>, 19> table = {{
    {{"lblNumber", "", "16", Label::RowNumber, "Row %1", "", Qt::AlignRight}},
    {{"txtLocation", "Place", "Yokohama", FieldKind::Text, "Place name", "row %1", Qt::AlignLeft,
      true}},
    {{"txtTD", "TD\nhours", "-12.000", FieldKind::Figure, "Time difference from UTC",
      "hours, east positive, row %1", Qt::AlignLeft, false, false, &RiseSetField::timeDifference}},
    {{"txtLatitude", "Latitude\ndeg.min", "-62.30.550", FieldKind::Latitude, "Latitude",
      "degrees.minutes, north positive, up to 63, row %1", Qt::AlignLeft, false, false,
      &RiseSetField::latitude}},
    {{"", "north +", "62°30.55' N !", Label::Echo}},
    {{"txtLongitude", "Longitude\ndeg.min", "-179.30.550", FieldKind::Longitude, "Longitude",
      "degrees.minutes, east positive, row %1", Qt::AlignLeft, false, false,
      &RiseSetField::longitude}},
    {{"", "east +", "179°30.55' W !", Label::Echo}},
    timeColumn<&Shown::sunRiseTime>("lblSunRiseTime", "Sun\nrise", "Sunrise", true),
    refinedColumn<&Shown::sunRiseTime>("lblSunRiseRefined", "Sunrise refined"),
    azimuthColumn<&Shown::sunRiseAz>("lblSunRiseAz", "Sun rise\nazimuth", "Sunrise azimuth"),
    refinedColumn<&Shown::sunRiseAz>("lblSunRiseAzRefined",
                                     "Sunrise azimuth at the latitude as typed"),
    timeColumn<&Shown::sunSetTime>("lblSunSetTime", "Sun\nset", "Sunset"),
    refinedColumn<&Shown::sunSetTime>("lblSunSetRefined", "Sunset refined"),
    azimuthColumn<&Shown::sunSetAz>("lblSunSetAz", "Sun set\nazimuth", "Sunset azimuth"),
    refinedColumn<&Shown::sunSetAz>("lblSunSetAzRefined",
                                    "Sunset azimuth at the latitude as typed"),
    timeColumn<&Shown::moonRiseTime>("lblMoonRiseTime", "Moon\nrise", "Moonrise", true),
    refinedColumn<&Shown::moonRiseTime>("lblMoonRiseRefined", "Moonrise refined"),
    timeColumn<&Shown::moonSetTime>("lblMoonSetTime", "Moon\nset", "Moonset"),
    refinedColumn<&Shown::moonSetTime>("lblMoonSetRefined", "Moonset refined"),
}};
constexpr auto tableColumns = columnsOf(table);

/// Columns with a refined one behind them, and what tells their tips.
struct Event {
    std::size_t column;
    RiseSetLabel Shown::*result;
};
constexpr std::array<Event, 6> events = {{
    {Results, &Shown::sunRiseTime},
    {Results + 2, &Shown::sunRiseAz},
    {Results + 4, &Shown::sunSetTime},
    {Results + 6, &Shown::sunSetAz},
    {Results + 8, &Shown::moonRiseTime},
    {Results + 10, &Shown::moonSetTime},
}};

constexpr std::array<Result<Shown>, 1> dateResults = {
    {{"lblMoonAge", "Moon's age", "days", Weight::Figure, &Shown::moonAge}}};

} // namespace

frmSunMoon::frmSunMoon(Program& program)
    : CalculatorWindow(program, "frmSunMoon", "Sun and Moon, rise and set"),
      m_lblDate(addResults(dateResults)), m_focus([this](QWidget* now) { focusMoved(now); })
{
    addControls();
    auto* area = new FollowingScrollArea(m_table);
    setScrollArea(area);
    area->setHeading(m_table->makeHeading());
    static_cast<QVBoxLayout*>(body()->layout())->insertWidget(0, dateRow());
    m_lblRow = addLabel("lblRow");
    m_lblRow->declare("Row in hand", {}, Weight::Remark);
    m_lblRow->setFont(font());
    m_lblRow->setEliding();
    addBelow(m_lblRow);
    addMenus();

    for (std::size_t row = 0; row < rows; ++row)
        for (EntryBox* box : m_table->boxesOfRow(row))
            connect(box, &QLineEdit::textChanged, this, [this, row] {
                if (!calculations().isHeld()) runRows(row, row + 1);
            });
    record().useTexts("KV_SunMoon.ini", m_table->boxes());
    m_txtSunMoon->setText(asQString(Format(today(), "yyyy/m/d")));
    calculations().add({"Rise and set", {m_txtSunMoon}, {}, [this] { runRows(0, rows); }, true});
    loadSettings();
    m_txtSunMoon->setFocus();
    m_txtSunMoon->selectAll(); // the window takes the focus without a word to the box
}

void frmSunMoon::addControls()
{
    m_txtSunMoon = addFields(dateFields)[0];
    m_txtSunMoon->onLeave = [this] { leaveDate(); };
    m_lblDate[0]->setRoom("00.0 ");
    m_scrMoonSun = new QScrollBar(Qt::Horizontal, body());
    m_scrMoonSun->setObjectName("scrMoonSun");
    m_scrMoonSun->setAccessibleName("Date, days from today");
    m_scrMoonSun->setRange(-daysEachWay, daysEachWay);
    m_scrMoonSun->setPageStep(7);
    m_scrMoonSun->setInvertedControls(false); // the right arrow key is the next day
    m_scrMoonSun->setFocusPolicy(Qt::StrongFocus);
    connect(m_scrMoonSun, &QScrollBar::valueChanged, this,
            [this](int value) { m_txtSunMoon->setText(asQString(scrolledDate(today(), value))); });
    m_table = new RowTable(tableColumns, rows);
    m_txtSunMoon->setNext(m_table->box(0, Place));
    for (std::size_t row = 0; row < rows; ++row)
        m_table->box(row, Longitude)->onEnter = [this, row] { runRows(row, row + 1); };
}

QWidget* frmSunMoon::dateRow()
{
    auto* bar = new QWidget(body());
    auto* line = new WrappingRow(bar);
    auto* caption = new QLabel("&Date");
    caption->setBuddy(m_txtSunMoon);
    auto* today = new QPushButton("&Today");
    today->setObjectName("cmdToday");
    today->setToolTip("Today's date, and the ship's time difference into row 1");
    today->setAutoDefault(false);
    connect(today, &QPushButton::clicked, this, &frmSunMoon::cmdToday_Click);
    const int wide = m_txtSunMoon->fontMetrics().horizontalAdvance("0000/00/00 00");
    m_txtSunMoon->setFixedWidth(wide);
    m_scrMoonSun->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_scrMoonSun->setMinimumWidth(wide);
    line->addWidget(caption);
    line->addWidget(m_txtSunMoon);
    line->addWidget(new QLabel("yyyy/m/d"));
    line->addWidget(m_scrMoonSun);
    line->addWidget(today);
    line->addWidget(new QLabel(dateResults[0].caption));
    line->addWidget(m_lblDate[0]);
    line->addWidget(new QLabel(dateResults[0].unit));
    return bar;
}

void frmSunMoon::addMenus()
{
    QMenu* clear = menus().add("&Clear", "mnuAC");
    menus().addEntry(clear, "mnuAC", 0, "&All rows", [this] { clearAll(); });
    menus().addEntry(clear, "mnuAC", 1, "&Undo", [this] { undoClear(); });

    QMenu* memo = menus().add("&Memo", "mnuSUNMOON");
    QMenu* recall = menus().add("&Recall", "mnuRem");
    struct Entry {
        QMenu* menu;
        const char* caption;
        std::function<void()> action;
    };
    const Entry entries[] = {
        {memo, "&Position of",
         [this] {
             program().actions().storePosition({m_table->position(m_row, Latitude)->value(),
                                                m_table->position(m_row, Longitude)->value()});
         }},
        {memo, "Sun &rise azimuth of",
         [this] {
             program().actions().StoreInMemo(KORVEL2000Actions::Single,
                                             azimuth(&RiseSetResult::sunRiseAz));
         }},
        {memo, "Sun &set azimuth of",
         [this] {
             program().actions().StoreInMemo(KORVEL2000Actions::Single,
                                             azimuth(&RiseSetResult::sunSetAz));
         }},
        {recall, "&Position into",
         [this] {
             menus().recallPosition(m_table->position(m_row, Latitude),
                                    m_table->position(m_row, Longitude));
         }},
        {recall, "into &TD of", [this] { menus().recallSingle(m_table->box(m_row, TD)); }},
    };
    int index = 0;
    for (const auto& [menu, caption, action] : entries) {
        QAction* entry = menus().addEntry(menu, "mnuSUNMOON", index++, caption, action);
        connect(menu, &QMenu::aboutToShow, this, [this, entry, caption = QString(caption)] {
            entry->setText(QString("%1 row %2").arg(caption).arg(m_row + 1));
        });
    }
    menus().addLinks("mnuWindows");
}

NavFunc113::DateTime frmSunMoon::today()
{
    return std::floor(program().shipsTime().SMT());
}

RiseSetInput frmSunMoon::input(std::size_t row) const
{
    return {m_txtSunMoon->value(), m_table->box(row, Place)->text().trimmed().toStdString(),
            m_table->box(row, TD)->value(), m_table->position(row, Latitude)->value(),
            m_table->position(row, Longitude)->value()};
}

void frmSunMoon::runRows(std::size_t first, std::size_t last)
{
    bool successful = false;
    for (std::size_t row = first; row < last; ++row) {
        QString place = m_table->box(row, Place)->text().trimmed();
        // A long name would leave the notice line no room for what is at fault.
        if (place.size() > longestPlace) place = place.left(longestPlace - 1) + "…";
        RiseSetInput typed = input(row);
        typed.txtLocation =
            (place.isEmpty() ? QString("Row %1").arg(row + 1) : place).toStdString();
        m_results[row] = CalculateRiseSet(typed, m_numbers[row]);
        successful |= m_results[row].successful;
        showRow(row);
        calculations().tellHalfRead(m_table->boxesOfRow(row), m_table->resultsOfRow(row));
        showDoubts(row);
    }
    showNotices();
    showRowInFocus();
    if (successful) record().saveSoon();
}

void frmSunMoon::showRow(std::size_t row)
{
    const RiseSetResult& result = m_results[row];
    m_lblDate.show(result);
    if (result.moonAge && row == m_row)
        m_lblDate[0]->setToolTip(asQString(moonAgeTip(result.date)));
    m_table->showRow(row, table, result);
    for (const auto& [column, event] : events) {
        const RiseSetLabel& shown = result.*event;
        m_table->result(row, column)->setToolTip(asQString(shown.tip));
        m_table->result(row, column + 1)
            ->setToolTip(shown.refined.empty() ? QString() : asQString(shown.tip));
    }
    showDoubts(row);
}

/// A figure with a refined one beside it has the notice line's colour, and so has that one.
void frmSunMoon::showDoubts(std::size_t row)
{
    const ColourScheme& colours = program().colours();
    for (const auto& [column, event] : events) {
        if (isDimmed(m_table->result(row, column))) continue;
        if ((m_results[row].*event).refined.empty())
            resetTextColour(m_table->result(row, column));
        else
            setTextColour(m_table->result(row, column), colours.notice);
    }
}

void frmSunMoon::showNotices()
{
    QStringList all;
    bool isWhole = true;
    for (const RiseSetResult& result : m_results) {
        if (result.notice.empty()) continue;
        all << asQString(result.notice);
        isWhole = isWhole && result.successful;
    }
    all.removeDuplicates(); // what the date alone causes is the same in every row
    setNotice("rows", all.join(".  "), levelBeside(isWhole));
}

WorkingPaper frmSunMoon::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.place = m_table->box(m_row, Place)->text().trimmed().toStdString();
    paper.results.clear(); // the line of the row in focus tells inputs
    if (const std::string age = m_lblDate[0]->text().toStdString(); !age.empty())
        paper.results.push_back({"Moon's age at 12:00 UTC, in a month of 30 days", age, "days"});
    std::vector<RiseSetTableRow> typed;
    for (std::size_t row = 0; row < rows; ++row)
        if (std::ranges::any_of(m_table->boxesOfRow(row),
                                [](const EntryBox* box) { return !box->text().isEmpty(); }))
            typed.push_back({row + 1, input(row), &m_results[row]});
    if (!typed.empty()) paper.tables = {riseSetTable(typed)};
    paper.workings = riseSetWorkings(
        {m_row + 1, input(m_row), &m_results[m_row], m_lblRow->text().toStdString()});
    paper.limits = riseSetLimits();
    paper.list = riseSetList(typed);
    return paper;
}

void frmSunMoon::showRowInFocus()
{
    QString line = QString("Row %1:").arg(m_row + 1);
    for (const QString& part :
         {m_table->box(m_row, Place)->text(), m_table->position(m_row, Latitude)->fullEcho(),
          m_table->position(m_row, Longitude)->fullEcho()})
        if (!part.isEmpty()) line += "  " + part;
    const auto filled = [](const QLineEdit* box) { return !box->text().trimmed().isEmpty(); };
    if (!m_results[m_row].successful && m_results[m_row].moonAge &&
        filled(m_table->box(m_row, TD)) && filled(m_table->position(m_row, Latitude)) &&
        filled(m_table->position(m_row, Longitude)))
        line += "  (computed with TD within 12, latitude within 63, longitude within 180)";
    if (m_lblRow->text() != line) m_lblRow->setText(line);
}

void frmSunMoon::focusMoved(const QWidget* now)
{
    if (const auto row = m_table->rowOf(now)) m_row = *row;
    showRowInFocus();
}

void frmSunMoon::leaveDate()
{
    if (const auto offset = scrollOffset(m_txtSunMoon->value(), today(), m_scrMoonSun->minimum(),
                                         m_scrMoonSun->maximum()))
        m_scrMoonSun->setValue(*offset);
}

void frmSunMoon::cmdToday_Click()
{
    m_txtSunMoon->setText(asQString(Format(today(), "yyyy/m/d")));
    m_table->box(0, TD)->setText(asQString(Format(program().saved().TD(), "0.##")));
    m_table->box(0, Place)->setText("Today");
    m_table->position(0, Latitude)->setFocus(Qt::TabFocusReason);
    leaveDate();
}

void frmSunMoon::clearAll()
{
    if (program().questions().ask({"Are you sure to clear all contents?", confirmationTitle,
                                   Buttons::YesNo}) != Answer::Yes)
        return;
    std::vector<QString> texts;
    for (const EntryBox* box : m_table->boxes())
        texts.push_back(box->text());
    if (!std::ranges::all_of(texts, &QString::isEmpty)) m_cleared = std::move(texts);
    for (EntryBox* box : m_table->boxes()) {
        box->clear();
        box->onUndo = [this, box] {
            if (m_cleared.empty() || !box->text().isEmpty()) return false;
            undoClear();
            return true;
        };
    }
    m_table->box(0, Place)->setFocus(Qt::TabFocusReason);
    record().saveSoon();
}

/// Brings back the rows in which nothing was typed since they were cleared.
void frmSunMoon::undoClear()
{
    auto before = m_cleared.begin();
    for (std::size_t row = 0; row < rows && before != m_cleared.end(); ++row) {
        const std::vector<EntryBox*> boxes = m_table->boxesOfRow(row);
        const bool isFree =
            std::ranges::all_of(boxes, [](const EntryBox* box) { return box->text().isEmpty(); });
        for (EntryBox* box : boxes) {
            if (isFree) box->setText(*before);
            ++before;
        }
    }
    m_cleared.clear();
    record().saveSoon();
}

std::string frmSunMoon::azimuth(RiseSetLabel RiseSetResult::*label) const
{
    const auto& figure = (m_results[m_row].*label).figure;
    return figure ? memoText(*figure) : std::string();
}

void frmSunMoon::applyColours()
{
    CalculatorWindow::applyColours();
    for (std::size_t row = 0; row < rows; ++row) {
        showDoubts(row);
        for (const auto& [column, event] : events)
            setTextColour(m_table->result(row, column + 1), program().colours().notice);
    }
}

} // namespace korvel
