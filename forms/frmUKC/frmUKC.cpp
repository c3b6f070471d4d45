// SPDX-License-Identifier: MIT
#include "forms/frmUKC/frmUKC.h"

#include "app/records/KeyedLines.h"
#include "app/records/SettingsRecord.h"
#include "forms/frmUKC/KeelPicture.h"
#include "forms/frmUKC/UKCFields.h"
#include "forms/frmUKC/UKCResults.h"
#include "forms/frmUKC/UKCWorking.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/WidgetColours.h"

#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace korvel
{
namespace
{

using namespace UKCField;

constexpr std::string_view kind = "KORVEL2000 under-keel clearance ";

constexpr std::array<std::size_t, 7> paperResults = {
    UKCShown::Clearance, UKCShown::Over,    UKCShown::GreatestSpeed, UKCShown::Dynamic,
    UKCShown::Depth,     UKCShown::Minimum, UKCShown::LeastTide,
};

/// Of a choice that the record does not name, or that is none.
constexpr int firstChoice = 0;

int choiceIn(const std::string& text, const QComboBox& list)
{
    const uint index = asQString(text).toUInt(); // 0 where it is none
    return index < static_cast<uint>(list.count()) ? static_cast<int>(index) : firstChoice;
}

} // namespace

frmUKC::frmUKC(Program& program)
    : CalculatorWindow(program, "frmUKC", "Under-keel clearance"), m_boxes(addFields(UKCFields)),
      m_results(addResults(UKCResults)), m_cboWater(new QComboBox), m_cboSurvey(new QComboBox),
      m_picture(new KeelPicture), m_weeks(program.files())
{
    addChoices();
    giveRoom();
    auto* column = new QVBoxLayout(scrollBody());
    layOutBody(*column);
    pinAnswers(layOutAnswers());
    auto* parts = new QWidget;
    auto* row = new WrappingRow(parts);
    row->setGap(3 * fontMetrics().height() / 2);
    for (QWidget* part : {layOutInputs(), layOutResults(), layOutTide()}) {
        part->setContentsMargins(0, fontMetrics().descent(), 0, fontMetrics().descent());
        row->addWidget(part);
    }
    column->addWidget(parts);
    column->addStretch();
    addMenus();
    m_calculation = calculations().add(
        {"Under-keel clearance", m_boxes.all(), m_results.all(), [this] { run(); }});
    connectChoices();
    record().useText(
        "KV_UKC.ini", [this] { return recordText(); },
        [this](const std::string& bytes) { return take(bytes); });
    loadSettings();
    m_boxes[Forward]->setFocus();
}

void frmUKC::addChoices()
{
    m_cboWater->setObjectName("cboWater");
    m_cboWater->setAccessibleName("Squat by");
    for (const Water water : {Water::Open, Water::Confined, Water::Channel})
        m_cboWater->addItem(asQString(squatName(water)));
    m_cboSurvey->setObjectName("cboSurvey");
    m_cboSurvey->setAccessibleName("Quality of the survey");
    m_cboSurvey->addItems(
        {"own margin", "A1: 0.5 m + 1 %", "A2: 1.0 m + 2 %", "B: 1.0 m + 2 %", "C: 2.0 m + 5 %"});
    m_cboSurvey->setToolTip("Zone of confidence of the chart (CATZOC). D and unassessed surveys "
                            "have no figure: type a margin of your own.");
}

void frmUKC::connectChoices()
{
    for (QComboBox* choice : {m_cboWater, m_cboSurvey})
        connect(choice, &QComboBox::currentIndexChanged, this, [this] {
            record().changed();
            if (!calculations().isHeld()) calculations().run(m_calculation);
        });
    connect(&program(), &Program::minuteChanged, this, [this] {
        // Today may be another day now, and what is shown is a day's.
        if (m_boxes[Day]->value().empty()) calculations().runAll();
    });
}

void frmUKC::giveRoom()
{
    for (std::size_t i = UKCShown::Draught; i < UKCResults.size(); ++i) {
        ResultLabel* label = m_results[i];
        const bool isNote = UKCResults[i].weight == Weight::Remark;
        label->setAlignment((isNote || i >= UKCShown::Hours ? Qt::AlignLeft : Qt::AlignRight) |
                            Qt::AlignVCenter);
        label->setRoom(i == UKCShown::FromTide ? "Port Rashid 20:38, lowest, all constituents"
                       : isNote                ? "blockage 0.000, at the stern"
                       : i >= UKCShown::Hours
                           ? "Wed 8/04   ~00:00 to ~00:00, ~00:00 to ~00:00, ~00:00 ~"
                           : "-000.00");
    }
}

QWidget* frmUKC::layOutAnswers()
{
    auto* answers = new AnswerStrip;
    m_results.addAnswer(answers, UKCShown::Clearance, "-000.00");
    m_results.addAnswer(answers, UKCShown::Over, "+000.00");
    m_results.addAnswer(answers, UKCShown::GreatestSpeed, "none");
    return answers;
}

/// One grid for all groups: their columns stand below each other.
QWidget* frmUKC::layOutInputs()
{
    auto* inputs = new QWidget;
    auto* grid = new QGridLayout(inputs);
    layOutBody(*grid, Spacing::Dense);
    addGroup(*grid, "Ship", Forward, Speed);
    addGroup(*grid, "Passage", Speed, Charted);
    addGroup(*grid, "Depth", Charted, Bottom, m_cboSurvey, "Survey");
    addGroup(*grid, "Squat", Bottom, Tide, m_cboWater, "By");
    addGroup(*grid, "Tide", Tide, UKCFields.size());
    grid->setRowStretch(grid->rowCount(), 1);
    return inputs;
}

void frmUKC::addGroup(QGridLayout& grid, const char* title, std::size_t first, std::size_t end,
                      QComboBox* choice, const char* caption) const
{
    constexpr int columnsOfField = 3; // caption, box, unit
    if (first > 0) grid.setRowMinimumHeight(grid.rowCount(), fontMetrics().height() / 2);
    grid.addWidget(sectionHead(title), grid.rowCount(), 0, 1, 2 * columnsOfField);
    int row = grid.rowCount();
    if (choice) {
        auto* label = new QLabel(caption);
        label->setBuddy(choice);
        grid.addWidget(label, row, 0);
        grid.addWidget(choice, row++, 1, 1, 2 * columnsOfField - 1);
    }
    const int width = fontMetrics().horizontalAdvance("2038/08/04 20");
    int place = 0;
    for (std::size_t field = first; field < end; ++field, ++place) {
        const int column = place % 2 * columnsOfField;
        auto* label = new QLabel(UKCFields[field].caption);
        label->setBuddy(m_boxes[field]);
        m_boxes[field]->setFixedWidth(width);
        grid.addWidget(label, row + place / 2, column);
        grid.addWidget(m_boxes[field], row + place / 2, column + 1);
        grid.addWidget(new QLabel(UKCFields[field].unit), row + place / 2, column + 2);
    }
}

void frmUKC::addLine(QGridLayout& grid, std::size_t result, QWidget* remark) const
{
    const int row = grid.rowCount();
    grid.addWidget(new QLabel(UKCResults[result].caption), row, 0);
    if (UKCResults[result].weight == Weight::Remark) {
        grid.addWidget(m_results[result], row, 1, 1, 3);
        return;
    }
    grid.addWidget(m_results[result], row, 1);
    grid.addWidget(new QLabel(UKCResults[result].unit), row, 2);
    if (remark) grid.addWidget(remark, row, 3);
}

void frmUKC::addSum(QGridLayout& grid, std::size_t result) const
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(hairRole);
    line->setFrameShadow(QFrame::Plain);
    grid.addWidget(line, grid.rowCount(), 0, 1, 3);
    addLine(grid, result);
}

