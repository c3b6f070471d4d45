// SPDX-License-Identifier: MIT
#include "forms/frmCompass/frmCompass.h"

#include "app/reading/Format.h"
#include "app/records/KORVEL2000Actions.h"
#include "forms/frmCompass/CompassList.h"
#include "forms/frmCompass/CompassTexts.h"
#include "forms/frmCompass/pages/BookKeeping.h"
#include "forms/frmCompass/pages/BookPage.h"
#include "forms/frmCompass/pages/CoursesPage.h"
#include "forms/frmCompass/pages/DeviationPage.h"
#include "forms/frmCompass/pages/ErrorPage.h"
#include "shell/layout/FollowingScrollArea.h"
#include "shell/layout/PageBar.h"
#include "shell/machine/AsQString.h"
#include "shell/window/KeptPages.h"

#include <QAction>
#include <QMenu>
#include <QVBoxLayout>

namespace korvel
{

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
    keepPages(record(), "KV_Compass Error.ini", "Compass error 1",
              {m_error->kept(), m_lines->kept(), m_deviation->kept(), m_courses->kept()});
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
    pinAnswers(m_error->answers());
    m_pages->addPage("&Error", "cmdPage(0)", "Page of the compass error", area);
    const auto add = [this](QWidget* content, const char* caption, const char* name,
                            const char* words) {
        return addScrolledPage(*body(), *m_pages, content, caption, name, words);
    };
    add(m_lines, "B&ook", "cmdPage(1)", "Page of the book");
    add(m_deviation, "Dev&iation", "cmdPage(2)", "Page of the deviation");
    add(m_courses, "Co&urses", "cmdPage(3)", "Page of the courses")
        ->setAnswers(m_courses->answers());
    foldColumns();
}

std::vector<CatalogueEntry::Place> frmCompass::pagesToGoTo()
{
    return {{"Compass book", "cmdPage(1)"},
            {"Deviation curve and card", "cmdPage(2)"},
            {"Courses: true, gyro, compass", "cmdPage(3)"},
            {"Course to steer through a current", "cmdPage(3)"}};
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
    menus().addEntry(clear, "mnuAC", 0, "&Observation", [this] {
        m_pages->turnTo(0);
        m_error->clear();
        m_error->boxes().front()->setFocus(Qt::TabFocusReason); // there Ctrl+Z brings it back
    });
    menus().addEntry(clear, "mnuAC", 1, "&Courses", [this] {
        goTo("cmdPage(3)");
        m_courses->clear();
        m_courses->boxes().front()->setFocus(Qt::TabFocusReason);
    });
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
    OwnModel own = modelOfFolder(program().files());
    m_ownModel = std::move(own.model);
    if (own.fault.empty()) return;
    setNotice("0 model", asQString(own.fault + "; variation by " + model().name()));
}

const almanac::MagneticModel& frmCompass::model() const
{
    return m_ownModel ? *m_ownModel : almanac::MagneticModel::ofProgram();
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

void frmCompass::applyColours()
{
    CalculatorWindow::applyColours();
    m_error->setColours(program().colours());
    m_lines->setColours(program().colours());
    m_deviation->setColours(program().colours());
    m_courses->setColours(program().colours());
}

} // namespace korvel
