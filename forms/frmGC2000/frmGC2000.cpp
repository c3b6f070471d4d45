// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/frmGC2000.h"

#include "app/working/SailingWorking.h"
#include "forms/frmGC2000/DrawWPs.h"
#include "forms/frmGC2000/GCFields.h"
#include "forms/frmGC2000/GCPicture.h"
#include "forms/frmGC2000/GCWorking.h"
#include "navlib/arithmetic_error.h"
#include "shell/layout/FollowingScrollArea.h"
#include "shell/layout/Panels.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QGridLayout>
#include <QMenu>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr const char* widestCourse = "<000.0>";
constexpr const char* widestLatitude = "00.00'0N";
constexpr const char* widestLongitude = "000.00'0W";
constexpr const char* widestDistance = "00000.'0";
constexpr const char* widestVertex[] = {"00°00.0' N  ", "000°00.0' W"};

using Label = TableColumn::Label;
enum : std::size_t { Number, Latitude, Longitude };

constexpr std::array<RowColumn<GCRow>, 5> waypointRows = {{
    {{"lblWpNo", "No.", "Dep. ", Label::RowNumber, "Waypoint %1", "", Qt::AlignRight}},
    {{"lblWpLat", "Latitude", widestLatitude, Label::Result, "Latitude of waypoint %1", "",
      Qt::AlignRight},
     &GCRow::lat},
    {{"lblWpLong", "Longitude", widestLongitude, Label::Result, "Longitude of waypoint %1", "",
      Qt::AlignRight},
     &GCRow::longitude},
    {{"lblWpCo", "Course", widestCourse, Label::Result, "Course from waypoint %1", "",
      Qt::AlignRight},
     &GCRow::course},
    {{"lblWpDist", "Miles to next", "00000.'0 ", Label::Result,
      "Miles from waypoint %1 to the next", "", Qt::AlignRight},
     &GCRow::distance},
}};
constexpr auto waypointColumns = columnsOf(waypointRows);

/// A heading over a grid. A group box would paint its frame and title again with every result on
/// it, and a key changes some seventy of them.
QGridLayout* addPanel(QWidget* panel, const QString& title)
{
    auto* column = new QVBoxLayout(panel);
    layOutBody(*column);
    column->addWidget(sectionHead(title));
    auto* grid = new QGridLayout;
    column->addLayout(grid, 1);
    return grid;
}

} // namespace

frmGC2000::frmGC2000(Program& program)
    : CalculatorWindow(program, "frmGC2000", "Great circle"), m_txtGC(addFields(GCFields)),
      m_shown(addResults(GCResults))
{
    prepareResults();
    auto* grid = new QGridLayout(scrollBody());
    layOutBody(*grid, Spacing::Frameless);
    pinAnswers(layOutAnswers());
    grid->addWidget(layOutPositions(), 0, 0);
    grid->addWidget(layOutDistances(), 0, 1);
    grid->addWidget(layOutTrack(), 0, 2);
    grid->addWidget(layOutTable(), 1, 0);
    grid->addWidget(m_picGC, 1, 1, 1, 2);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(1, 1);
    foldColumns();
    addMenus();

    calculations().add({"Great circle", m_txtGC.all(), allResults(), [this] { runGC(); }});
    record().useTexts("KV_GC.ini", m_txtGC.all());
    loadSettings();
    m_txtGC[0]->setFocus();
}

