// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "forms/frmCompass/CompassList.h"
#include "forms/frmCompass/CompassPaper.h"
#include "forms/frmCompass/frmCompass.h"
#include "forms/frmCompass/pages/BookKeeping.h"
#include "forms/frmCompass/pages/BookPage.h"
#include "forms/frmCompass/pages/CoursesPage.h"
#include "forms/frmCompass/pages/CoursesPicture.h"
#include "forms/frmCompass/pages/DeviationCard.h"
#include "forms/frmCompass/pages/DeviationPage.h"
#include "forms/frmCompass/pages/DeviationPicture.h"
#include "forms/frmCompass/pages/ErrorPage.h"
#include "navlib/angles.h"
#include "shell/layout/PageBar.h"
#include "shell/machine/AsQString.h"

// What the window puts on paper.

namespace korvel
{

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

} // namespace korvel
