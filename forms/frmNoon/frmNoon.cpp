// SPDX-License-Identifier: MIT
#include "forms/frmNoon/frmNoon.h"

#include "app/reading/Format.h"
#include "app/records/KeyedLines.h"
#include "forms/frmNoon/NoonMail.h"
#include "forms/frmNoon/NoonResults.h"
#include "forms/frmNoon/NoonWorking.h"
#include "forms/frmPassage/PlanRecord.h"
#include "forms/frmTanks/BunkerReckoning.h"
#include "forms/frmTanks/TankRecord.h"
#include "shell/controls/AnswerStrip.h"
#include "shell/layout/CellLayout.h"
#include "shell/layout/Panels.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QMenu>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr std::string_view kind = "KORVEL2000 noon report ";

} // namespace

frmNoon::frmNoon(Program& program)
    : CalculatorWindow(program, "frmNoon", "Noon report"), m_boxes(addFields(NoonFields)),
      m_results(addResults(NoonResults))
{
    box(NoonBox::Order)->setPlaceholderText(usualOrder);
    auto* column = new QVBoxLayout(scrollBody());
    layOutBody(*column);
    pinAnswers(layOutAnswers());
    column->addWidget(layOutResults());
    column->addWidget(layOutGroup("Record and plan", NoonBox::FirstFix, NoonBox::Speed));
    column->addWidget(layOutGroup("Arrival", NoonBox::Speed, NoonBox::Pitch));
    column->addWidget(layOutGroup("Engine", NoonBox::Pitch, NoonBox::Before));
    column->addWidget(layOutGroup("Fuel", NoonBox::Before, NoonBox::Wave));
    column->addWidget(layOutGroup("Weather", NoonBox::Wave, NoonBox::Weather));
    column->addWidget(layOutGroup("Mail", NoonBox::Weather, NoonBox::End));
    column->addStretch();
    addMenus();
    m_calculation = calculations().add(
        {"Noon report", m_boxes.all(), m_results.all(), [this] { run(); }, true});
    record().useText(
        "KV_Noon.ini", [this] { return recordText(); },
        [this](const std::string& bytes) { return take(bytes); });
    readSources();
    loadSettings();
    m_boxes[0]->setFocus();
}

QWidget* frmNoon::layOutAnswers() const
{
    auto* answers = new AnswerStrip;
    for (std::size_t i = 0; i < noonAnswers; ++i)
        m_results.addAnswer(answers, i, NoonRooms[i]);
    return answers;
}

QWidget* frmNoon::layOutResults() const
{
    auto* figures = new QWidget;
    auto* cells = new CellLayout(figures, 2, Qt::Vertical);
    for (std::size_t i = noonAnswers; i < NoonResults.size(); ++i) {
        m_results[i]->setRoom(NoonRooms[i]);
        const QString unit = *NoonResults[i].unit ? QString(", ") + NoonResults[i].unit : "";
        cells->addCell({new QLabel(NoonResults[i].caption + unit), m_results[i]});
    }
    return figures;
}

QWidget* frmNoon::layOutGroup(const char* title, NoonBox first, NoonBox end) const
{
    auto* group = new QWidget;
    auto* column = new QVBoxLayout(group);
    layOutBody(*column, Spacing::Dense);
    column->addWidget(sectionHead(title));
    auto* boxes = new QWidget;
    auto* cells = new CellLayout(boxes, 4, Qt::Horizontal);
    for (std::size_t field = placeOf(first); field < placeOf(end); ++field) {
        auto* caption = new QLabel(NoonFields[field].caption);
        caption->setBuddy(m_boxes[field]);
        const bool isText = NoonFields[field].kind == FieldKind::Text;
        const int width = boxes->fontMetrics().horizontalAdvance(isText ? "0000000000000000000000"
                                                                        : "2038/08/04 20:38 ");
        m_boxes[field]->setFixedWidth(width);
        cells->addCell({caption, m_boxes[field], new QLabel(NoonFields[field].unit)});
    }
    column->addWidget(boxes);
    return group;
}

void frmNoon::addMenus()
{
    QMenu* report = menus().add("R&eport", "mnuReport");
    menus().addEntry(report, "mnuReport", 0, "Read record, plan and tanks &anew", [this] {
        readSources();
        calculations().run(m_calculation);
    });
    menus().addEntry(report, "mnuReport", 1, "&Copy as text for the mail", [this] {
        QApplication::clipboard()->setText(asQString(m_shown.mail));
        sayForAWhile(m_shown.mail.empty() ? "There is no report yet." : "Report copied.");
    });
    menus().addStoreSingle("&Day's run", [this] { return m_shown.run; });
    menus().addStoreSingle("&Average speed", [this] { return m_shown.average; });
    menus().addRecallSingle("into &to go", box(NoonBox::ToGo));
    menus().addShipNow(WindowMenus::ShipFigure::Speed, "into the second speed",
                       m_boxes[placeOf(NoonBox::Speed) + 1]);
    menus().addLinks("mnuLinks");
}