void frmGC2000::prepareResults()
{
    m_waypoints = new RowTable(waypointColumns, rowCount);
    for (std::size_t row = 0; row < rowCount; ++row)
        m_waypoints->number(row)->clear();
    m_picGC = new GCPicture;

    // Whatever a key changes keeps its place: the window paints and never lays itself out again.
    for (const std::size_t distance : {GCShown::rhumbLine, GCShown::sumOfLegs})
        m_shown[distance]->setRoom(widestDistance);
    m_shown[GCShown::finalCourse]->setRoom(widestCourse);
    m_shown[GCShown::vertexLat]->setRoom(widestVertex[0]);
    m_shown[GCShown::vertexLong]->setRoom(widestVertex[1]);
    m_shown[GCShown::vertexRemark]->setFont(font());
    m_shown[GCShown::vertexRemark]->setRoom("beyond the route");

    const auto forCopy = [](const GCWaypoint& waypoint) {
        return asQString(positionForCopy(waypoint.lat, waypoint.longitude));
    };
    for (std::size_t row = 0; row < rowCount; ++row) {
        const auto copied = [this, row, forCopy] {
            const auto& waypoints = m_result.route.waypoints;
            return row < waypoints.size() ? forCopy(waypoints[row]) : QString();
        };
        m_waypoints->result(row, Latitude)->copyText = copied;
        m_waypoints->result(row, Longitude)->copyText = copied;
    }
    const auto vertex = [this, forCopy] {
        return m_result.vertex ? forCopy(*m_result.vertex) : QString();
    };
    m_shown[GCShown::vertexLat]->copyText = vertex;
    m_shown[GCShown::vertexLong]->copyText = vertex;
}

QWidget* frmGC2000::layOutPositions()
{
    auto* group = new QWidget;
    auto* grid = addPanel(group, "Positions, degrees.minutes (latitudes up to 65)");
    for (std::size_t i = 0; i < m_txtGC.size(); ++i)
        m_txtGC.addRow(grid, static_cast<int>(i), i);
    grid->setRowStretch(4, 1);
    return group;
}

QWidget* frmGC2000::layOutDistances()
{
    auto* group = new QWidget;
    auto* grid = addPanel(group, "Distances");
    m_shown.addRow(grid, 0, GCShown::rhumbLine);
    m_shown.addRow(grid, 1, GCShown::sumOfLegs);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(2, 1);
    return group;
}

QWidget* frmGC2000::layOutAnswers()
{
    auto* answers = new AnswerStrip;
    m_shown.addAnswer(answers, GCShown::greatCircle, widestDistance);
    m_shown.addAnswer(answers, GCShown::initialCourse, widestCourse);
    m_shown.addAnswer(answers, GCShown::saving, widestDistance);
    return answers;
}

QWidget* frmGC2000::layOutTrack()
{
    auto* group = new QWidget;
    auto* grid = addPanel(group, "Great circle on the sphere");
    const QFontMetrics metrics(m_shown[GCShown::finalCourse]->font());
    m_shown.addRow(grid, 0, GCShown::finalCourse);
    m_shown.addRow(grid, 1, GCShown::vertexLat);
    grid->addWidget(m_shown[GCShown::vertexLong], 1, 2);
    grid->addWidget(m_shown[GCShown::vertexRemark], 1, 3);
    grid->setColumnMinimumWidth(1, metrics.horizontalAdvance(widestVertex[0]));
    grid->setColumnMinimumWidth(2, metrics.horizontalAdvance(widestVertex[1]));
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(2, 1);
    return group;
}

QWidget* frmGC2000::layOutTable()
{
    auto* group = new QWidget;
    auto* area = new FollowingScrollArea(m_waypoints);
    area->setHeading(m_waypoints->makeHeading());
    area->setMinimumHeight(8 * m_shown[GCShown::rhumbLine]->fontMetrics().height());
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(area->sizeHint().width());
    addPanel(group, "Waypoints")->addWidget(area, 0, 0);
    return group;
}

void frmGC2000::addMenus()
{
    QMenu* clear = menus().add("&Clear", "mnuAC");
    menus().addEntry(clear, "mnuAC", 0, "&All positions", [this] {
        m_txtGC.clear(0, m_txtGC.size());
        m_txtGC[0]->setFocus();
    });
    QMenu* plan = menus().add("&Plan", "mnuPlan");
    menus().addEntry(plan, "mnuPlan", 0, "&Into the plan", [this] { sendToPlan(); });
    addMemoMenus();
    menus().addLinks("mnuGC");
}

/// The circle goes as one leg with its points on every tenth meridian, as they stand here.
void frmGC2000::sendToPlan()
{
    const auto& waypoints = m_result.route.waypoints;
    if (waypoints.size() < 2) return sayForAWhile("There is no route yet.");
    const GCWaypoint& from = waypoints.front();
    const GCWaypoint& to = waypoints.back();
    program().sendToPlan(
        {{from.lat, to.lat}, {from.longitude, to.longitude}, NavFunc113::Degrees(10)});
}

