// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/frmCDDR.h"

#include "app/Format.h"
#include "forms/frmCDDR/hemisphere.h"

#include <QAction>
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

namespace korvel
{
namespace
{

constexpr std::array<const char*, 8> accessibleNames = {
    "Departure latitude, degrees.minutes, north positive",
    "Departure longitude, degrees.minutes, east positive",
    "Arrival latitude, degrees.minutes, north positive",
    "Arrival longitude, degrees.minutes, east positive",
    "Dead reckoning start latitude, degrees.minutes, north positive",
    "Dead reckoning start longitude, degrees.minutes, east positive",
    "Dead reckoning course, degrees true",
    "Dead reckoning distance, nautical miles",
};

Axis axisOf(int field)
{
    return field % 2 == 0 ? Axis::Latitude : Axis::Longitude;
}

} // namespace

frmCDDR::frmCDDR(Program& program)
    : CalculatorWindow(program, "frmCDDR", "Course, distance and dead reckoning")
{
    addBoxes();
    addOptions();
    auto* columns = new QHBoxLayout(scrollBody());
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addWidget(layOutCD());
    columns->addWidget(layOutDR());
    addMenus();

    addCalculation({"Course and distance",
                    {m_txtCDDR.begin(), m_txtCDDR.begin() + 4},
                    {m_lblCDDR[0], m_lblCDDR[1]},
                    [this] { runCD(); }});
    addCalculation({"Dead reckoning",
                    {m_txtCDDR.begin() + 4, m_txtCDDR.end()},
                    {m_lblCDDR[2], m_lblCDDR[3]},
                    [this] { runDR(); }});
    useTextSettings("KV_CDDR.ini", {m_txtCDDR.begin(), m_txtCDDR.end()});
    loadSettings();
    m_txtCDDR[0]->setFocus();
}

void frmCDDR::addBoxes()
{
    for (int i = 0; i < 8; ++i) {
        const QString name = memberName("txtCDDR", i);
        const auto at = static_cast<std::size_t>(i);
        m_txtCDDR[at] = i < positionFields ? addPositionBox(name, axisOf(i), accessibleNames[at])
                                           : addTextBox(name, accessibleNames[at]);
    }
    for (std::size_t i = 0; i < positionFields; i += 2)
        PositionBox::pair(static_cast<PositionBox*>(m_txtCDDR[i]),
                          static_cast<PositionBox*>(m_txtCDDR[i + 1]));
    setEntryOrder({m_txtCDDR.begin(), m_txtCDDR.end()});

    m_lblCDDR = addLabels<4>("lblCDDR");
    const auto copyReached = [this] {
        if (!m_dr.latitudeReached) return QString();
        const auto axisText = m_dr.longitudeReached
                                  ? positionForCopy(*m_dr.latitudeReached, *m_dr.longitudeReached)
                                  : positionForCopy(*m_dr.latitudeReached, Axis::Latitude);
        return QString::fromStdString(axisText);
    };
    m_lblCDDR[2]->copyText = copyReached;
    m_lblCDDR[3]->copyText = copyReached;
}

void frmCDDR::addOptions()
{
    for (int index = 0; index < 12; ++index) {
        const bool latitude = axisOf(index / 2) == Axis::Latitude;
        const bool positive = index % 2 == 0;
        auto* option = new QRadioButton(latitude ? (positive ? "N" : "S") : (positive ? "E" : "W"));
        option->setObjectName(memberName("optNSEW", index));
        option->setAccessibleName(
            QString(accessibleNames[static_cast<std::size_t>(index / 2)]).section(',', 0, 0) +
            ", " + option->text());
        // Tab goes from box to box; the options are for the mouse and for the arrow keys.
        option->setFocusPolicy(Qt::ClickFocus);
        m_optNSEW[static_cast<std::size_t>(index)] = option;
        connect(option, &QRadioButton::clicked, this, [this, index] { optNSEW_Click(index); });
    }
    for (int field = 0; field < positionFields; ++field) {
        const auto at = static_cast<std::size_t>(2 * field);
        auto* group = new QButtonGroup(this);
        group->addButton(m_optNSEW[at]);
        group->addButton(m_optNSEW[at + 1]);
        m_optNSEW[at]->setChecked(true);
        connect(m_txtCDDR[static_cast<std::size_t>(field)], &QLineEdit::textChanged, this,
                [this, field] { checkValueName(field); });
    }
}

void frmCDDR::addPositionRow(QGridLayout* grid, int row, int field, const char* caption)
{
    auto* box = static_cast<PositionBox*>(m_txtCDDR[static_cast<std::size_t>(field)]);
    auto* label = new QLabel(caption);
    label->setBuddy(box);
    grid->addWidget(label, row, 0);
    grid->addWidget(box, row, 1);
    grid->addWidget(m_optNSEW[static_cast<std::size_t>(2 * field)], row, 2);
    grid->addWidget(m_optNSEW[static_cast<std::size_t>(2 * field + 1)], row, 3);
    grid->addWidget(box->echo(), row, 4);
}

QGroupBox* frmCDDR::layOutCD()
{
    auto* group = new QGroupBox("Course and distance (rhumb line)");
    auto* grid = new QGridLayout(group);
    addPositionRow(grid, 0, 0, "Departure latitude");
    addPositionRow(grid, 1, 1, "Departure longitude");
    addPositionRow(grid, 2, 2, "Arrival latitude");
    addPositionRow(grid, 3, 3, "Arrival longitude");
    addResultRow(grid, 4, "Course", m_lblCDDR[0], "degrees true");
    addResultRow(grid, 5, "Distance", m_lblCDDR[1], "nautical miles");
    grid->setRowStretch(6, 1);
    return group;
}

QGroupBox* frmCDDR::layOutDR()
{
    auto* group = new QGroupBox("Dead reckoning");
    auto* grid = new QGridLayout(group);
    addPositionRow(grid, 0, 4, "Start latitude");
    addPositionRow(grid, 1, 5, "Start longitude");
    addEntryRow(grid, 2, "Course", m_txtCDDR[6], "degrees true");
    addEntryRow(grid, 3, "Distance", m_txtCDDR[7], "nautical miles");
    addResultRow(grid, 4, "Latitude reached", m_lblCDDR[2], "");
    addResultRow(grid, 5, "Longitude reached", m_lblCDDR[3], "");
    grid->setRowStretch(6, 1);
    return group;
}

void frmCDDR::addMenus()
{
    addDataMenu();
    QMenu* clear = addMenu("&Clear", "mnuAC");
    addEntry(clear, "mnuAC", 0, "&Course and distance", [this] { clearCalculator(0); });
    addEntry(clear, "mnuAC", 1, "&Dead reckoning", [this] { clearCalculator(4); });
    addMemoMenus();
    addLinksMenu("mnuCDDR");
}

void frmCDDR::addDataMenu()
{
    struct DataEntry {
        const char* caption;
        const char* button;
        std::function<void()> action;
    };
    const DataEntry entries[] = {
        {"DR result into DR &start", "Result → Start", [this] { putDRResult(4); }},
        {"CD &departure into DR start", "Departure → Start", [this] { copyPosition(0, 4); }},
        {"CD &arrival into DR start", "Arrival → Start", [this] { copyPosition(2, 4); }},
        {"DR start into &CD departure", "Start → Departure", [this] { copyPosition(4, 0); }},
        {"&Exchange CD departure and arrival", "Departure ⇄ Arrival", [this] { exchangeCD(); }},
        {"DR &result into CD arrival", "Result → Arrival", [this] { putDRResult(2); }},
    };
    QMenu* menu = addMenu("&Data", "mnuData");
    auto* buttons = new QWidget;
    auto* row = new QGridLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    int index = 0;
    for (const auto& [caption, text, action] : entries) {
        QAction* entry = addEntry(menu, "mnuData", index, caption, action);
        auto* button = new QPushButton(text);
        button->setObjectName(memberName("cmdCDDR", index));
        button->setToolTip(QString(caption).remove('&'));
        button->setAccessibleName(button->toolTip());
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, entry, &QAction::trigger);
        row->addWidget(button, index / 3, index % 3);
        ++index;
    }
    addBelow(buttons);
}

