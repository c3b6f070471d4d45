// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/CoursesPage.h"

#include "forms/frmCompass/pages/CoursesPicture.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

/// Places of CourseResults.
enum : std::size_t { SteeredTrue, SteeredByGyro, SteeredByCompass, Track, SpeedMadeGood, Magnetic };

} // namespace

CoursesPage::CoursesPage(QWidget* parent)
    : ScrolledBody(parent), m_txtCourses(CourseFields, this), m_lblCourses(CourseResults, this),
      m_optGiven(new Options(this, "optGiven",
                             {{"true head", "The course is the true head"},
                              {"gyro head", "The course is the head by gyro"},
                              {"compass head", "The course is the head by compass"},
                              {"track wanted", "The course is the track over the ground"}})),
      m_cboCurve(makeList(this, "cboCurve", "Where the deviation comes from",
                          {"as typed", "curve, standard", "curve, steering"})),
      m_cmdErrors(makeButton(this, "cmdErrors", "Errors as &found",
                             "Gyro error, variation and deviation of the first page")),
      m_picture(new CoursesPicture(this)), m_answers(new QWidget(this))
{
    for (ResultLabel* label : m_lblCourses.all())
        label->setRoom(label == m_lblCourses.all().back() ? "0000 d 00 h 00 m" : "<000.0>");
    setEntryOrder({box(CourseBox::Course), box(CourseBox::Speed), box(CourseBox::Leeway),
                   box(CourseBox::Set), box(CourseBox::Drift), box(CourseBox::Distance),
                   box(CourseBox::GyroError), box(CourseBox::Variation),
                   box(CourseBox::Deviation)});
    auto* left = new QVBoxLayout;
    left->setSpacing(pageGroupGap);
    left->addLayout(layOutCourse());
    left->addLayout(layOutCompass());
    left->addStretch();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(pageGap);
    grid->setVerticalSpacing(pageGroupGap);
    grid->addLayout(left, 0, 0, 2, 1);
    grid->addWidget(m_picture, 0, 1);
    grid->addLayout(layOutFigures(), 1, 1);
    layOutAnswers();
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(0, 1);
    connect(m_optGiven, &QButtonGroup::idToggled, this, [this](int, bool chosen) {
        if (chosen) emit choiceChanged();
    });
    connect(m_cboCurve, &QComboBox::currentIndexChanged, this, [this](int curve) {
        box(CourseBox::Deviation)->setEnabled(curve == 0);
        emit choiceChanged();
    });
    connect(m_cmdErrors, &QPushButton::clicked, this, &CoursesPage::errorsAsked);
}

void CoursesPage::addRow(QGridLayout* grid, CourseBox which) const
{
    const int row = grid->rowCount();
    const Field& field = CourseFields[static_cast<std::size_t>(which)];
    EntryBox* entry = box(which);
    entry->setAlignment(Qt::AlignRight); // also figures with E or W behind them
    entry->setFixedWidth(entry->fontMetrics().horizontalAdvance("000000000000"));
    grid->addWidget(quietLabel(field.caption, entry), row, 0);
    grid->addWidget(entry, row, 1);
    const char* unit = which == CourseBox::Leeway ? "degrees, to port negative"
                       : which == CourseBox::Set  ? "degrees true"
                                                  : field.unit;
    if (which != CourseBox::Deviation) grid->addWidget(quietLabel(unit), row, 2);
}

QLayout* CoursesPage::layOutCourse()
{
    auto* grid = newGrid();
    grid->addWidget(sectionHead("Course and current"), 0, 0, 1, 3);
    grid->addWidget(quietLabel("It is the"), 1, 0);
    grid->addWidget(m_optGiven->makeSwitch(), 1, 1, 1, 2);
    for (const CourseBox which : {CourseBox::Course, CourseBox::Speed, CourseBox::Leeway,
                                  CourseBox::Set, CourseBox::Drift, CourseBox::Distance})
        addRow(grid, which);
    grid->setColumnStretch(2, 1);
    return grid;
}

QLayout* CoursesPage::layOutCompass()
{
    auto* grid = newGrid();
    grid->addWidget(sectionHead("Compasses"), 0, 0, 1, 3);
    for (const CourseBox which : {CourseBox::GyroError, CourseBox::Variation, CourseBox::Deviation})
        addRow(grid, which);
    grid->addWidget(m_cmdErrors, 1, 2, Qt::AlignLeft);
    grid->addWidget(m_cboCurve, 3, 2, Qt::AlignLeft);
    grid->setColumnStretch(2, 1);
    return grid;
}

/// Two lines, as on the first page: the rest of the height is for boxes and picture.
void CoursesPage::layOutAnswers()
{
    auto* row = new WrappingRow(m_answers);
    row->setGap(pageGap);
    const auto part = [&](std::size_t first, std::size_t last) {
        auto* grid = newGrid();
        grid->setHorizontalSpacing(pageGap);
        grid->setVerticalSpacing(0);
        for (std::size_t i = first; i <= last; ++i) {
            const int place = static_cast<int>(i - first);
            grid->addWidget(quietLabel(CourseResults[i].caption), 0, place);
            grid->addWidget(m_lblCourses[i], 1, place);
        }
        grid->setRowStretch(2, 1);
        row->addLayout(grid);
    };
    part(SteeredTrue, SteeredByCompass);
    part(Track, SpeedMadeGood);
    row->addStretch();
}

QLayout* CoursesPage::layOutFigures()
{
    auto* details = newGrid();
    details->addWidget(sectionHead("Beside it"), 0, 0, 1, 5);
    for (std::size_t i = Magnetic; i < CourseResults.size(); ++i) {
        const int place = static_cast<int>(i - Magnetic);
        details->addWidget(quietLabel(CourseResults[i].caption), 1 + place / 2, place % 2 * 2);
        details->addWidget(m_lblCourses[i], 1 + place / 2, place % 2 * 2 + 1);
    }
    details->setColumnStretch(4, 1);
    return details;
}

std::optional<CompassKind> CoursesPage::curve() const
{
    const int chosen = m_cboCurve->currentIndex();
    if (chosen <= 0) return std::nullopt;
    return static_cast<CompassKind>(chosen);
}

CourseInput CoursesPage::input() const
{
    CourseInput typed;
    typed.txtCourses = m_txtCourses.texts<0, CourseFields.size()>();
    typed.given = static_cast<CourseGiven>(m_optGiven->chosen());
    return typed;
}

void CoursesPage::show(const CourseResult& result)
{
    m_lblCourses.show(result);
    m_picture->showTriangle(result.triangle, result.head);
}

void CoursesPage::setColours(const ColourScheme& colours)
{
    tintQuietLabels(*this, colours);
    tintQuietLabels(*m_answers, colours); // they have left the page
}

PageRecord CoursesPage::kept()
{
    return {m_txtCourses.all(), {choiceOf(m_optGiven), choiceOf(m_cboCurve)}};
}

std::vector<PaperFigure> CoursesPage::paperFigures() const
{
    std::vector<PaperFigure> figures = {
        {"The course is the", m_optGiven->checkedButton()->text().toStdString()}};
    for (std::size_t i = 0; i < m_txtCourses.size(); ++i) {
        const bool isByCurve = i == static_cast<std::size_t>(CourseBox::Deviation) && curve();
        if (isByCurve)
            figures.push_back({"Deviation", m_cboCurve->currentText().toStdString()});
        else if (!m_txtCourses[i]->text().trimmed().isEmpty())
            figures.push_back(m_txtCourses.paperFigure(i));
    }
    return figures;
}

} // namespace korvel