void frmGC2000::addMemoMenus()
{
    const auto boxText = [this](std::size_t field) {
        return [box = m_txtGC[field]] { return box->value(); };
    };
    menus().addStorePosition("&Departure", boxText(0), boxText(1));
    menus().addStorePosition("&Arrival", boxText(2), boxText(3));
    for (std::size_t waypoint = 1; waypoint + 1 < rowCount; ++waypoint)
        m_waypointEntries.push_back(menus().addStorePosition(
            QString("Waypoint %1").arg(waypoint),
            [this, waypoint] { return waypointText(waypoint, &GCWaypoint::lat); },
            [this, waypoint] { return waypointText(waypoint, &GCWaypoint::longitude); }));
    connect(findChild<QMenu*>("mnuMemo"), &QMenu::aboutToShow, this,
            &frmGC2000::nameWaypointEntries);
    menus().addRecallPosition("into &departure", m_txtGC[0], m_txtGC[1]);
    menus().addRecallPosition("into &arrival", m_txtGC[2], m_txtGC[3]);
}

void frmGC2000::nameWaypointEntries()
{
    for (std::size_t i = 0; i < m_waypointEntries.size(); ++i) {
        const std::size_t waypoint = i + 1;
        const GCRow& row = m_result.rows[waypoint];
        m_waypointEntries[i]->setVisible(waypoint + 1 < m_result.route.waypoints.size());
        m_waypointEntries[i]->setText(QString("Waypoint %1:  %2  %3")
                                          .arg(waypoint)
                                          .arg(asQString(row.lat), asQString(row.longitude)));
    }
}

std::string frmGC2000::waypointText(std::size_t waypoint,
                                    NavFunc113::DegMin GCWaypoint::*coordinate) const
{
    const auto& waypoints = m_result.route.waypoints;
    return waypoint < waypoints.size() ? memoText(waypoints[waypoint].*coordinate) : "";
}

std::vector<ResultLabel*> frmGC2000::allResults() const
{
    std::vector<ResultLabel*> all = m_waypoints->results();
    all.insert(all.end(), m_shown.all().begin(), m_shown.all().end());
    return all;
}

void frmGC2000::runGC()
{
    try {
        m_result = CalculateGC({m_txtGC.texts<0, 4>(), program().earth()});
    } catch (const NavFunc113::ArithmeticError&) {
        m_result = {};
        showRows();
        m_picGC->setChart({});
        throw; // the runner blanks the other labels and says so
    }
    showRows();
    m_shown.show(m_result);
    m_picGC->setChart(DrawWPs(m_result.route));
    setNotice("input", asQString(m_result.notice), levelBeside(m_result.figures.has_value()));
}

WorkingPaper frmGC2000::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.workings = {greatCircleWorking(m_result, program().earth())};
    paper.limits = {
        "The great circle is that of the sphere: against the geodesic of the spheroid of "
        "1984 its distance is up to 0.49 % out (30 000 circles to latitude 65), its "
        "initial course 0.23° (95 %) and, below 10 000 miles, up to 1.1°"};
    for (const std::string& sentence : sailingLimits(program().earth()))
        paper.limits.push_back(sentence);
    if (!m_result.figures) return paper;
    paper.workings.push_back(waypointsWorking(m_result, program().earth()));
    paper.tables = {waypointTable(m_result)};
    paper.list = waypointList(m_result);
    paper.line = routeOf(m_result);
    return paper;
}

std::vector<PaperPicture> frmGC2000::paperPictures()
{
    if (!m_result.figures) return {};
    return {paperPicture(*m_picGC, "Great circle and rhumb line. No navigational chart.",
                         QSize(640, 400))};
}

void frmGC2000::showRows()
{
    const std::size_t waypoints = m_result.route.waypoints.size();
    for (std::size_t row = 0; row < rowCount; ++row)
        m_waypoints->number(row)->setText(row >= waypoints       ? QString()
                                          : row == 0             ? "Dep."
                                          : row == waypoints - 1 ? "Arr."
                                                                 : QString::number(row));
    m_waypoints->showRows(0, waypointRows, std::span<const GCRow>(m_result.rows));
}

} // namespace korvel
