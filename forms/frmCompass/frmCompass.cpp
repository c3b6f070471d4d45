// SPDX-License-Identifier: MIT
#include "forms/frmCompass/frmCompass.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/records/KORVEL2000Actions.h"
#include "forms/frmCompass/CompassList.h"
#include "forms/frmCompass/CompassPaper.h"
#include "forms/frmCompass/CompassTexts.h"
#include "forms/frmCompass/pages/BookKeeping.h"
#include "forms/frmCompass/pages/BookPage.h"
#include "forms/frmCompass/pages/CoursesPage.h"
#include "forms/frmCompass/pages/CoursesPicture.h"
#include "forms/frmCompass/pages/DeviationCard.h"
#include "forms/frmCompass/pages/DeviationPage.h"
#include "forms/frmCompass/pages/DeviationPicture.h"
#include "forms/frmCompass/pages/ErrorPage.h"
#include "navlib/angles.h"
#include "shell/layout/FollowingScrollArea.h"
#include "shell/layout/PageBar.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr const char* recordKind = "Compass error 1";
constexpr const char* modelFile = "WMM.COF";

} // namespace

frmCompass::frmCompass(Program& program)
    : CalculatorWindow(program, "frmCompass", "Compass error"), m_pages(new PageBar),
      m_error(new ErrorPage(body())), m_lines(new BookPage(body())),
      m_deviation(new DeviationPage(body())), m_courses(new CoursesPage(body())),
      m_book(new BookKeeping(program, *m_lines, this))
{
    addPages();
    connectPages();
    addMenus();
    addCalculations();
    readModel();
    useRecord();
    m_book->load();
    loadSettings();
    m_book->show();
    calculations().run(m_deviationCalculation);
    m_error->box(CompassBox::Moment)->setFocus();
}

void frmCompass::addPages()
{
    auto* area = new FollowingScrollArea(m_error);
    setScrollArea(area);
    static_cast<QVBoxLayout*>(body()->layout())->insertWidget(0, m_pages);
    m_pages->addPage("&Error", "cmdPage(0)", "Page of the compass error", area);
    const auto add = [this](QWidget* content, const char* caption, const char* name,
                            const char* words) {
        auto* its = new FollowingScrollArea(content);
        its->foldColumns();
        body()->layout()->addWidget(its);
        m_pages->addPage(caption, name, words, its);
    };
    add(m_lines, "B&ook", "cmdPage(1)", "Page of the book");
    add(m_deviation, "Dev&iation", "cmdPage(2)", "Page of the deviation");
    add(m_courses, "Co&urses", "cmdPage(3)", "Page of the courses");
    foldColumns();
}

std::vector<CatalogueEntry::Place> frmCompass::pagesToGoTo()
{
    return {{"Compass book", "cmdPage(1)"},
            {"Deviation curve and card", "cmdPage(2)"},
            {"Courses: true, gyro, compass", "cmdPage(3)"},
            {"Course to steer through a current", "cmdPage(3)"}};
}

void frmCompass::goTo(const QString& place)
{
    auto* page = findChild<QPushButton*>(place);
    if (!page) return CalculatorWindow::goTo(place);
    page->click();
}

void frmCompass::connectPages()
{
    connect(m_error, &ErrorPage::choiceChanged, this, [this] {
        if (!calculations().isHeld()) calculations().run(m_errorCalculation);
    });
    connect(m_error, &ErrorPage::nowAsked, this, &frmCompass::cmdNow_Click);
    connect(m_error, &ErrorPage::recordAsked, this, &frmCompass::cmdRecord_Click);
    connect(m_lines, &BookPage::takeAsked, this, &frmCompass::cmdTake_Click);
    connect(m_book, &BookKeeping::changed, this,
            [this] { calculations().run(m_deviationCalculation); });
    connect(m_book, &BookKeeping::written, this,
            [this](const QString& fault) { setNotice("book", fault, NoticeLevel::Fault); });
    connect(m_book, &BookKeeping::refused, this, &frmCompass::refuse);
    connect(m_book, &BookKeeping::done, this, &frmCompass::sayForAWhile);
    connect(m_deviation, &DeviationPage::compassChosen, this, [this] {
        if (!calculations().isHeld()) calculations().run(m_deviationCalculation);
    });
    connect(m_deviation, &DeviationPage::cardAsked, this, &frmCompass::printCard);
    connect(m_courses, &CoursesPage::choiceChanged, this, [this] {
        if (!calculations().isHeld()) calculations().run(m_courseCalculation);
    });
    connect(m_courses, &CoursesPage::errorsAsked, this, &frmCompass::takeErrors);
    connect(m_pages, &PageBar::turned, this, &frmCompass::pageTurned);
    connect(&program(), &Program::TDChanged, &calculations(), &CalculationRunner::runAll);
}

