// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/frmGC2000.h"

#include "app/shell/FollowingScrollArea.h"
#include "forms/frmGC2000/DrawWPs.h"
#include "forms/frmGC2000/GCFields.h"
#include "forms/frmGC2000/GCPicture.h"
#include "navlib/arithmetic_error.h"

#include <QAction>
#include <QGridLayout>
#include <QMenu>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

/// The columns of the waypoint table, each wide enough for its longest text.
struct TableColumn {
    const char* heading;
    const char* longest;
};
constexpr std::array<TableColumn, 5> tableColumns = {{{"No.", "Dep."},
                                                      {"Latitude", "00.00'0N"},
                                                      {"Longitude", "000.00'0W"},
                                                      {"Course", "<000.0>"},
                                                      {"Miles to next", "00000.'0"}}};

/// A heading over a grid. A group box would paint its frame and title again with every result on
/// it, and a key changes some seventy of them.
QGridLayout* addPanel(QWidget* panel, const QString& title)
{
    auto* column = new QVBoxLayout(panel);
    auto* heading = new QLabel(title);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    column->addWidget(heading);
    auto* grid = new QGridLayout;
    column->addLayout(grid, 1);
    return grid;
}

} // namespace

frmGC2000::frmGC2000(Program& program)
    : CalculatorWindow(program, "frmGC2000", "Great circle"), m_txtGC(addFields(GCFields))
{
    addResults();
    auto* grid = new QGridLayout(scrollBody());
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(layOutPositions(), 0, 0);
    grid->addWidget(layOutDistances(), 0, 1);
    grid->addWidget(layOutTrack(), 0, 2);
    grid->addWidget(layOutTable(), 1, 0);
    grid->addWidget(m_picGC, 1, 1, 1, 2);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(1, 1);
    addMenus();

    calculations().add({"Great circle", m_txtGC.all(), allResults(), [this] { runGC(); }});
    record().useTexts("KV_GC.ini", m_txtGC.all());
    loadSettings();
    m_txtGC[0]->setFocus();
}

void frmGC2000::addResults()
{
    m_lblWpLat = addLabels<rowCount>("lblWpLat");
    m_lblWpLong = addLabels<rowCount>("lblWpLong");
    m_lblWpCo = addLabels<rowCount>("lblWpCo");
    m_lblWpDist = addLabels<rowCount>("lblWpDist");
    m_lblGC2000 = addLabels<3>("lblGC2000");
    m_lblInitialCourse = addLabel("lblInitialCourse");
    m_lblFinalCourse = addLabel("lblFinalCourse");
    m_lblVertexLat = addLabel("lblVertexLat");
    m_lblVertexLong = addLabel("lblVertexLong");
    m_lblVertexRemark = addLabel("lblVertexRemark");
    m_lblSaving = addLabel("lblSaving");
    m_picGC = new GCPicture(program());

    // Whatever a key changes keeps its place: the window paints and never lays itself out again.
    for (ResultLabel* label : m_lblGC2000)
        label->reserve(tableColumns[4].longest);
    m_lblSaving->reserve(tableColumns[4].longest);
    m_lblInitialCourse->reserve(tableColumns[3].longest);
    m_lblFinalCourse->reserve(tableColumns[3].longest);
    m_lblVertexLat->reserve(tableColumns[1].longest);
    m_lblVertexLong->reserve(tableColumns[2].longest);
    m_lblVertexRemark->setFont(font());
    m_lblVertexRemark->reserve("beyond the route");

    const auto forCopy = [](const GCWaypoint& waypoint) {
        return QString::fromStdString(positionForCopy(waypoint.lat, waypoint.longitude));
    };
    for (std::size_t row = 0; row < m_lblWpLat.size(); ++row) {
        const auto copied = [this, row, forCopy] {
            const auto& waypoints = m_result.route.waypoints;
            return row < waypoints.size() ? forCopy(waypoints[row]) : QString();
        };
        m_lblWpLat[row]->copyText = copied;
        m_lblWpLong[row]->copyText = copied;
    }
    const auto vertex = [this, forCopy] {
        return m_result.vertex ? forCopy(*m_result.vertex) : QString();
    };
    m_lblVertexLat->copyText = vertex;
    m_lblVertexLong->copyText = vertex;
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
    addResultRow(grid, 0, "Rhumb line", m_lblGC2000[0], "miles");
    addResultRow(grid, 1, "Great circle", m_lblGC2000[1], "miles");
    addResultRow(grid, 2, "Sum of the legs", m_lblGC2000[2], "miles");
    grid->setColumnMinimumWidth(
        1, QFontMetrics(m_lblSaving->font()).horizontalAdvance(tableColumns[4].longest));
    grid->setRowStretch(3, 1);
    return group;
}

QWidget* frmGC2000::layOutTrack()
{
    auto* group = new QWidget;
    auto* grid = addPanel(group, "Great circle on the sphere");
    const QFontMetrics metrics(m_lblSaving->font());
    addResultRow(grid, 0, "Initial course", m_lblInitialCourse, "degrees true");
    addResultRow(grid, 1, "Final course", m_lblFinalCourse, "degrees true");
    grid->addWidget(new QLabel("Vertex"), 2, 0);
    grid->addWidget(m_lblVertexLat, 2, 1);
    grid->addWidget(m_lblVertexLong, 2, 2);
    grid->addWidget(m_lblVertexRemark, 2, 3);
    addResultRow(grid, 3, "Saves", m_lblSaving, "miles against the rhumb line");
    grid->setColumnMinimumWidth(1, metrics.horizontalAdvance(tableColumns[1].longest));
    grid->setColumnMinimumWidth(2, metrics.horizontalAdvance(tableColumns[2].longest));
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(4, 1);
    return group;
}

