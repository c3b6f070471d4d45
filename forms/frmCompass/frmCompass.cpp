// SPDX-License-Identifier: MIT
#include "forms/frmCompass/frmCompass.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/records/KORVEL2000Actions.h"
#include "forms/frmCompass/CompassWorking.h"
#include "forms/frmCompass/pages/ErrorPage.h"
#include "navlib/angles.h"
#include "shell/controls/FollowingScrollArea.h"
#include "shell/controls/PageBar.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QMenu>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr const char* recordKind = "Compass error 1";
constexpr const char* modelFile = "WMM.COF";

} // namespace

frmCompass::frmCompass(Program& program)
    : CalculatorWindow(program, "frmCompass", "Compass error"), m_pages(new PageBar),
      m_error(new ErrorPage(body()))
{
    addPages();
    connectPages();
    addMenus();
    addCalculations();
    readModel();
    useRecord();
    setAnswers(m_error->answers());
    loadSettings();
    m_error->box(CompassBox::Moment)->setFocus();
}

void frmCompass::addPages()
{
    auto* area = new FollowingScrollArea(m_error);
    setScrollArea(area);
    static_cast<QVBoxLayout*>(body()->layout())->insertWidget(0, m_pages);
    m_pages->addPage("&Error", "cmdPage(0)", "Page of the compass error", area);
    foldColumns();
}

void frmCompass::goTo(const QString& place)
{
    CalculatorWindow::goTo(place);
}

void frmCompass::connectPages()
{
    connect(m_error, &ErrorPage::choiceChanged, this, [this] {
        if (!calculations().isHeld()) calculations().run(m_errorCalculation);
    });
    connect(m_error, &ErrorPage::nowAsked, this, &frmCompass::cmdNow_Click);
    connect(&program(), &Program::TDChanged, &calculations(), &CalculationRunner::runAll);
}

void frmCompass::addMenus()
{
    QMenu* book = menus().add("&Book", "mnuCompass");
    menus()
        .addEntry(book, "mnuCompass", 0, "Present &time into the observation",
                  [this] { cmdNow_Click(); })
        ->setShortcut(Qt::Key_F5);
    QMenu* clear = menus().add("&Clear", "mnuAC");
    menus().addEntry(clear, "mnuAC", 0, "&Observation", [this] { m_error->clear(); });
    addMemoMenus();
    menus().addLinks("mnuLinks");
}

void frmCompass::addMemoMenus()
{
    const auto text = [](const std::optional<NavFunc113::Degrees>& angle) {
        return angle ? memoText(*angle) : std::string();
    };
    EntryBox* latitude = m_error->box(CompassBox::Latitude);
    EntryBox* longitude = m_error->box(CompassBox::Longitude);
    menus().addStorePosition(
        "&Position", [latitude] { return latitude->value(); },
        [longitude] { return longitude->value(); });
    menus().addStoreSingle("&Gyro error", [this, text] { return text(m_found.readings[0].error); });
    menus().addStoreSingle("&Deviation of the standard compass",
                           [this, text] { return text(m_found.readings[1].deviation); });
    menus().addStoreSingle("&Variation", [this] {
        return m_found.magnetic ? memoText(m_found.magnetic->variation) : std::string();
    });
    menus().addRecallPosition("into &position", latitude, longitude);
    menus().addRecallSingle("into &variation", m_error->box(CompassBox::Variation));
}

void frmCompass::addCalculations()
{
    m_errorCalculation = calculations().add(
        {"Compass error", m_error->boxes(), m_error->results(), [this] { runError(); }});
}

void frmCompass::readModel()
{
    const FileStore::Content file = program().files().read(modelFile);
    if (file.status == FileStore::Content::Status::Missing) return;
    std::string fault = file.reason;
    if (file.status == FileStore::Content::Status::Read) {
        try {
            m_ownModel = almanac::MagneticModel::read(file.bytes);
        } catch (const almanac::ModelFault& wrong) {
            fault = wrong.what();
        }
    }
    if (fault.empty()) return;
    setNotice("0 model", QString("%1 cannot be used: %2; variation by %3")
                             .arg(modelFile, asQString(fault), asQString(model().name())));
}

const almanac::MagneticModel& frmCompass::model() const
{
    return m_ownModel ? *m_ownModel : almanac::MagneticModel::ofProgram();
}

void frmCompass::useRecord()
{
    const PageRecord kept = m_error->kept();
    std::vector<Kind> kinds = recordKinds(kept.boxes);
    kinds.insert(kinds.begin(), Kind::Text);
    kinds.insert(kinds.end(), kept.choices.size(), Kind::Number);
    record().use(
        "KV_Compass Error.ini", std::move(kinds),
        [kept] {
            Record values = {std::string(recordKind)};
            for (const EntryBox* box : kept.boxes)
                values.emplace_back(box->value());
            for (const PageRecord::Choice& choice : kept.choices)
                values.emplace_back(static_cast<double>(choice.get()));
            return values;
        },
        [kept](const Record& values) {
            std::size_t next = 1;
            for (EntryBox* box : kept.boxes)
                box->setText(asQString(textOf(values[next++])));
            for (const PageRecord::Choice& choice : kept.choices)
                choice.set(static_cast<int>(numberOf(values[next++])));
        });
}

CompassInput frmCompass::errorInput() const
{
    return m_error->input(NavFunc113::Hours(double(program().saved().TD())), model());
}

void frmCompass::runError()
{
    m_found = {};
    m_found = CalculateCompass(errorInput());
    m_error->show(m_found, {});
    setNotice("1 error", asQString(m_found.notice), levelBeside(m_found.seen.has_value()));
}

void frmCompass::cmdNow_Click()
{
    const ShipsTime& time = program().shipsTime();
    const auto now = m_error->isShipsTime() ? time.SMT() : time.UTC();
    m_error->box(CompassBox::Moment)->setText(asQString(Format(now, "yyyy/mm/dd hh:mm:ss")));
    m_pages->turnTo(0);
    m_error->box(CompassBox::GyroBearing)->setFocus(Qt::TabFocusReason);
}

WorkingPaper frmCompass::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.inputs = m_error->paperFigures();
    for (const ResultLabel* label : m_error->results())
        if (!label->text().isEmpty()) paper.results.push_back(paperFigure(*label));
    const CompassInput input = errorInput();
    paper.workings = compassWorkings(input, m_found, {});
    paper.limits = compassLimits(input, m_found);
    if (m_found.latitude && m_found.longitude)
        paper.place =
            positionForCopy(DegToDegMin(*m_found.latitude), DegToDegMin(*m_found.longitude));
    return paper;
}

void frmCompass::applyColours()
{
    CalculatorWindow::applyColours();
    m_error->setColours(program().colours());
}

} // namespace korvel