/// From the files of the other windows, which write first what they hold.
void frmNoon::readSources()
{
    program().saveRecords();
    m_record = {};
    m_plan = {};
    using Status = FileStore::Content::Status;
    const auto fixes = program().files().read("KV_Position Record.ini");
    if (fixes.status == Status::Read) {
        constexpr std::size_t boxesOfRow = 4;
        const std::vector<FieldKind> kinds(positionRowCount * boxesOfRow + 2, FieldKind::Any);
        const ReadRecord read = readRecord(fixes.bytes, kinds);
        const auto textAtPlace = [&](std::size_t at) { return textOf(read.record.at(at)); };
        for (std::size_t i = 0; i < positionRowCount; ++i)
            m_record.rows[i] = {textAtPlace(i * boxesOfRow), textAtPlace(i * boxesOfRow + 1),
                                textAtPlace(i * boxesOfRow + 2), textAtPlace(i * boxesOfRow + 3)};
        m_record.courseSteered = textAtPlace(positionRowCount * boxesOfRow);
        m_record.speedSteered = textAtPlace(positionRowCount * boxesOfRow + 1);
    }
    const auto plan = program().files().read("KV_Passage.ini");
    if (plan.status == Status::Read) m_plan = readPlanRecord(plan.bytes).plan;
    readBunkers();
}

/// From the file of the tank list. A box for fuel that is empty shows what it stands for.
void frmNoon::readBunkers()
{
    const auto tanks = program().files().read(tankFile);
    const bool isThere = tanks.status == FileStore::Content::Status::Read;
    m_bunkers = bunkersNow(isThere ? readTankRecord(tanks.bytes).sheet : TankSheet());
    const auto offer = [this](std::size_t place, const std::optional<double>& tons) {
        m_boxes[placeOf(NoonBox::Before) + place]->setPlaceholderText(
            tons ? asQString(Format(*tons, "0.0") + " tank list") : QString());
    };
    for (std::size_t i = 0; i < m_bunkers.fuels.size(); ++i) {
        offer(2 * i, m_bunkers.fuels[i].previous);
        offer(2 * i + 1, m_bunkers.fuels[i].remaining);
    }
}

NoonBoxes frmNoon::boxes() const
{
    NoonBoxes typed;
    for (std::size_t i = 0; i < NoonFields.size(); ++i)
        noonText(typed, i) = m_boxes[i]->value();
    return typed;
}

std::string frmNoon::recordText() const
{
    std::string text(kind);
    text += "1\n";
    for (std::size_t i = 0; i < NoonFields.size(); ++i)
        addKeyedLine(text, NoonFields[i].name, m_boxes[i]->value());
    return text;
}

std::string frmNoon::take(const std::string& bytes)
{
    return readKeyedLines(bytes, kind, "noon report",
                          [this](std::string_view key, const std::string& value) {
                              for (std::size_t i = 0; i < NoonFields.size(); ++i)
                                  if (key == NoonFields[i].name)
                                      m_boxes[i]->setText(asQString(value));
                          });
}

NoonInput frmNoon::input() const
{
    NoonInput input{boxes(), m_record, m_plan, NavFunc113::Hours(double(program().saved().TD())),
                    m_bunkers};
    input.record.earth = program().earth();
    input.record.shipsTD = double(program().saved().TD());
    return input;
}

void frmNoon::run()
{
    m_shown = CalculateNoon(input());
    m_results.show(m_shown);
    setNotice("report", asQString(m_shown.notice), levelBeside(m_shown.isWhole));
}

/// Whoever comes back from the record or the plan sees what they hold now.
void frmNoon::changeEvent(QEvent* event)
{
    CalculatorWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow()) return;
    // Later: another window may be going at this moment, and is not to be asked for its record.
    QMetaObject::invokeMethod(
        this,
        [this] {
            readSources();
            calculations().runAll();
        },
        Qt::QueuedConnection);
}

WorkingPaper frmNoon::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    std::erase_if(paper.inputs, [](const PaperFigure& input) {
        return input.value == "nothing entered"; // what record and plan say stands in the results
    });
    paper.workings = noonWorkings(input(), m_shown);
    paper.limits = {"Times are added in UTC; the run is the sum of the rhumb lines between the "
                    "fixes of the record",
                    "Engine miles have 1852 m: pitch x revolutions / 1852"};
    return paper;
}

} // namespace korvel
