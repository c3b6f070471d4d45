// SPDX-License-Identifier: MIT
#include "forms/frmPassage/frmPassage.h"

#include "forms/frmPassage/PassageFields.h"
#include "forms/frmPassage/PlanBoxes.h"
#include "forms/frmPassage/PlanPaper.h"
#include "forms/frmPassage/PlanPicture.h"
#include "forms/frmPassage/PlanRecord.h"
#include "forms/frmPassage/PlanSun.h"
#include "forms/frmPassage/PlanTable.h"
#include "forms/frmPassage/PlanWorking.h"
#include "shell/controls/AnswerStrip.h"
#include "shell/layout/CellLayout.h"
#include "shell/layout/Panels.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace korvel
{

frmPassage::frmPassage(Program& program)
    : CalculatorWindow(program, "frmPassage", "Passage plan"), m_work(conditions()),
      m_tide(program.files()),
      m_boxes(new PlanBoxes(m_work, addFields(PlanHeadFields), addFields(PlanRowFields), this)),
      m_table(new PlanTable(program, m_work)), m_picture(new PlanPicture),
      m_results(addResults(PassageResults))
{
    for (std::size_t i = 0; i < PassageResults.size(); ++i)
        m_results[i]->setRoom(PassageRooms[i], i == LabelTide ? 2 : 1);
    auto* grid = new QGridLayout(scrollBody());
    layOutBody(*grid);
    pinAnswers(layOutAnswers());
    grid->addWidget(m_boxes->layOutHead(), 0, 0, 1, 2);
    grid->addWidget(m_table, 1, 0);
    grid->addWidget(m_picture, 1, 1);
    grid->addWidget(m_boxes->layOutRow(), 2, 0, 1, 2);
    grid->addWidget(layOutFigures(), 3, 0, 1, 2);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
    foldColumns();
    addMenus();

    m_calculation = calculations().add(
        {"Passage plan", m_boxes->all(), m_results.all(), [this] { run(); }, true});
    connectParts();
    record().useText(
        "KV_Passage.ini", [this] { return planRecordText(m_work.plan()); },
        [this](const std::string& bytes) {
            ReadPlanRecord read = readPlanRecord(bytes);
            m_work.take(std::move(read.plan));
            m_boxes->fill();
            return read.damage;
        });
    m_boxes->fill();
    loadSettings();
    takeFilesDropped();
    m_boxes->box(RowName)->setFocus();
    takeCircle(); // which may have opened the window
}

frmPassage::~frmPassage()
{
    program().plan.legInHand.reset();
}

QWidget* frmPassage::layOutAnswers() const
{
    auto* answers = new AnswerStrip;
    // What the boxes of the wish say too may be cut short where the answers would take two lines.
    m_results[LabelSpeedFor]->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (const auto& [answer, below] : {std::pair(LabelToGo, PassageAnswers),
                                        {LabelArrival, LabelArrivalUTC},
                                        {LabelSpeed, LabelSpeedFor}})
        answers->add(PassageResults[answer].caption, m_results[answer],
                     answer == LabelToGo ? "nm" : PassageResults[answer].unit,
                     below == PassageAnswers ? nullptr : m_results[below]);
    return answers;
}

QWidget* frmPassage::layOutFigures()
{
    auto* figures = new QWidget;
    auto* cells = new CellLayout(figures, 4, Qt::Vertical);
    for (std::size_t i = PassageAnswers; i < PassageResults.size(); ++i) {
        const Result<PassageShown>& result = PassageResults[i];
        const QString unit = *result.unit ? QString(", ") + result.unit : QString();
        cells->addCell({new QLabel(result.caption + unit), m_results[i]});
    }
    return figures;
}

void frmPassage::connectParts()
{
    connect(m_boxes, &PlanBoxes::chosen, this, [this] { calculations().run(m_calculation); });
    connect(m_boxes, &PlanBoxes::rowWanted, this, [this](int by) {
        const auto to = static_cast<std::ptrdiff_t>(m_work.row()) + by;
        goToRow(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, to)));
    });
    connect(m_boxes, &PlanBoxes::rowEnded, this, &frmPassage::endRow);
    connect(m_boxes, &PlanBoxes::undoWanted, this, &frmPassage::undo);
    connect(m_boxes, &PlanBoxes::redoWanted, this, &frmPassage::redo);
    connect(m_boxes, &PlanBoxes::pasteWanted, this, &frmPassage::paste);
    connect(m_table, &PlanTable::rowChosen, this, &frmPassage::goToRow);
    connect(m_table, &PlanTable::typed, m_boxes, &PlanBoxes::typeInto);
    connect(m_table, &PlanTable::pasteWanted, this, &frmPassage::paste);
    connect(m_table, &PlanTable::deleteWanted, this, [this] {
        m_work.deleteRow();
        refresh();
    });
    connect(m_picture, &PlanPicture::rowChosen, this, &frmPassage::goToRow);
    connect(&program(), &Program::circleOffered, this, &frmPassage::takeCircle);
    connect(&program(), &Program::TDChanged, this, [this] { calculations().runAll(); });
}

PlanConditions frmPassage::conditions() const
{
    return {program().earth(), NavFunc113::Hours(double(program().saved().TD()))};
}

void frmPassage::run()
{
    if (m_boxes->isFilling()) return;
    m_work.setConditions(conditions());
    m_shown = passageShown(m_work);
    findSunAndTide();
    tellLeg();
    m_results.show(m_shown);
    m_table->showPlan();
    m_picture->setChart(m_chart.chartOf(m_work.reckoning()), m_work.row());
    setNotice("plan", asQString(m_shown.notice), levelBeside(m_shown.isWhole));
    record().changed();
}

/// Sun and tide at the row in hand: found when its place or arrival changes, not at every key.
void frmPassage::findSunAndTide()
{
    const PlanReckoning& plan = m_work.reckoning();
    if (m_work.row() >= plan.size()) return;
    const auto& position = plan.read(m_work.row()).position;
    const PlanFigures& figures = plan.figures(m_work.row());
    if (!position || !figures.eta) return;
    const Instant day = std::chrono::floor<std::chrono::days>(*figures.eta + figures.zone);
    if (m_sun.at != *position || m_sun.day != day || m_sun.zone != figures.zone)
        m_sun = {*position, day, figures.zone,
                 sunOfDay(*position, day - figures.zone, figures.zone)};
    m_shown.sun = m_sun.events.riseAndSet;
    m_shown.twilight = m_sun.events.twilight;
    const Instant minute = nearestMinute(*figures.eta);
    if (m_water.at != *position || m_water.minute != minute)
        m_water = {*position, minute, m_tide.at(*position, minute)};
    m_shown.tide = m_water.text;
}

WorkingPaper frmPassage::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.inputs.clear(); // those of the row in hand say nothing alone
    paper.results.clear();
    tellPlan(paper, m_work.plan(), m_work.reckoning());
    paper.workings = {planWorking(m_work.plan(), m_work.reckoning(), m_shown)};
    for (Working& composite : compositeWorkings(m_work.reckoning()))
        paper.workings.push_back(std::move(composite));
    paper.workings.push_back(rowWorking(m_work, m_shown));
    return paper;
}

std::vector<PaperPicture> frmPassage::paperPictures()
{
    if (!m_work.reckoning().totals().distance) return {};
    return {paperPicture(*m_picture, "The plan on Mercator's projection. No navigational chart.",
                         QSize(640, 400))};
}

} // namespace korvel
