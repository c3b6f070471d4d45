// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/frmTIDE.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

/// The controls and menus of the tide window; what they do stands in frmTIDE.cpp.
namespace korvel
{

void frmTIDE::addControls()
{
    auto* column = new QVBoxLayout(body());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(fontMetrics().height() / 4);
    column->addWidget(headLine());
    column->addWidget(figuresLine());
    m_lblRemark = wrappedLabel("lblRemark");
    m_lblUncertainty = wrappedLabel("lblUncertainty");
    m_lblEstimates = wrappedLabel("lblEstimates");
    for (QLabel* label : {m_lblRemark, m_lblUncertainty, m_lblEstimates}) {
        label->hide();
        column->addWidget(label);
    }
    column->addWidget(pictureRow(), 1);
    m_day = new TideDayPanel(body());
    m_day->onAnswers = [this](const CurveAnswer& height, const CurveAnswer& times) {
        std::vector<NavFunc113::Hours> marked = height.times;
        marked.insert(marked.end(), times.times.begin(), times.times.end());
        m_picTIDE->mark(marked, times.level);
        setNotice("time", QString::fromStdString(height.remark));
        setNotice("height", QString::fromStdString(times.remark));
    };
    column->addWidget(m_day);
    addFoot(column);
    setTabOrder(m_scrDate, m_picTIDE);
    setTabOrder(m_picTIDE, m_lblDate);
    setTabOrder(m_lblDate, m_txtFind);
    setTabOrder(m_txtFind, m_day->firstBox());
}

void frmTIDE::addFoot(QVBoxLayout* column)
{
    m_lblStation = wrappedLabel("lblStation");
    m_lblAccuracy = wrappedLabel("lblAccuracy");
    m_lblAccuracy->hide();
    m_lblSource = wrappedLabel("lblSource");
    m_lblInUse = wrappedLabel("lblInUse");
    for (QLabel* label : {m_lblStation, m_lblAccuracy, m_lblSource, m_lblInUse})
        column->addWidget(label);
    m_progress->setObjectName("barExtend");
    m_progress->setAccessibleName("Predictions that are made, per cent");
    m_progress->hide();
    column->addWidget(m_progress);
}

QWidget* frmTIDE::headLine()
{
    m_lblPlace = addLabel("lblPlace");
    m_lblPlace->setAccessibleName("Place");
    QFont bold = m_lblPlace->font();
    bold.setBold(true);
    m_lblPlace->setFont(bold);
    m_lblDate = new DateLabel(body());
    m_lblDate->setObjectName("lblDate");
    m_lblDate->setAccessibleName("Date; Enter asks for another one");
    m_lblDate->setToolTip("Choose the date");
    m_lblDate->onClick = [this] { askDate(); };
    m_lblTD = addLabel("lblTD");
    m_lblTD->setAccessibleName("Zone time of the station, hours");

    auto* cmdToday = new QPushButton("T&oday");
    cmdToday->setObjectName("cmdToday");
    cmdToday->setToolTip("Show the ship's date of today");
    connect(cmdToday, &QPushButton::clicked, this, [this] { chooseDate(today()); });
    m_txtFind = new EntryBox(body());
    m_txtFind->setObjectName("txtFind");
    m_txtFind->setAccessibleName("Find a station, three letters of its name and Enter");
    m_txtFind->setPlaceholderText("three letters, Enter");
    m_txtFind->setFixedWidth(20 * fontMetrics().averageCharWidth());
    m_txtFind->setMaxLength(40);
    m_txtFind->onEnter = [this] { findStation(); };
    auto* find = new QLabel("&Find");
    find->setBuddy(m_txtFind);

    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_lblPlace);
    row->addWidget(m_lblDate);
    row->addWidget(cmdToday);
    row->addStretch(1);
    row->addWidget(find);
    row->addWidget(m_txtFind);
    row->addWidget(new QLabel("Zone time"));
    row->addWidget(m_lblTD);
    return line;
}

QWidget* frmTIDE::figuresLine()
{
    m_lblTideInfo = addLabel("lblTideInfo");
    m_lblTideInfo->setAccessibleName("Highest and lowest of the day with their zone times");
    m_lblTideInfo->setToolTip("Zone time in hours and minutes, highest first");
    m_lblCuDirection = addLabels<2>("lblCuDirection");
    m_lblCuDirection[0]->setAccessibleName("Direction of the flood stream");
    m_lblCuDirection[1]->setAccessibleName("Direction of the ebb stream");

    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel("Highest, lowest"));
    row->addWidget(m_lblTideInfo);
    row->addStretch(1);
    row->addWidget(m_lblCuDirection[0]);
    row->addWidget(m_lblCuDirection[1]);
    return line;
}

