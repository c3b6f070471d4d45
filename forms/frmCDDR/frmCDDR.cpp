// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/frmCDDR.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "forms/frmCDDR/CDDRFields.h"
#include "forms/frmCDDR/CDDRWorking.h"
#include "forms/frmCDDR/hemisphere.h"
#include "navlib/angles.h"
#include "shell/controls/Options.h"
#include "shell/layout/Panels.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr std::size_t courseAndDistance = 0, deadReckoning = 4; ///< first fields
constexpr std::size_t course = 6, distance = 7;

constexpr const char* widestCourse = "<000.0>";
constexpr const char* widestDistance = "00000'.0";
constexpr const char* widestLatitude = "00-.00'0N";
constexpr const char* widestLongitude = "000-.00'0W";

/// Each calculator has four rows of entries.
int rowOf(std::size_t field)
{
    return static_cast<int>(field % deadReckoning);
}

/// Under the rows of entries.
void addAnswers(QGridLayout* grid, AnswerStrip* answers)
{
    grid->addWidget(answers, 4, 0, 1, -1);
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(5, 1);
}

} // namespace

frmCDDR::frmCDDR(Program& program)
    : CalculatorWindow(program, "frmCDDR", "Course, distance and dead reckoning"),
      m_txtCDDR(addFields(CDDRFields)), m_lblCD(addResults(CDResults)),
      m_lblDR(addResults(DRResults))
{
    setCopies();
    addOptions();
    auto* columns = new QHBoxLayout(scrollBody());
    layOutBody(*columns, Spacing::Groups);
    columns->addWidget(layOutCD());
    columns->addWidget(layOutDR());
    foldColumns();
    addMenus();

    calculations().add({"Course and distance", m_txtCDDR.part(courseAndDistance, 4), m_lblCD.all(),
                        [this] { runCD(); }});
    calculations().add(
        {"Dead reckoning", m_txtCDDR.part(deadReckoning, 4), m_lblDR.all(), [this] { runDR(); }});
    record().useTexts("KV_CDDR.ini", m_txtCDDR.all());
    loadSettings();
    m_txtCDDR[0]->setFocus();
}

/// The whole position is copied, whichever of its halves is asked for.
void frmCDDR::setCopies()
{
    const auto copyReached = [this] {
        if (!m_dr.latitudeReached) return QString();
        const auto axisText = m_dr.longitudeReached
                                  ? positionForCopy(*m_dr.latitudeReached, *m_dr.longitudeReached)
                                  : positionForCopy(*m_dr.latitudeReached, Axis::Latitude);
        return asQString(axisText);
    };
    for (ResultLabel* label : m_lblDR.all())
        label->copyText = copyReached;
    const auto inFull = [](const auto& angle, Axis axis) {
        return angle ? positionForCopy(*angle, axis) : std::string();
    };
    m_lblDR[0]->paperText = [this, inFull] { return inFull(m_dr.latitudeReached, Axis::Latitude); };
    m_lblDR[1]->paperText = [this, inFull] {
        return inFull(m_dr.longitudeReached, Axis::Longitude);
    };
}

void frmCDDR::addOptions()
{
    for (std::size_t index = 0; index < m_optNSEW.size(); ++index) {
        const Field& field = CDDRFields[index / 2];
        const bool positive = index % 2 == 0;
        auto* option = new QRadioButton(field.kind == FieldKind::Latitude ? (positive ? "N" : "S")
                                                                          : (positive ? "E" : "W"));
        option->setObjectName(memberName("optNSEW", static_cast<int>(index)));
        option->setAccessibleName(field.words + (", " + option->text()));
        m_optNSEW[index] = option;
        connect(option, &QRadioButton::clicked, this, [this, index] { optNSEW_Click(index); });
    }
    for (std::size_t field = 0; field < positionFields; ++field) {
        auto* group = new QButtonGroup(this);
        group->addButton(m_optNSEW[2 * field]);
        group->addButton(m_optNSEW[2 * field + 1]);
        m_optNSEW[2 * field]->setChecked(true);
        connect(m_txtCDDR[field], &QLineEdit::textChanged, this,
                [this, field] { checkValueName(field); });
        m_txtCDDR[field]->onLeave = [this, field] {
            m_choiceIsOver[field] = hemisphereOf(m_txtCDDR[field]->value()) == true;
        };
    }
}

