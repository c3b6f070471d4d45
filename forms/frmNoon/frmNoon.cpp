// SPDX-License-Identifier: MIT
#include "forms/frmNoon/frmNoon.h"

#include "app/records/KeyedLines.h"
#include "forms/frmNoon/NoonFields.h"
#include "forms/frmPassage/PlanRecord.h"
#include "shell/layout/CellLayout.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/screen/WidgetColours.h"

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
constexpr double answerSize = 1.7; // of the letters of a caption

} // namespace

frmNoon::frmNoon(Program& program)
    : CalculatorWindow(program, "frmNoon", "Noon report"), m_boxes(addFields(NoonFields)),
      m_results(addResults(NoonResults))
{
    giveRoom();
    auto* column = new QVBoxLayout(scrollBody());
    layOutBody(*column);
    column->addWidget(layOutAnswers());
    column->addWidget(layOutResults());
    column->addWidget(layOutGroup("Record and plan", 0, 7));
    column->addWidget(layOutGroup("Arrival", 7, 11));
    column->addWidget(layOutGroup("Engine", 11, 15));
    column->addWidget(layOutGroup("Fuel", 15, 21));
    column->addWidget(layOutGroup("Mail", 21, NoonFields.size()));
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

void frmNoon::giveRoom()
{
    for (std::size_t i = 0; i < NoonResults.size(); ++i) {
        QFont letters = font();
        if (NoonResults[i].weight == Weight::Answer) {
            letters.setPointSizeF(letters.pointSizeF() * answerSize);
            letters.setWeight(QFont::DemiBold);
        }
        m_results[i]->setFont(letters);
        m_results[i]->setRoom(NoonRooms[i]);
    }
    m_boxes[NoonFields.size() - 1]->setPlaceholderText(usualOrder);
}

QWidget* frmNoon::layOutAnswers()
{
    auto* answers = new QWidget;
    auto* row = new WrappingRow(answers);
    for (std::size_t i = 0; i < noonAnswers; ++i) {
        auto* block = new QWidget;
        auto* lines = new QVBoxLayout(block);
        layOutBody(*lines, Spacing::Dense);
        const QString unit = *NoonResults[i].unit ? QString(", ") + NoonResults[i].unit : "";
        lines->addWidget(new QLabel(NoonResults[i].caption + unit));
        lines->addWidget(m_results[i]);
        row->startGroup();
        row->addWidget(block);
    }
    row->addStretch();
    return answers;
}

QWidget* frmNoon::layOutResults() const
{
    auto* figures = new QWidget;
    auto* cells = new CellLayout(figures, 2, Qt::Vertical);
    for (std::size_t i = noonAnswers; i < NoonResults.size(); ++i) {
        const QString unit = *NoonResults[i].unit ? QString(", ") + NoonResults[i].unit : "";
        cells->addCell({new QLabel(NoonResults[i].caption + unit), m_results[i]});
    }
    return figures;
}

QWidget* frmNoon::layOutGroup(const char* title, std::size_t first, std::size_t end) const
{
    auto* group = new QWidget;
    auto* column = new QVBoxLayout(group);
    layOutBody(*column, Spacing::Dense);
    column->addWidget(sectionHead(title));
    auto* boxes = new QWidget;
    auto* cells = new CellLayout(boxes, 4, Qt::Horizontal);
    for (std::size_t field = first; field < end; ++field) {
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
    menus().addEntry(report, "mnuReport", 0, "Read record and plan &anew", [this] {
        readSources();
        calculations().run(m_calculation);
    });
    menus().addEntry(report, "mnuReport", 1, "&Copy as text for the mail", [this] {
        QApplication::clipboard()->setText(asQString(m_shown.mail));
        sayForAWhile(m_shown.mail.empty() ? "There is no report yet." : "Report copied.");
    });
    menus().addStoreSingle("&Day's run", [this] { return m_shown.run; });
    menus().addStoreSingle("&Average speed", [this] { return m_shown.average; });
    menus().addRecallSingle("into &to go", m_boxes[5]);
    menus().addShipNow(WindowMenus::ShipFigure::Speed, "into the second speed", m_boxes[8]);
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
}

NoonBoxes frmNoon::boxes() const
{
    NoonBoxes typed;
    for (std::size_t i = 0; i < NoonTexts.size(); ++i)
        NoonTexts[i].text(typed) = m_boxes[i]->value();
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

void frmNoon::run()
{
    NoonInput input{boxes(), m_record, m_plan, NavFunc113::Hours(double(program().saved().TD()))};
    input.record.earth = program().earth();
    input.record.shipsTD = double(program().saved().TD());
    m_shown = CalculateNoon(input);
    m_results.show(m_shown);
    setNotice("report", asQString(m_shown.notice), levelBeside(m_shown.isWhole));
}

/// Whoever comes back from the record or the plan sees what they hold now.
void frmNoon::changeEvent(QEvent* event)
{
    CalculatorWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !isVisible()) return;
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
    paper.limits = {"Times are added in UTC; the run is the sum of the rhumb lines between the "
                    "fixes of the record",
                    "Engine miles have 1852 m: pitch x revolutions / 1852"};
    return paper;
}

void frmNoon::applyColours()
{
    CalculatorWindow::applyColours();
    for (std::size_t i = 0; i < noonAnswers; ++i)
        if (!isDimmed(m_results[i])) setTextColour(m_results[i], program().colours().route);
}

} // namespace korvel