void frmCDDR::addMemoMenus()
{
    const auto boxText = [this](std::size_t field) {
        return [box = m_txtCDDR[field]] { return box->value(); };
    };
    const auto figure = [](const std::optional<double>& value) {
        return value ? memoText(*value) : std::string();
    };
    addStorePosition("CD &departure", boxText(0), boxText(1));
    addStorePosition("CD &arrival", boxText(2), boxText(3));
    addStoreSingle("CD &course", [this, figure] { return figure(m_cd.courseDegrees); });
    addStoreSingle("CD dis&tance", [this, figure] { return figure(m_cd.miles); });
    addStorePosition("DR &start", boxText(4), boxText(5));
    addStorePosition(
        "DR &result", [this, figure] { return figure(m_dr.latitudeReached); },
        [this, figure] { return figure(m_dr.longitudeReached); });

    addRecallPosition("into CD &departure", m_txtCDDR[0], m_txtCDDR[1]);
    addRecallPosition("into CD &arrival", m_txtCDDR[2], m_txtCDDR[3]);
    addRecallPosition("into DR &start", m_txtCDDR[4], m_txtCDDR[5]);
    addRecallSingle("into DR &course", m_txtCDDR[6]);
    addRecallSingle("into DR dis&tance", m_txtCDDR[7]);
}

