// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CalculateCompass.h"
#include "forms/frmCompass/CompassWorking.h"
#include "forms/frmCompass/CoursesWorking.h"
#include "forms/frmCompass/DeviationCurve.h"
#include "shell/program/WindowCatalogue.h"
#include "shell/window/CalculatorWindow.h"

namespace korvel
{

class BookKeeping;
class BookPage;
class CoursesPage;
class DeviationPage;
class ErrorPage;
class PageBar;

/// Errors of the compasses, the book that keeps them, the deviation that the book has found, and
/// courses into each other.
///
/// Record of "KV_Compass Error.ini": its kind and version, then what the pages keep, boxes before
/// choices. The book has a file of its own, written at every change of it.
class frmCompass : public CalculatorWindow
{
public:
    explicit frmCompass(Program& program);

    /// The pages by what they are looked for.
    static std::vector<CatalogueEntry::Place> pagesToGoTo();

protected:
    WorkingPaper paper() const override;
    std::vector<PaperPicture> paperPictures() override;
    void applyColours() override;
    void closeEvent(QCloseEvent* event) override;

private:
    enum Page : std::size_t { Error, Book, Deviation, Courses };
    void addPages();
    void connectPages();
    void addMenus();
    void addMemoMenus();
    void addCalculations();
    void readModel();

    CompassInput errorInput() const;
    void runError();
    void showErrors();
    void runDeviation();
    void runCourses();
    void tellError(WorkingPaper& paper) const;
    void tellCourses(WorkingPaper& paper) const;

    void cmdNow_Click();
    void cmdRecord_Click();
    void cmdTake_Click();
    void printCard();
    void takeErrors();
    void refuse(const QString& why);
    void pageTurned();
    const DeviationCurve& shownCurve() const;

    std::optional<almanac::MagneticModel> m_ownModel; ///< of the program's folder
    const almanac::MagneticModel& model() const;

    PageBar* m_pages;
    ErrorPage* m_error;
    BookPage* m_lines;
    DeviationPage* m_deviation;
    CoursesPage* m_courses;
    BookKeeping* m_book;
    std::array<DeviationCurve, compassCount> m_curves; ///< of the book as it is; none of the gyro
    CountsSinceByCompass m_since;
    CompassResult m_found;
    CourseInput m_courseInput;
    CourseResult m_course;
    int m_errorCalculation{};
    int m_deviationCalculation{};
    int m_courseCalculation{};
};

} // namespace korvel