void frmCDDR::addPositionRow(QGridLayout* grid, std::size_t field)
{
    const int row = rowOf(field);
    m_txtCDDR.addRow(grid, row, field);
    grid->removeWidget(m_txtCDDR.position(field)->echo());
    grid->addLayout(switchOf(std::span(m_optNSEW).subspan(2 * field, 2)), row, 2);
    grid->addWidget(m_txtCDDR.position(field)->echo(), row, 3);
}

QGroupBox* frmCDDR::layOutCD()
{
    auto* group = new QGroupBox("Course and distance (rhumb line)");
    auto* grid = gridOf(group);
    for (std::size_t field = courseAndDistance; field < deadReckoning; ++field)
        addPositionRow(grid, field);
    auto* answers = new AnswerStrip;
    m_lblCD.addAnswer(answers, 0, widestCourse);
    m_lblCD.addAnswer(answers, 1, widestDistance);
    addAnswers(grid, answers);
    return group;
}

QGroupBox* frmCDDR::layOutDR()
{
    auto* group = new QGroupBox("Dead reckoning");
    auto* grid = gridOf(group);
    for (std::size_t field = deadReckoning; field < course; ++field)
        addPositionRow(grid, field);
    m_txtCDDR.addRow(grid, rowOf(course), course);
    m_txtCDDR.addRow(grid, rowOf(distance), distance);
    auto* answers = new AnswerStrip;
    m_lblDR.addAnswer(answers, 0, widestLatitude);
    m_lblDR.addAnswer(answers, 1, widestLongitude);
    addAnswers(grid, answers);
    return group;
}

void frmCDDR::addMenus()
{
    addDataMenu();
    QMenu* clear = menus().add("&Clear", "mnuAC");
    menus().addEntry(clear, "mnuAC", 0, "&Course and distance",
                     [this] { clearCalculator(courseAndDistance); });
    menus().addEntry(clear, "mnuAC", 1, "&Dead reckoning",
                     [this] { clearCalculator(deadReckoning); });
    addMemoMenus();
    menus().addLinks("mnuCDDR");
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
    QMenu* menu = menus().add("&Data", "mnuData");
    auto* buttons = new QWidget;
    auto* row = new QGridLayout(buttons);
    layOutBody(*row);
    int index = 0;
    for (const auto& [caption, text, action] : entries) {
        QAction* entry = menus().addEntry(menu, "mnuData", index, caption, action);
        auto* button = new QPushButton(text);
        button->setObjectName(memberName("cmdCDDR", index));
        button->setToolTip(QString(caption).remove('&'));
        button->setAccessibleName(button->toolTip());
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, entry, &QAction::trigger);
        row->addWidget(button, index / 3, index % 3);
        ++index;
    }
    row->setColumnStretch(3, 1);
    addBelow(buttons);
}

void frmCDDR::addMemoMenus()
{
    const auto boxText = [this](std::size_t field) {
        return [box = m_txtCDDR[field]] { return box->value(); };
    };
    const auto figure = [](const auto& value) { return value ? memoText(*value) : std::string(); };
    const auto ofLeg = [this](auto member) {
        return [this, member] { return m_cd.leg ? memoText((*m_cd.leg).*member) : std::string(); };
    };
    menus().addStorePosition("CD &departure", boxText(0), boxText(1));
    menus().addStorePosition("CD &arrival", boxText(2), boxText(3));
    menus().addStoreSingle("CD &course", ofLeg(&NavFunc113::RhumbLeg::course));
    menus().addStoreSingle("CD dis&tance", ofLeg(&NavFunc113::RhumbLeg::distance));
    menus().addStorePosition("DR &start", boxText(4), boxText(5));
    menus().addStorePosition(
        "DR &result", [this, figure] { return figure(m_dr.latitudeReached); },
        [this, figure] { return figure(m_dr.longitudeReached); });

    menus().addRecallPosition("into CD &departure", m_txtCDDR[0], m_txtCDDR[1]);
    menus().addRecallPosition("into CD &arrival", m_txtCDDR[2], m_txtCDDR[3]);
    menus().addRecallPosition("into DR &start", m_txtCDDR[4], m_txtCDDR[5]);
    menus().addRecallSingle("into DR &course", m_txtCDDR[6]);
    menus().addShipNow(WindowMenus::ShipFigure::Course, "course into DR", m_txtCDDR[6]);
    menus().addPlanLeg("into CD", [this](const PlanExchange::Leg& leg) {
        for (std::size_t end = 0; end < 2; ++end) {
            m_txtCDDR[2 * end]->setText(asQString(packedText(DegMinToDeg(leg.latitudes[end]))));
            m_txtCDDR[2 * end + 1]->setText(
                asQString(packedText(DegMinToDeg(leg.longitudes[end]))));
        }
    });
    menus().addRecallSingle("into DR dis&tance", m_txtCDDR[7]);
}