QWidget* frmUKC::layOutResults()
{
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    layOutBody(*column, Spacing::Dense);
    column->addWidget(layOutColumn());
    column->addWidget(sectionHead("Minimum kept, zone time of the station"));
    for (std::size_t day = 0; day < TideWeek::mostDays; ++day)
        column->addWidget(m_results[UKCShown::Hours + day]);
    column->addStretch();
    return part;
}

QWidget* frmUKC::layOutColumn()
{
    using namespace UKCShown;
    auto* part = new QWidget;
    auto* grid = new QGridLayout(part);
    layOutLines(*grid);
    grid->addWidget(sectionHead("Column"), 0, 0, 1, 4);
    addLine(*grid, UKCShown::Draught, m_results[Deepest]);
    addLine(*grid, UKCShown::Squat, m_results[Formula]);
    addLine(*grid, UKCShown::List);
    addLine(*grid, UKCShown::Density);
    addLine(*grid, UKCShown::Heave);
    addSum(*grid, Dynamic);
    grid->setRowMinimumHeight(grid->rowCount(), fontMetrics().height() / 2);
    addLine(*grid, UKCShown::Charted);
    addLine(*grid, UKCShown::Tide);
    grid->addWidget(m_results[FromTide], grid->rowCount(), 0, 1, 4);
    addLine(*grid, Uncertainty);
    addSum(*grid, Depth);
    grid->setRowMinimumHeight(grid->rowCount(), fontMetrics().height() / 2);
    addLine(*grid, UKCShown::Minimum);
    addLine(*grid, LeastTide);
    addLine(*grid, UKCShown::Block);
    addLine(*grid, Others);
    grid->setColumnStretch(3, 1);
    return part;
}

QWidget* frmUKC::layOutTide()
{
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    layOutBody(*column, Spacing::Dense);
    column->addWidget(sectionHead("Tide of these days"));
    column->addWidget(m_picture, 1);
    return part;
}