void frmCDDR::runCD()
{
    m_cd = {};
    m_cd = CalculateCD({texts<0, 4>(m_txtCDDR), program().spheroid()});
    m_lblCDDR[0]->setText(QString::fromStdString(m_cd.course));
    m_lblCDDR[1]->setText(QString::fromStdString(m_cd.distance));
}

void frmCDDR::runDR()
{
    m_dr = {};
    m_dr = CalculateDR({texts<4, 4>(m_txtCDDR), program().spheroid()});
    m_lblCDDR[2]->setText(QString::fromStdString(m_dr.latitude));
    m_lblCDDR[3]->setText(QString::fromStdString(m_dr.longitude));
    setNotice("DR longitude", QString::fromStdString(m_dr.notice));
}

void frmCDDR::optNSEW_Click(int index)
{
    EntryBox* box = m_txtCDDR[static_cast<std::size_t>(index / 2)];
    if (const auto written = withHemisphere(box->value(), index % 2 == 0))
        box->setText(QString::fromStdString(*written));
}

void frmCDDR::checkValueName(int field)
{
    const auto positive = hemisphereOf(m_txtCDDR[static_cast<std::size_t>(field)]->value());
    if (positive)
        m_optNSEW[static_cast<std::size_t>(2 * field + (*positive ? 0 : 1))]->setChecked(true);
}

void frmCDDR::copyPosition(int fromField, int toField)
{
    for (int i = 0; i < 2; ++i)
        m_txtCDDR[static_cast<std::size_t>(toField + i)]->setText(
            m_txtCDDR[static_cast<std::size_t>(fromField + i)]->text());
}

void frmCDDR::putDRResult(int toField)
{
    // Both values are taken first: filling the start changes the result.
    const auto latitude = m_dr.latitudeReached;
    const auto longitude = m_dr.longitudeReached;
    if (!latitude || !longitude) return;
    const auto at = static_cast<std::size_t>(toField);
    m_txtCDDR[at]->setText(QString::fromStdString(Format(*latitude, "0.000")));
    m_txtCDDR[at + 1]->setText(QString::fromStdString(Format(*longitude, "0.000")));
}

void frmCDDR::exchangeCD()
{
    for (std::size_t i = 0; i < 2; ++i) {
        const QString departure = m_txtCDDR[i]->text();
        m_txtCDDR[i]->setText(m_txtCDDR[i + 2]->text());
        m_txtCDDR[i + 2]->setText(departure);
    }
}

void frmCDDR::clearCalculator(int first)
{
    for (int i = 0; i < 4; ++i)
        m_txtCDDR[static_cast<std::size_t>(first + i)]->clear();
    m_txtCDDR[static_cast<std::size_t>(first)]->setFocus();
}

} // namespace korvel