void frmCDDR::runCD()
{
    m_cd = {};
    m_cd = CalculateCD({m_txtCDDR.texts<0, 4>(), program().earth()});
    m_lblCD.show(m_cd);
    setNotice("1 CD", asQString(m_cd.notice), levelBeside(m_cd.leg.has_value()));
}

void frmCDDR::runDR()
{
    m_dr = {};
    m_dr = CalculateDR({m_txtCDDR.texts<4, 4>(), program().earth()});
    m_lblDR.show(m_dr);
    setNotice("2 DR", asQString(m_dr.notice), levelBeside(m_dr.longitudeReached.has_value()));
}

WorkingPaper frmCDDR::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.workings = {courseAndDistanceWorking(m_cd, program().earth()),
                      deadReckoningWorking(m_dr, program().earth())};
    paper.limits = sailingLimits(program().earth());
    return paper;
}

void frmCDDR::optNSEW_Click(std::size_t index)
{
    const std::size_t field = index / 2;
    const bool positive = index % 2 == 0;
    sayTurned(field, false);
    if (const auto written = withHemisphere(m_txtCDDR[field]->value(), positive))
        m_txtCDDR[field]->setText(asQString(*written));
    m_chosenNegative[field] = !positive;
    m_choiceIsOver[field] = false;
}

void frmCDDR::checkValueName(std::size_t field)
{
    const auto positive = hemisphereOf(m_txtCDDR[field]->value());
    if (positive) m_optNSEW[2 * field + (*positive ? 0 : 1)]->setChecked(true);
    // The choice was for the figure that was typed next, by hand: not for those after it.
    const bool isByHand = focusWidget() == m_txtCDDR[field];
    if (m_choiceIsOver[field] || !isByHand || positive == false) m_chosenNegative[field] = false;
    m_choiceIsOver[field] = false;
    sayTurned(field, positive && *positive && m_chosenNegative[field]);
}

/// South was chosen before the figure was typed, and a figure without a minus sign is north.
void frmCDDR::sayTurned(std::size_t field, bool turned)
{
    const QString name = CDDRFields[field].words;
    setNotice("3 " + name,
              turned
                  ? QString("%1 is %2 as typed: %3 needs a minus sign or the button.")
                        .arg(name, m_optNSEW[2 * field]->text(), m_optNSEW[2 * field + 1]->text())
                  : QString());
}

void frmCDDR::copyPosition(std::size_t fromField, std::size_t toField)
{
    for (std::size_t i = 0; i < 2; ++i)
        m_txtCDDR[toField + i]->setText(m_txtCDDR[fromField + i]->text());
}

void frmCDDR::putDRResult(std::size_t toField)
{
    // Both values are taken first: filling the start changes the result.
    const auto latitude = m_dr.latitudeReached;
    const auto longitude = m_dr.longitudeReached;
    if (!latitude || !longitude) return;
    m_txtCDDR[toField]->setText(asQString(Format(*latitude, "0.000")));
    m_txtCDDR[toField + 1]->setText(asQString(Format(*longitude, "0.000")));
}

void frmCDDR::exchangeCD()
{
    for (std::size_t i = 0; i < 2; ++i) {
        const QString departure = m_txtCDDR[i]->text();
        m_txtCDDR[i]->setText(m_txtCDDR[i + 2]->text());
        m_txtCDDR[i + 2]->setText(departure);
    }
}

void frmCDDR::clearCalculator(std::size_t first)
{
    for (std::size_t field = first; field < std::min(first + 4, positionFields); ++field)
        m_chosenNegative[field] = false;
    m_txtCDDR.clear(first, 4);
    m_txtCDDR[first]->setFocus();
}

} // namespace korvel