void frmUKC::addMenus()
{
    QMenu* keel = menus().add("&Keel", "mnuKeel");
    menus().addEntry(keel, "mnuKeel", 0, "&Station of the tide window", [this] { takeStation(); });
    menus().addEntry(keel, "mnuKeel", 1, "&Clear", [this] { clear(); });
    menus().addStoreSingle("&Clearance", [this] { return m_shown.clearance; });
    menus().addStoreSingle("&Greatest speed", [this] {
        return m_shown.figures.greatestSpeed ? m_shown.speed : std::string();
    });
    menus().addRecallSingle("into charted &depth", m_boxes[Charted]);
    menus().addRecallSingle("into &tide", m_boxes[Tide]);
    menus().addShipNow(WindowMenus::ShipFigure::Speed, "into speed", m_boxes[Speed]);
    menus().addLinks("mnuLinks");
}

void frmUKC::goTo(const QString& place)
{
    const QString station = "station "; // as the tide window asks for it
    m_boxes[Station]->setText(place.mid(station.size()));
    // What the ship is comes first where nothing is typed of her yet.
    m_boxes[m_boxes[Forward]->value().empty() ? Forward : Time]->setFocus(Qt::TabFocusReason);
}

/// As the tide window last wrote it.
void frmUKC::takeStation()
{
    program().saveRecords();
    const auto content = program().files().read("KV_Tide.ini");
    if (content.status == FileStore::Content::Status::Read) {
        constexpr std::array kinds{FieldKind::Tick, FieldKind::Text, FieldKind::Text};
        const Record saved = readRecord(content.bytes, kinds).record;
        if (saved.size() == 3 && tickOf(saved[0])) {
            m_boxes[Station]->setText(asQString(textOf(saved[1])));
            return;
        }
    }
    sayForAWhileAs(NoticeLevel::Remark, "The tide window shows no tide station.");
}

void frmUKC::clear()
{
    m_boxes.clear(0, m_boxes.size());
    m_boxes[Forward]->setFocus();
}

UKCInput frmUKC::input() const
{
    UKCInput input;
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        input.boxes[i] = m_boxes[i]->value();
    input.water = static_cast<Water>(m_cboWater->currentIndex());
    input.survey = static_cast<Survey>(m_cboSurvey->currentIndex());
    return input;
}

std::string frmUKC::recordText() const
{
    std::string text(kind);
    text += "1\n";
    for (std::size_t i = 0; i < UKCFields.size(); ++i)
        addKeyedLine(text, UKCFields[i].name, m_boxes[i]->value());
    for (const QComboBox* choice : {m_cboWater, m_cboSurvey})
        addKeyedLine(text, choice->objectName().toStdString(),
                     std::to_string(choice->currentIndex()));
    return text;
}

std::string frmUKC::take(const std::string& bytes)
{
    return readKeyedLines(bytes, kind, "under-keel clearance",
                          [this](std::string_view key, const std::string& value) {
                              for (std::size_t i = 0; i < UKCFields.size(); ++i)
                                  if (key == UKCFields[i].name)
                                      m_boxes[i]->setText(asQString(value));
                              for (QComboBox* choice : {m_cboWater, m_cboSurvey})
                                  if (asQString(std::string(key)) == choice->objectName())
                                      choice->setCurrentIndex(choiceIn(value, *choice));
                          });
}

void frmUKC::run()
{
    m_shown = {};
    m_week = m_weeks.week(input().tide(), program().shipsTime().UTC());
    m_shown = CalculateUKC(input(), m_week);
    m_results.show(m_shown);
    m_picture->show(m_week, m_shown);
    setNotice("keel", asQString(m_shown.notice), m_shown.level);
}

/// The tide window may have extended the dates, or other files lie there now.
void frmUKC::changeEvent(QEvent* event)
{
    CalculatorWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) m_weeks.forget();
}

WorkingPaper frmUKC::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    std::erase_if(paper.inputs,
                  [](const PaperFigure& each) { return each.value == "nothing entered"; });
    for (const QComboBox* choice : {m_cboWater, m_cboSurvey})
        paper.inputs.push_back(
            {choice->accessibleName().toStdString(), choice->currentText().toStdString()});
    // The column stands in the working.
    std::erase_if(paper.results, [](const PaperFigure& each) {
        return std::ranges::none_of(paperResults, [&each](std::size_t result) {
            return each.name == UKCResults[result].inWords();
        });
    });
    if (auto hours = hoursTable(m_shown, m_week)) paper.tables = {std::move(*hours)};
    paper.workings = {columnWorking(input(), m_shown)};
    paper.limits = keelLimits(m_week);
    return paper;
}

std::vector<PaperPicture> frmUKC::paperPictures()
{
    if (!m_week.isThere()) return {};
    return {paperPicture(*m_picture,
                         "Tide at " + asQString(m_week.place) +
                             ", zone time; tinted: the minimum is kept",
                         QSize(640, 260))};
}

void frmUKC::applyColours()
{
    CalculatorWindow::applyColours();
    m_picture->setColours(program().colours());
}

} // namespace korvel
