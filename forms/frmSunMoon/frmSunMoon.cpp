// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/frmSunMoon.h"

#include "app/Format.h"
#include "app/shell/FollowingScrollArea.h"
#include "app/shell/widget_colours.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

#include <cmath>

namespace korvel
{
namespace
{

constexpr int daysEachWay = 366; // of the scroll bar

constexpr std::array<Field, 1> dateFields = {
    {{"txtSunMoon", "&Date", "Date, year/month/day", FieldKind::Moment, "yyyy/m/d"}}};

/// Columns of the table; a gap stands before the Moon.
enum : int { Number, Place, TD, Latitude, LatitudeEcho, Longitude, LongitudeEcho, Sun, Gap = 11 };

int columnOf(std::size_t result)
{
    constexpr std::size_t ofSun = 4;
    return Sun + static_cast<int>(result) + (result >= ofSun ? 1 : 0);
}

constexpr const char* widestResult = "<000.0> ";

QString text(const std::string& value)
{
    return QString::fromStdString(value);
}

/// A label of a fixed size asks for no new layout when its text changes: with a hundred of them
/// that would be most of the work of a change of date.
void fixSize(ResultLabel* label, const char* sample)
{
    const QFontMetrics metrics = label->fontMetrics();
    label->setFixedSize(metrics.horizontalAdvance(sample), metrics.height());
}

} // namespace

const std::array<frmSunMoon::Column, 6> frmSunMoon::columns = {{
    {"lblSunRiseTime", "Sun\nrise", "Sunrise", &RiseSetResult::sunRiseTime},
    {"lblSunRiseAz", "Sun rise\nazimuth", "Sunrise azimuth", &RiseSetResult::sunRiseAz},
    {"lblSunSetTime", "Sun\nset", "Sunset", &RiseSetResult::sunSetTime},
    {"lblSunSetAz", "Sun set\nazimuth", "Sunset azimuth", &RiseSetResult::sunSetAz},
    {"lblMoonRiseTime", "Moon\nrise", "Moonrise", &RiseSetResult::moonRiseTime},
    {"lblMoonSetTime", "Moon\nset", "Moonset", &RiseSetResult::moonSetTime},
}};

frmSunMoon::frmSunMoon(Program& program)
    : CalculatorWindow(program, "frmSunMoon", "Sun and Moon, rise and set"),
      m_focus([this](QWidget* now) { focusMoved(now); })
{
    addControls();
    auto* area = new FollowingScrollArea(table());
    setScrollArea(area);
    area->setHeading(heading());
    static_cast<QVBoxLayout*>(body()->layout())->insertWidget(0, dateRow());
    m_lblRow = addLabel("lblRow");
    m_lblRow->setFont(font());
    m_lblRow->setEliding();
    addBelow(m_lblRow);
    addMenus();

    std::vector<EntryBox*> boxes;
    for (std::size_t row = 0; row < rows; ++row)
        for (EntryBox* box :
             {m_txtLocation[row], m_txtTD[row], static_cast<EntryBox*>(m_txtLatitude[row]),
              static_cast<EntryBox*>(m_txtLongitude[row])}) {
            boxes.push_back(box);
            connect(box, &QLineEdit::textChanged, this, [this, row] {
                if (!calculations().isHeld()) runRows(row, row + 1);
            });
        }
    record().useTexts("KV_SunMoon.ini", boxes);
    m_txtSunMoon->setText(text(Format(today(), "yyyy/m/d")));
    calculations().add({"Rise and set", {m_txtSunMoon}, {}, [this] { runRows(0, rows); }, true});
    loadSettings();
    m_txtSunMoon->setFocus();
    m_txtSunMoon->selectAll(); // the window takes the focus without a word to the box
}

void frmSunMoon::addControls()
{
    m_txtSunMoon = addFields(dateFields)[0];
    m_txtSunMoon->onLeave = [this] { leaveDate(); };
    m_lblMoonAge = addLabel("lblMoonAge");
    fixSize(m_lblMoonAge, "00.0 ");
    m_scrMoonSun = new QScrollBar(Qt::Horizontal, body());
    m_scrMoonSun->setObjectName("scrMoonSun");
    m_scrMoonSun->setAccessibleName("Date, days from today");
    m_scrMoonSun->setRange(-daysEachWay, daysEachWay);
    m_scrMoonSun->setPageStep(7);
    m_scrMoonSun->setInvertedControls(false); // the right arrow key is the next day
    m_scrMoonSun->setFocusPolicy(Qt::StrongFocus);
    connect(m_scrMoonSun, &QScrollBar::valueChanged, this,
            [this](int value) { m_txtSunMoon->setText(text(scrolledDate(today(), value))); });
    for (std::size_t row = 0; row < rows; ++row)
        addRow(row);
    setRowOrder();
}

void frmSunMoon::addRow(std::size_t row)
{
    const int index = static_cast<int>(row);
    const QString ofRow = QString(", row %1").arg(index + 1);
    m_number[row] = new QLabel(QString::number(index + 1));
    const auto box = [&](auto* made, const char* name, const QString& words) {
        made->setObjectName(memberName(name, index));
        made->setAccessibleName(words + ofRow);
        return made;
    };
    m_txtLocation[row] = box(new EntryBox(body()), "txtLocation", "Place name");
    m_txtLocation[row]->setMaxLength(EntryBox::longestText);
    m_txtTD[row] =
        box(new EntryBox(body()), "txtTD", "Time difference from UTC, hours, east positive");
    m_txtLatitude[row] = box(new PositionBox(Axis::Latitude, body()), "txtLatitude",
                             "Latitude, degrees.minutes, north positive, up to 63");
    m_txtLongitude[row] = box(new PositionBox(Axis::Longitude, body()), "txtLongitude",
                              "Longitude, degrees.minutes, east positive");
    PositionBox::pair(m_txtLatitude[row], m_txtLongitude[row]);
    m_txtLatitude[row]->setBriefEcho();
    m_txtLongitude[row]->setBriefEcho();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        m_labels[i][row] = addLabel(memberName(columns[i].name, index));
        m_labels[i][row]->setAccessibleDescription(columns[i].words + ofRow);
        m_labels[i][row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        fixSize(m_labels[i][row], widestResult);
    }
}

void frmSunMoon::setRowOrder()
{
    m_txtSunMoon->setNext(m_txtLocation[0]);
    for (std::size_t row = 0; row < rows; ++row) {
        m_txtLocation[row]->setNext(m_txtTD[row]);
        m_txtTD[row]->setNext(m_txtLatitude[row]);
        m_txtLatitude[row]->setNext(m_txtLongitude[row]);
        m_txtLongitude[row]->setNext(m_txtLocation[(row + 1) % rows]);
        m_txtLongitude[row]->onEnter = [this, row] { runRows(row, row + 1); };
    }
}

QWidget* frmSunMoon::dateRow()
{
    auto* bar = new QWidget(body());
    auto* line = new QHBoxLayout(bar);
    line->setContentsMargins(0, 0, 0, 0);
    auto* caption = new QLabel("&Date");
    caption->setBuddy(m_txtSunMoon);
    auto* today = new QPushButton("&Today");
    today->setObjectName("cmdToday");
    today->setToolTip("Today's date, and the ship's time difference into row 1");
    today->setAutoDefault(false);
    connect(today, &QPushButton::clicked, this, &frmSunMoon::cmdToday_Click);
    m_txtSunMoon->setMaximumWidth(m_txtSunMoon->fontMetrics().horizontalAdvance("0000/00/00 00"));
    line->addWidget(caption);
    line->addWidget(m_txtSunMoon);
    line->addWidget(new QLabel("yyyy/m/d"));
    line->addWidget(m_scrMoonSun, 1);
    line->addWidget(today);
    line->addWidget(new QLabel("Moon's age"));
    line->addWidget(m_lblMoonAge);
    line->addWidget(new QLabel("days"));
    return bar;
}

/// Heading and table lie in two grids, so that the heading stays when the table scrolls. Both get
/// their widths from here.
void frmSunMoon::setColumns(QGridLayout* grid, const QWidget& widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    ResultLabel result;
    const int box = 2 * metrics.averageCharWidth();
    const auto set = [&](int column, int width) { grid->setColumnMinimumWidth(column, width); };
    set(Number, metrics.horizontalAdvance("16"));
    set(Place, metrics.horizontalAdvance("Port of somewhere") + box);
    set(TD, metrics.horizontalAdvance("-12.00") + box);
    set(Latitude, metrics.horizontalAdvance("-62.30.55") + box);
    set(LatitudeEcho, metrics.horizontalAdvance("62°30.55' N !"));
    set(Longitude, metrics.horizontalAdvance("-179.30.55") + box);
    set(LongitudeEcho, metrics.horizontalAdvance("179°30.55' W !"));
    for (std::size_t i = 0; i < columns.size(); ++i)
        set(columnOf(i), result.fontMetrics().horizontalAdvance(widestResult));
    set(Gap, metrics.averageCharWidth());
    grid->setColumnStretch(Place, 1);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(metrics.averageCharWidth());
}

QWidget* frmSunMoon::heading()
{
    auto* line = new QWidget(body());
    auto* grid = new QGridLayout(line);
    setColumns(grid, *line);
    const auto add = [&](int column, const char* caption, Qt::Alignment side) {
        auto* label = new QLabel(caption);
        label->setAlignment(side | Qt::AlignBottom);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        grid->addWidget(label, 0, column);
    };
    add(Number, "", Qt::AlignLeft); // without anything in it the column would lose its spacing
    add(Place, "Place", Qt::AlignLeft);
    add(TD, "TD\nhours", Qt::AlignLeft);
    add(Latitude, "Latitude\ndeg.min", Qt::AlignLeft);
    add(LatitudeEcho, "north +", Qt::AlignLeft);
    add(Longitude, "Longitude\ndeg.min", Qt::AlignLeft);
    add(LongitudeEcho, "east +", Qt::AlignLeft);
    for (std::size_t i = 0; i < columns.size(); ++i)
        add(columnOf(i), columns[i].heading, Qt::AlignRight);
    return line;
}

QWidget* frmSunMoon::table()
{
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    setColumns(grid, *content);
    grid->setVerticalSpacing(1);
    for (std::size_t row = 0; row < rows; ++row) {
        const int line = static_cast<int>(row);
        const auto add = [&](QWidget* widget, int column) {
            widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
            widget->setMinimumWidth(0);
            grid->addWidget(widget, line, column);
        };
        add(m_number[row], Number);
        add(m_txtLocation[row], Place);
        add(m_txtTD[row], TD);
        add(m_txtLatitude[row], Latitude);
        add(m_txtLatitude[row]->echo(), LatitudeEcho);
        add(m_txtLongitude[row], Longitude);
        add(m_txtLongitude[row]->echo(), LongitudeEcho);
        for (std::size_t i = 0; i < columns.size(); ++i)
            grid->addWidget(m_labels[i][row], line, columnOf(i));
        m_number[row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    grid->setRowStretch(rows, 1);
    return content;
}

void frmSunMoon::addMenus()
{
    QMenu* clear = menus().add("&Clear", "mnuAC");
    menus().addEntry(clear, "mnuAC", 0, "&All rows", [this] { clearAll(); });

    QMenu* memo = menus().add("&Memo", "mnuSUNMOON");
    struct Entry {
        const char* caption;
        std::function<void()> action;
    };
    const Entry entries[] = {
        {"Store &position of",
         [this] {
             program().actions().storePosition(m_txtLatitude[m_row]->value(),
                                               m_txtLongitude[m_row]->value());
         }},
        {"Store Sun &rise azimuth of",
         [this] {
             program().actions().StoreInMemo(KORVEL2000Actions::Single,
                                             azimuth(&RiseSetResult::sunRiseAz));
         }},
        {"Store Sun &set azimuth of",
         [this] {
             program().actions().StoreInMemo(KORVEL2000Actions::Single,
                                             azimuth(&RiseSetResult::sunSetAz));
         }},
        {"Recall P&osition Memo into",
         [this] { menus().recallPosition(m_txtLatitude[m_row], m_txtLongitude[m_row]); }},
        {"Recall Single Memo into &TD of", [this] { menus().recallSingle(m_txtTD[m_row]); }},
    };
    int index = 0;
    for (const auto& [caption, action] : entries) {
        QAction* entry = menus().addEntry(memo, "mnuSUNMOON", index++, caption, action);
        connect(memo, &QMenu::aboutToShow, this, [this, entry, caption = QString(caption)] {
            entry->setText(QString("%1 row %2").arg(caption).arg(m_row + 1));
        });
    }
    menus().addLinks("mnuWindows");
}

NavFunc113::DateTime frmSunMoon::today()
{
    return std::floor(program().shipsTime().SMT());
}

void frmSunMoon::runRows(std::size_t first, std::size_t last)
{
    bool successful = false;
    for (std::size_t row = first; row < last; ++row) {
        const QString place = m_txtLocation[row]->text().trimmed();
        m_results[row] = CalculateRiseSet(
            {m_txtSunMoon->value(),
             (place.isEmpty() ? QString("Row %1").arg(row + 1) : place).toStdString(),
             m_txtTD[row]->value(), m_txtLatitude[row]->value(), m_txtLongitude[row]->value()},
            m_numbers[row]);
        successful |= m_results[row].successful;
        showRow(row);
    }
    showNotices();
    showRowInFocus();
    if (successful) record().saveSoon();
}

void frmSunMoon::showRow(std::size_t row)
{
    const RiseSetResult& result = m_results[row];
    if (result.moonAge) m_lblMoonAge->setText(text(*result.moonAge));
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const RiseSetLabel& shown = result.*columns[i].result;
        m_labels[i][row]->setText(text(shown.text));
        m_labels[i][row]->setToolTip(text(shown.tip));
    }
    showDoubts(row);
}

/// A figure that the notice line corrects has the notice line's colour.
void frmSunMoon::showDoubts(std::size_t row)
{
    const ColourScheme& colours = program().colours();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const QColor colour = (m_results[row].*columns[i].result).doubtful
                                  ? colours.notice
                                  : colours.palette.color(QPalette::WindowText);
        setTextColour(m_labels[i][row], colour);
    }
}

void frmSunMoon::showNotices()
{
    QStringList all;
    for (const RiseSetResult& result : m_results)
        if (!result.notice.empty()) all << text(result.notice);
    all.removeDuplicates(); // what the date alone causes is the same in every row
    setNotice("rows", all.join(".  "));
}

void frmSunMoon::showRowInFocus()
{
    QString line = QString("Row %1:").arg(m_row + 1);
    for (const QString& part : {m_txtLocation[m_row]->text(), m_txtLatitude[m_row]->fullEcho(),
                                m_txtLongitude[m_row]->fullEcho()})
        if (!part.isEmpty()) line += "  " + part;
    const auto filled = [](const QLineEdit* box) { return !box->text().trimmed().isEmpty(); };
    if (!m_results[m_row].successful && m_results[m_row].moonAge && filled(m_txtTD[m_row]) &&
        filled(m_txtLatitude[m_row]) && filled(m_txtLongitude[m_row]))
        line += "  (computed with TD within 12, latitude within 63, longitude within 180)";
    if (m_lblRow->text() != line) m_lblRow->setText(line);
}

void frmSunMoon::focusMoved(const QWidget* now)
{
    for (std::size_t row = 0; row < rows; ++row)
        if (now && (now == m_txtLocation[row] || now == m_txtTD[row] || now == m_txtLatitude[row] ||
                    now == m_txtLongitude[row]))
            m_row = row;
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
    m_txtSunMoon->setText(text(Format(today(), "yyyy/m/d")));
    m_txtTD[0]->setText(text(Format(program().saved().TD(), "0.##")));
    m_txtLocation[0]->setText("Today");
    m_txtLatitude[0]->setFocus(Qt::TabFocusReason);
    leaveDate();
}

void frmSunMoon::clearAll()
{
    if (program().questions().ask(
            {"Are you sure to clear all contents?", programTitle, Buttons::YesNo}) != Answer::Yes)
        return;
    for (std::size_t row = 0; row < rows; ++row)
        for (EntryBox* box :
             {m_txtLocation[row], m_txtTD[row], static_cast<EntryBox*>(m_txtLatitude[row]),
              static_cast<EntryBox*>(m_txtLongitude[row])})
            box->clear();
    m_txtLocation[0]->setFocus(Qt::TabFocusReason);
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
    for (std::size_t row = 0; row < rows; ++row)
        showDoubts(row);
}

} // namespace korvel