QWidget* frmGC2000::layOutTable()
{
    auto* group = new QWidget;
    auto* rows = new QWidget;
    auto* grid = new QGridLayout(rows);
    auto* heading = new QWidget;
    auto* headings = new QGridLayout(heading);
    grid->setVerticalSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    headings->setContentsMargins(0, 0, 0, 0);

    // All of one size, so that a key makes the table paint and never lay itself out again.
    const QFontMetrics metrics(m_lblSaving->font());
    const auto place = [&](QLabel* label, QGridLayout* into, int row, int column) {
        const TableColumn& each = tableColumns[static_cast<std::size_t>(column)];
        const int wide = std::max(metrics.horizontalAdvance(each.longest) + metrics.height() / 4,
                                  fontMetrics().horizontalAdvance(each.heading));
        label->setFixedSize(wide, metrics.height() + metrics.leading() + 2);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        into->addWidget(label, row, column);
    };
    for (int column = 0; column < static_cast<int>(tableColumns.size()); ++column)
        place(new QLabel(tableColumns[static_cast<std::size_t>(column)].heading), headings, 0,
              column);
    for (int row = 0; row < rowCount; ++row) {
        const auto at = static_cast<std::size_t>(row);
        m_lblWpNo[at] = addLabel(memberName("lblWpNo", row));
        m_lblWpNo[at]->setFont(font());
        m_lblWpNo[at]->passByTab();
        QLabel* const cells[] = {m_lblWpNo[at], m_lblWpLat[at], m_lblWpLong[at], m_lblWpCo[at],
                                 m_lblWpDist[at]};
        for (int column = 0; column < static_cast<int>(tableColumns.size()); ++column)
            place(cells[column], grid, row, column);
    }
    for (QGridLayout* each : {grid, headings})
        each->setColumnStretch(static_cast<int>(tableColumns.size()), 1);
    grid->setRowStretch(rowCount, 1);

    auto* area = new FollowingScrollArea(rows);
    area->setHeading(heading);
    area->setMinimumHeight(8 * metrics.height());
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
    addMemoMenus();
    menus().addLinks("mnuGC");
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
        m_waypointEntries[i]->setText(
            QString("Waypoint %1:  %2  %3")
                .arg(waypoint)
                .arg(QString::fromStdString(row.lat), QString::fromStdString(row.longitude)));
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
    std::vector<ResultLabel*> all(m_lblWpNo.begin(), m_lblWpNo.end());
    for (const Column* column : {&m_lblWpLat, &m_lblWpLong, &m_lblWpCo, &m_lblWpDist})
        all.insert(all.end(), column->begin(), column->end());
    all.insert(all.end(), m_lblGC2000.begin(), m_lblGC2000.end());
    all.insert(all.end(), {m_lblInitialCourse, m_lblFinalCourse, m_lblVertexLat, m_lblVertexLong,
                           m_lblVertexRemark, m_lblSaving});
    return all;
}

void frmGC2000::runGC()
{
    try {
        m_result = CalculateGC({m_txtGC.texts<0, 4>(), program().spheroid()});
    } catch (const NavFunc113::ArithmeticError&) {
        m_result = {};
        m_picGC->setChart({});
        throw; // the window base blanks the labels and says so
    }

    for (std::size_t row = 0; row < m_result.rows.size(); ++row)
        showRow(row);
    const auto show = [](ResultLabel* label, const std::string& text) {
        label->setText(QString::fromStdString(text));
    };
    for (std::size_t i = 0; i < m_lblGC2000.size(); ++i)
        show(m_lblGC2000[i], m_result.lblGC2000[i]);
    show(m_lblInitialCourse, m_result.initialCourse);
    show(m_lblFinalCourse, m_result.finalCourse);
    show(m_lblVertexLat, m_result.vertexLat);
    show(m_lblVertexLong, m_result.vertexLong);
    show(m_lblVertexRemark, m_result.vertexRemark);
    show(m_lblSaving, m_result.saving);
    m_picGC->setChart(DrawWPs(m_result.route));
}

void frmGC2000::showRow(std::size_t row)
{
    const GCRow& texts = m_result.rows[row];
    const auto show = [](ResultLabel* label, const std::string& text) {
        label->setText(QString::fromStdString(text));
    };
    const std::size_t waypoints = m_result.route.waypoints.size();
    m_lblWpNo[row]->setText(row >= waypoints       ? QString()
                            : row == 0             ? "Dep."
                            : row == waypoints - 1 ? "Arr."
                                                   : QString::number(row));
    show(m_lblWpLat[row], texts.lat);
    show(m_lblWpLong[row], texts.longitude);
    show(m_lblWpCo[row], texts.course);
    show(m_lblWpDist[row], texts.distance);
}

} // namespace korvel
