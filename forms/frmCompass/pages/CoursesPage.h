// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CompassFields.h"
#include "forms/frmCompass/CompassResults.h"
#include "shell/controls/PageParts.h"
#include "shell/controls/ResultLabels.h"
#include "shell/layout/FollowingScrollArea.h"

class QLayout;

namespace korvel
{

class CoursesPicture;

/// Courses into each other, and the course through a current.
class CoursesPage : public ScrolledBody
{
    Q_OBJECT

public:
    explicit CoursesPage(QWidget* parent);

    /// The curve of the deviation that is chosen; nothing: as typed.
    std::optional<CompassKind> curve() const;
    CourseInput input() const; ///< without its curve
    void show(const CourseResult& result);
    void setColours(const ColourScheme& colours);

    EntryBox* box(CourseBox which) const { return m_txtCourses[static_cast<std::size_t>(which)]; }
    std::vector<EntryBox*> boxes() const { return m_txtCourses.all(); }
    const std::vector<ResultLabel*>& results() const { return m_lblCourses.all(); }
    PageRecord kept();
    std::vector<PaperFigure> paperFigures() const;
    CoursesPicture& picture() const { return *m_picture; }
    void clear() { m_txtCourses.clear(0, m_txtCourses.size()); }

    /// Head to steer and what is made good, for above what scrolls.
    QWidget* answers() const { return m_answers; }

signals:
    void choiceChanged();
    void errorsAsked();

private:
    QLayout* layOutCourse();
    QLayout* layOutCompass();
    void layOutAnswers();
    QLayout* layOutFigures();
    void addRow(QGridLayout* grid, CourseBox which) const;

    FieldBoxes m_txtCourses;
    ResultLabels<CourseResult> m_lblCourses;
    Options* m_optGiven;
    QComboBox* m_cboCurve;
    QPushButton* m_cmdErrors;
    CoursesPicture* m_picture;
    QWidget* m_answers;
};

} // namespace korvel
