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
#include "shell/controls/CellLayout.h"
#include "shell/controls/Panels.h"
#include "shell/controls/WrappingRow.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/WidgetColours.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr double answerSize = 1.7; // of the letters of a caption
struct FigureOfPlan {
    const char* caption;
    const char* unit;
    const char* widest;
};
// Three in a column.
constexpr std::array figuresOfRow{
    FigureOfPlan{"Run", "nm", "00000.0"},
    FigureOfPlan{"Leaves", "", "Wed 2038/08/04 20:38"},
    FigureOfPlan{"Sun", "", "rises 00:00, sets 00:00"},
    FigureOfPlan{"Twilight", "", "civil 00:00 to 00:00, nautical 00:00 to 00:00"},
    FigureOfPlan{"Circle", "", "a great circle would save 0000.0 nm"},
};
constexpr std::array figuresOfPlan{
    FigureOfPlan{"Departure", "", "Wed 2038/08/04 20:38; UTC Wed 20:38"},
    FigureOfPlan{"Distance", "nm", "00000.0"},
    FigureOfPlan{"Under way", "", "000 d 00 h 00 m"},
    FigureOfPlan{"Stops", "", "000 d 00 h 00 m"},
    FigureOfPlan{"In all", "", "000 d 00 h 00 m"},
    FigureOfPlan{"Circles save", "nm", "0000.0"},
    FigureOfPlan{"Clocks", "", "17 h 00 m forward"},
};

void makeAnswer(ResultLabel* label, const QString& widest)
{
    QFont letters = label->font();
    letters.setPointSizeF(letters.pointSizeF() * answerSize);
    letters.setWeight(QFont::DemiBold);
    label->setFont(letters);
    label->setRoom(widest);
    label->setAlignment(Qt::AlignLeft | Qt::AlignBaseline);
}

QWidget* captioned(const QString& caption, std::initializer_list<QWidget*> answer, QWidget* below)
{
    auto* block = new QWidget;
    auto* column = new QVBoxLayout(block);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new QLabel(caption));
    auto* line = new QHBoxLayout;
    line->setSpacing(8);
    for (QWidget* each : answer)
        line->addWidget(each, 0, Qt::AlignBaseline);
    line->addStretch();
    column->addLayout(line);
    column->addWidget(below);
    return block;
}

} // namespace

frmPassage::frmPassage(Program& program)
    : CalculatorWindow(program, "frmPassage", "Passage plan"), m_work(conditions()),
      m_boxes(new PlanBoxes(m_work, addFields(PlanHeadFields), addFields(PlanRowFields), this)),
      m_table(new PlanTable(program, m_work)), m_picture(new PlanPicture(program))
{
    addResults();
    auto* grid = new QGridLayout(scrollBody());
    layOutBody(*grid);
    auto* head = new QWidget;
    auto* headLines = new QVBoxLayout(head);
    layOutBody(*headLines);
    headLines->addWidget(m_boxes->layOutHead());
    headLines->addWidget(layOutAnswers());
    grid->addWidget(head, 0, 0, 1, 2);
    grid->addWidget(m_table, 1, 0);
    grid->addWidget(m_picture, 1, 1);
    grid->addWidget(m_boxes->layOutRow(), 2, 0, 1, 2);
    grid->addWidget(layOutFigures(), 3, 0, 1, 2);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
    foldColumns();
    addMenus();

    std::vector<ResultLabel*> results = {m_lblToGo, m_lblArrival, m_lblArrivalUTC, m_lblSpeedNeeded,
                                         m_lblSpeedFor};
    results.insert(results.end(), m_lblPlan.begin(), m_lblPlan.end());
    results.insert(results.end(), m_lblRow.begin(), m_lblRow.end());
    m_calculation =
        calculations().add({"Passage plan", m_boxes->all(), results, [this] { run(); }, true});
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
}

void frmPassage::addResults()
{
    m_lblToGo = addLabel("lblToGo");
    m_lblArrival = addLabel("lblArrival");
    m_lblArrivalUTC = addLabel("lblArrivalUTC");
    m_lblSpeedNeeded = addLabel("lblSpeedNeeded");
    m_lblSpeedFor = addLabel("lblSpeedFor");
    m_lblToGo->setAccessibleName("To go from the row in hand, nautical miles");
    m_lblArrival->setAccessibleName("Arrival, ship's time");
    m_lblArrivalUTC->setAccessibleName("Arrival in UTC, and the zone");
    m_lblSpeedNeeded->setAccessibleName("Speed needed, knots");
    m_lblSpeedFor->setAccessibleName("What the speed leads to");
    makeAnswer(m_lblToGo, "00000.0");
    makeAnswer(m_lblArrival, "Wed 2038/08/04 20:38");
    makeAnswer(m_lblSpeedNeeded, "00.00");
    for (ResultLabel* quiet : {m_lblArrivalUTC, m_lblSpeedFor}) {
        quiet->setFont(font());
        quiet->setRoom("row 000 to 000, Wed 2038/08/04 20:38 TD -11");
    }
    m_lblPlan = addLabels<7>("lblPlan");
    m_lblRow = addLabels<5>("lblRow");
}