QWidget* frmTIDE::pictureRow()
{
    m_picTIDE = new frmTIDEPicture(program(), body());
    m_scrDate = new DateScrollBar(body());
    m_scrDate->setObjectName("scrDate");
    m_scrDate->setAccessibleName("Date, a step is a day");
    m_scrDate->setRange(m_dates.scrollMinimum(), m_dates.scrollMaximum());
    connect(m_scrDate, &QScrollBar::valueChanged, this, &frmTIDE::scrDate_Change);

    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_picTIDE, 1);
    row->addWidget(m_scrDate);
    return line;
}

QLabel* frmTIDE::wrappedLabel(const QString& name)
{
    auto* label = new QLabel(body());
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

void frmTIDE::addMenus()
{
    QMenu* tide = menus().add("Place for &Tide..", "mnuFrmTIDE(0)");
    m_stationMenus.addAreas(tide, "mnuArea", tideAreas(), true);
    QMenu* stream = menus().add("Place for Tidal &Current..", "mnuFrmTIDE(1)");
    m_stationMenus.addAreas(stream, "mnuCuArea", streamAreas(), false);
    m_stationMenus.addStreamReason(stream);
    m_stationMenus.refresh();
    addBarEntry(2, "&Date", [this] { askDate(); });
    addBarEntry(3, "&Print", [this] {
        report([this](const TideSubject& day) { m_reports.printDay(day, *m_picTIDE); });
    });
    QMenu* end = menus().add("&End..", "mnuFrmTIDE(4)");
    menus().addEntry(end, "mnuEND", 0, "&END", [this] { close(); });
    end->addSeparator()->setObjectName("mnuEND(1)");
    menus().addEntry(end, "mnuEND", 2, "&About Tide/Current Calcuration", [this] {
        program().questions().ask({m_dates.aboutNotice(), programTitle, Buttons::Ok});
    });
    addOwnMenus();
}

void frmTIDE::addOwnMenus()
{
    QMenu* stations = menus().add("&Stations", "mnuStations");
    menus().addEntry(stations, "mnuStation", 0, "&Find by name", [this] { m_txtFind->setFocus(); });
    m_stationMenus.addLastAndNearest(stations, m_habits);
    menus().addEntry(stations, "mnuStation", 1, "&Check a tide station's file..",
                     [this] { m_reports.checkFile(TideKind::Tide, m_choice.lblPlace); });
    menus().addEntry(stations, "mnuStation", 2, "Check a &stream station's file..",
                     [this] { m_reports.checkFile(TideKind::Stream, m_choice.lblPlace); });

    QMenu* days = menus().add("Da&ys", "mnuDays");
    menus().addEntry(days, "mnuDay", 0, "&Extend the predictions to 2050",
                     [this] { m_extender.extend(offeredYear); });
    m_mnuUndo = menus().addEntry(days, "mnuDay", 1, "&Undo the extension",
                                 [this] { m_extender.takeBack(); });
    days->addSeparator();
    menus().addEntry(days, "mnuDay", 2, "&Seven days..", [this] {
        report([this](const TideSubject& day) { m_reports.showWeek(day); });
    });
    menus().addEntry(days, "mnuDay", 3, "&Print seven days", [this] {
        report([this](const TideSubject& day) { m_reports.printWeek(day); });
    });
    menus().addEntry(days, "mnuDay", 4, "&Month as a table file", [this] {
        report([this](const TideSubject& day) { m_reports.saveMonth(day); });
    });
    days->addSeparator();
    m_mnuDrawAll = days->addAction("&All constituents beside it");
    m_mnuDrawAll->setObjectName("mnuDrawAll");
    m_mnuDrawAll->setCheckable(true);
    m_mnuDrawAll->setChecked(m_habits.drawsAll);
    connect(m_mnuDrawAll, &QAction::toggled, this, &frmTIDE::drawAll);
}

/// An entry that stands in the menu bar itself.
void frmTIDE::addBarEntry(int index, const QString& caption, std::function<void()> action)
{
    QAction* entry = menuBar()->addAction(caption);
    entry->setObjectName(memberName("mnuFrmTIDE", index));
    connect(entry, &QAction::triggered, this, std::move(action));
}

} // namespace korvel