void frmCompass::addMenus()
{
    QMenu* book = menus().add("&Book", "mnuCompass");
    int index = 0;
    const auto entry = [&](const char* caption, std::function<void()> action) {
        return menus().addEntry(book, "mnuCompass", index++, caption, std::move(action));
    };
    entry("Present &time into the observation", [this] {
        cmdNow_Click();
    })->setShortcut(Qt::Key_F5);
    entry("&Record the line", [this] { cmdRecord_Click(); })->setShortcut(Qt::Key_F6);
    entry("Chosen &line into the boxes", [this] { cmdTake_Click(); });
    entry("&Delete the chosen line", [this] { m_book->deleteChosen(); });
    entry("&Undo the last change of the book", [this] { m_book->undo(); });
    entry("&Import a saved list (CSV)..", [this] { m_book->importList(); });
    entry("Print the deviation &card..", [this] { printCard(); });
    QMenu* clear = menus().add("&Clear", "mnuAC");
    menus().addEntry(clear, "mnuAC", 0, "&Observation", [this] { m_error->clear(); });
    menus().addEntry(clear, "mnuAC", 1, "&Courses", [this] { m_courses->clear(); });
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
    m_deviationCalculation = calculations().add(
        {"Deviation", m_deviation->boxes(), m_deviation->results(), [this] { runDeviation(); }});
    m_courseCalculation = calculations().add(
        {"Courses", m_courses->boxes(), m_courses->results(), [this] { runCourses(); }});
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
    PageRecord kept = m_error->kept();
    for (const PageRecord& each : {m_lines->kept(), m_deviation->kept(), m_courses->kept()}) {
        kept.boxes.insert(kept.boxes.end(), each.boxes.begin(), each.boxes.end());
        kept.choices.insert(kept.choices.end(), each.choices.begin(), each.choices.end());
    }
    std::vector<FieldKind> kinds = recordKinds(kept.boxes);
    kinds.insert(kinds.begin(), FieldKind::Text);
    kinds.insert(kinds.end(), kept.choices.size(), FieldKind::Number);
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
    showErrors();
    refuse({});
    setNotice("3 doubt~", {});
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

/// The errors as found, and what the curves of the book say beside them.
void frmCompass::showErrors()
{
    for (std::size_t i = 0; i < compassCount; ++i)
        m_found.besideCurves[i] =
            m_curves[i].fit ? besideCurve(*m_curves[i].fit, m_found.readings[i]) : std::string();
    m_error->show(m_found);
    m_deviation->showInHand(m_found.readings[static_cast<std::size_t>(m_deviation->kind())]);
}

const DeviationCurve& frmCompass::shownCurve() const
{
    return m_curves[static_cast<std::size_t>(m_deviation->kind())];
}

void frmCompass::runDeviation()
{
    Remarks remarks;
    m_since = m_deviation->since(remarks);
    for (const CompassKind kind : {CompassKind::Standard, CompassKind::Steering}) {
        const auto index = static_cast<std::size_t>(kind);
        m_curves[index] = deviationCurve(m_book->book(), kind, m_since[index]);
    }
    m_deviation->show(shownCurve(), m_book->book());
    setNotice("4 since", asQString(remarks.text()), NoticeLevel::Fault);
    showErrors();
    pageTurned();
    if (m_courses->curve()) calculations().run(m_courseCalculation);
}

/// What is missing for a curve matters to whoever looks at it.
void frmCompass::pageTurned()
{
    const bool isSeen = m_pages->page() == Deviation;
    setNotice("5 curve~", isSeen ? asQString(shownCurve().notice) : QString());
}

void frmCompass::runCourses()
{
    m_course = {};
    m_courseInput = m_courses->input();
    std::string missing;
    if (const auto kind = m_courses->curve()) {
        const DeviationCurve& curve = m_curves[static_cast<std::size_t>(*kind)];
        if (curve.fit)
            m_courseInput.curve = curve.fit->coefficients();
        else
            missing = "Deviation: the book has no curve of this compass yet";
    }
    m_course = CalculateCourses(m_courseInput);
    m_courses->show(m_course);
    setNotice("6 curve", asQString(missing), NoticeLevel::Fault);
    setNotice("7 courses", asQString(m_course.notice), levelBeside(m_course.head.has_value()));
}

void frmCompass::takeErrors()
{
    const auto put = [this](CourseBox which, const std::optional<NavFunc113::Degrees>& angle) {
        if (angle) m_courses->box(which)->setText(asQString(eastWestText(*angle)));
    };
    const auto kind = static_cast<std::size_t>(m_courses->curve().value_or(CompassKind::Standard));
    put(CourseBox::GyroError, m_found.readings[0].error);
    if (m_found.magnetic) put(CourseBox::Variation, m_found.magnetic->variation);
    put(CourseBox::Deviation, m_found.readings[kind].deviation);
}

void frmCompass::printCard()
{
    const DeviationCurve& curve = shownCurve();
    if (!curve.fit) return refuse("No card: " + asQString(curve.notice));
    const PaperHeading heading = program().paperHeading();
    const DeviationCard card{compassNames[static_cast<std::size_t>(m_deviation->kind())],
                             asQString(heading.ship),
                             asQString(Format(heading.UTC, "yyyy-mm-dd hh:mm")) + " UTC",
                             paperPicture(m_deviation->picture(), "Deviation", QSize(360, 560))};
    printer().print("Deviation card", QPageLayout::Portrait,
                    [&](QPainter& painter, const QRect& room) {
                        drawDeviationCard(painter, room, card, curve, m_book->book());
                    });
}

/// Says why something was not done, until the next change.
void frmCompass::refuse(const QString& why)
{
    setNotice("2 refused~", why, NoticeLevel::Fault);
}

void frmCompass::cmdRecord_Click()
{
    const auto line = lineOf(errorInput(), m_found, m_error->observer(), m_error->remark());
    const std::string doubt = line ? doubtAbout(*line, m_book->book(), m_since) : std::string();
    if (!m_book->record(line)) return;
    setNotice("3 doubt~", asQString(doubt));
    m_pages->turnTo(Error);
    m_error->box(CompassBox::Moment)->setFocus(Qt::TabFocusReason);
}

void frmCompass::cmdTake_Click()
{
    const auto line = m_book->chosen();
    if (!line) return;
    auto texts = boxesOf(*line);
    for (const CompassBox stays : {CompassBox::HeightOfEye, CompassBox::Speed})
        texts[static_cast<std::size_t>(stays)] = m_error->box(stays)->value();
    calculations().hold();
    m_error->fill(texts);
    m_error->choose(CompassClock::UTC, line->method, !line->isVariationTyped());
    calculations().release(true);
    calculations().run(m_errorCalculation);
    m_pages->turnTo(Error);
    m_error->box(CompassBox::Moment)->setFocus(Qt::TabFocusReason);
}

void frmCompass::closeEvent(QCloseEvent* event)
{
    m_book->saveAtClose();
    CalculatorWindow::closeEvent(event);
}

void frmCompass::tellError(WorkingPaper& paper) const
{
    const CompassInput input = errorInput();
    paper.inputs = m_error->paperFigures();
    for (const ResultLabel* label : m_error->results())
        if (!label->text().isEmpty()) paper.results.push_back(paperFigure(*label));
    paper.workings = compassWorkings(input, m_found);
    paper.limits = compassLimits(input, m_found);
    if (m_found.latitude && m_found.longitude)
        paper.place =
            positionForCopy(DegToDegMin(*m_found.latitude), DegToDegMin(*m_found.longitude));
}

void frmCompass::tellCourses(WorkingPaper& paper) const
{
    paper.kind = "Courses";
    paper.inputs = m_courses->paperFigures();
    for (const ResultLabel* label : m_courses->results())
        if (!label->text().isEmpty()) paper.results.push_back(paperFigure(*label));
    std::string curve = "as typed";
    if (const auto kind = m_courses->curve())
        curve = std::string("curve of the book, ") + compassNames[static_cast<std::size_t>(*kind)] +
                " compass, solved for its head";
    paper.workings = coursesWorkings(m_courseInput, m_course, curve);
    paper.remarks = {};
    if (!m_course.notice.empty()) paper.remarks.push_back(m_course.notice);
    paper.limits = {"Set and drift are taken to be the same for the whole time",
                    "A degree of leeway or half a knot of drift is seldom known better"};
}

WorkingPaper frmCompass::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    switch (m_pages->page()) {
    case Book:
        paper.remarks.clear(); // they are of the observation
        tellBook(paper, m_book->book(), m_lines->kind());
        break;
    case Deviation:
        paper.inputs = m_deviation->paperFigures();
        tellDeviation(paper, shownCurve(), m_book->book(), m_deviation->kind());
        break;
    case Courses:
        tellCourses(paper);
        break;
    default:
        tellError(paper);
    }
    if (!m_book->book().empty())
        paper.list = compassList(m_book->book(), compassLines(m_book->book(), m_lines->kind()));
    return paper;
}

std::vector<PaperPicture> frmCompass::paperPictures()
{
    if (m_pages->page() == Deviation && !shownCurve().points.empty())
        return {paperPicture(m_deviation->picture(), "Deviation over the compass head",
                             QSize(420, 560))};
    if (m_pages->page() == Courses && m_course.triangle)
        return {paperPicture(m_courses->picture(), "Course, current and track, knots, north up",
                             QSize(460, 480))};
    return {};
}

void frmCompass::applyColours()
{
    CalculatorWindow::applyColours();
    m_error->setColours(program().colours());
    m_lines->setColours(program().colours());
    m_deviation->setColours(program().colours());
    m_courses->setColours(program().colours());
}

} // namespace korvel