QWidget* frmPassage::layOutAnswers()
{
    auto* answers = new QWidget;
    auto* row = new WrappingRow(answers);
    row->startGroup();
    auto* space = new QLabel(" ");
    row->addWidget(
        captioned("To go from the row in hand", {m_lblToGo, new QLabel("nautical miles")}, space));
    row->startGroup();
    row->addWidget(captioned("Arrival, ship's time", {m_lblArrival}, m_lblArrivalUTC));
    row->startGroup();
    row->addWidget(
        captioned("Speed needed", {m_lblSpeedNeeded, new QLabel("knots")}, m_lblSpeedFor));
    row->addStretch();
    return answers;
}

QWidget* frmPassage::layOutFigures()
{
    auto* figures = new QWidget;
    auto* cells = new CellLayout(figures, 4, Qt::Vertical);
    const auto put = [&](ResultLabel* label, const FigureOfPlan& figure, const char* of) {
        const QString unit = *figure.unit ? QString(", ") + figure.unit : QString();
        label->setAccessibleName(QString("%1 %2%3").arg(figure.caption, of, unit));
        label->setFont(font());
        label->setRoom(figure.widest);
        cells->addCell({new QLabel(figure.caption + unit), label});
    };
    for (std::size_t i = 0; i < m_lblRow.size(); ++i)
        put(m_lblRow[i], figuresOfRow[i], "of the row in hand");
    for (std::size_t i = 0; i < m_lblPlan.size(); ++i)
        put(m_lblPlan[i], figuresOfPlan[i], "of the whole plan");
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
    showFigures();
    showSun();
    m_table->showPlan();
    m_picture->setChart(m_chart.chartOf(m_work.reckoning()), m_work.row());
    setNotice("plan", asQString(m_shown.notice), levelBeside(m_shown.isWhole));
    record().changed();
}

void frmPassage::showFigures()
{
    const auto show = [](ResultLabel* label, const std::string& text) {
        label->setText(asQString(text));
    };
    show(m_lblToGo, m_shown.toGo);
    show(m_lblArrival, m_shown.arrival);
    show(m_lblArrivalUTC, m_shown.arrivalUTC);
    show(m_lblSpeedNeeded, m_shown.speed);
    show(m_lblSpeedFor, m_shown.speedFor);
    const PlanTotalTexts& totals = m_shown.totals;
    const std::array<const std::string*, 7> whole{
        &m_shown.departure, &totals.distance, &totals.underWay, &totals.stopped,
        &totals.elapsed,    &totals.saving,   &m_shown.clocks};
    for (std::size_t i = 0; i < whole.size(); ++i)
        show(m_lblPlan[i], *whole[i]);
    show(m_lblRow[0], m_shown.row.run);
    show(m_lblRow[1], m_shown.row.etd);
    show(m_lblRow[4], m_shown.rowSaving);
}

/// The Sun at the row in hand on the day of its arrival: reckoned when one of them changes, not at
/// every key.
void frmPassage::showSun()
{
    const PlanReckoning& plan = m_work.reckoning();
    const bool isThere = m_work.row() < plan.size();
    const auto position =
        isThere ? plan.read(m_work.row()).position : std::optional<NavFunc113::GeoPoint>();
    const auto eta = isThere ? plan.figures(m_work.row()).eta : std::optional<Instant>();
    if (!position || !eta) {
        m_lblRow[2]->clear();
        m_lblRow[3]->clear();
        return;
    }
    const Span zone = plan.figures(m_work.row()).zone;
    const Instant day = std::chrono::floor<std::chrono::days>(*eta + zone);
    const auto& [at, when] = m_sunShown;
    const bool isShown = !m_lblRow[2]->text().isEmpty() && at.lat == position->lat &&
                         at.longitude == position->longitude && when == std::pair(day, zone);
    if (isShown) return;
    m_sunShown = {*position, {day, zone}};
    const SunOfDay sun = sunOfDay(*position, *eta, zone);
    m_lblRow[2]->setText(asQString(sun.riseAndSet));
    m_lblRow[3]->setText(asQString(sun.twilight));
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
    paper.workings.push_back(rowWorking(
        m_work, m_shown, {m_lblRow[2]->text().toStdString(), m_lblRow[3]->text().toStdString()}));
    return paper;
}

std::vector<PaperPicture> frmPassage::paperPictures()
{
    if (!m_work.reckoning().totals().distance) return {};
    return {paperPicture(*m_picture, "The plan on Mercator's projection. No navigational chart.",
                         QSize(640, 400))};
}

void frmPassage::applyColours()
{
    CalculatorWindow::applyColours();
    const ColourScheme& colours = program().colours();
    for (ResultLabel* answer : {m_lblToGo, m_lblArrival, m_lblSpeedNeeded})
        if (!isDimmed(answer)) setTextColour(answer, colours.route);
    for (ResultLabel* quiet : {m_lblArrivalUTC, m_lblSpeedFor})
        if (!isDimmed(quiet)) setTextColour(quiet, colours.echo);
}

} // namespace korvel
