// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/CoursesPage.h"

#include "forms/frmCompass/pages/CoursesPicture.h"
#include "shell/controls/Panels.h"
#include "shell/controls/WrappingRow.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

/// Places of resultsOfCourses; the first five are what is looked for.
enum : std::size_t { SteeredTrue, SteeredByGyro, SteeredByCompass, Track, SpeedMadeGood, Magnetic };

struct CourseLabel {
    const char* words;
    const char* caption;
    const char* widest;
    std::string CourseResult::*text;
};
constexpr std::array<CourseLabel, 9> resultsOfCourses = {{
    {"True head", "true", "<000.0>", &CourseResult::trueHead},
    {"Gyro head", "by gyro", "<000.0>", &CourseResult::gyroHead},
    {"Compass head", "by compass", "<000.0>", &CourseResult::compassHead},
    {"Track made good", "track", "<000.0>", &CourseResult::track},
    {"Speed made good, knots", "knots", "000.0", &CourseResult::speed},
    {"Magnetic head", "Magnetic head", "<000.0>", &CourseResult::magneticHead},
    {"Deviation on that head", "Deviation", "000.0 W", &CourseResult::deviation},
    {"Course through the water", "Through the water", "<000.0>", &CourseResult::waterCourse},
    {"Time for the distance", "Time", "0000 d 00 h 00 m", &CourseResult::time},
}};

} // namespace

CoursesPage::CoursesPage(Program& program, QWidget* parent)
    : ScrolledBody(parent), m_txtCourses(CourseFields, this),
      m_optGiven(new Options(this, "optGiven",
                             {{"true head", "The course is the true head"},
                              {"gyro head", "The course is the head by gyro"},
                              {"compass head", "The course is the head by compass"},
                              {"track wanted", "The course is the track over the ground"}})),
      m_cboCurve(makeList(this, "cboCurve", "Where the deviation comes from",
                          {"as typed", "curve, standard", "curve, steering"})),
      m_cmdErrors(makeButton(this, "cmdErrors", "Errors as &found",
                             "Gyro error, variation and deviation of the first page")),
      m_picture(new CoursesPicture(program, this))
{
    for (const CourseLabel& each : resultsOfCourses) {
        const QString name = memberName("lblCourses", static_cast<int>(m_lblCourses.size()));
        m_lblCourses.push_back(makeResult(this, name.toLatin1(), each.words, each.widest));
    }
    setEntryOrder({box(CourseBox::Course), box(CourseBox::Speed), box(CourseBox::Leeway),
                   box(CourseBox::Set), box(CourseBox::Drift), box(CourseBox::Distance),
                   box(CourseBox::GyroError), box(CourseBox::Variation),
                   box(CourseBox::Deviation)});
    auto* left = new QVBoxLayout;
    left->setSpacing(groupGap);
    left->addLayout(layOutCourse());
    left->addLayout(layOutCompass());
    left->addLayout(layOutResults());
    left->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(pageGap);
    row->addLayout(left);
    row->addWidget(m_picture, 1);
    connect(m_optGiven, &QButtonGroup::idToggled, this, [this](int, bool chosen) {
        if (chosen) emit choiceChanged();
    });
    connect(m_cboCurve, &QComboBox::currentIndexChanged, this, [this](int curve) {
        box(CourseBox::Deviation)->setEnabled(curve == 0);
        emit choiceChanged();
    });
    connect(m_cmdErrors, &QPushButton::clicked, this, &CoursesPage::errorsAsked);
}

void CoursesPage::addRow(QGridLayout* grid, int row, CourseBox which) const
{
    const Field& field = CourseFields[static_cast<std::size_t>(which)];
    EntryBox* entry = box(which);
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
    auto* options = new WrappingRow;
    for (QAbstractButton* each : m_optGiven->buttons())
        options->addWidget(each);
    grid->addWidget(quietLabel("It is the"), 1, 0);
    grid->addLayout(options, 1, 1, 1, 2);
    int row = 2;
    for (const CourseBox which : {CourseBox::Course, CourseBox::Speed, CourseBox::Leeway,
                                  CourseBox::Set, CourseBox::Drift, CourseBox::Distance})
        addRow(grid, row++, which);
    grid->setColumnStretch(2, 1);
    return grid;
}

QLayout* CoursesPage::layOutCompass()
{
    auto* grid = newGrid();
    grid->addWidget(sectionHead("Compasses"), 0, 0, 1, 3);
    int row = 1;
    for (const CourseBox which : {CourseBox::GyroError, CourseBox::Variation, CourseBox::Deviation})
        addRow(grid, row++, which);
    grid->addWidget(m_cmdErrors, 1, 2, Qt::AlignLeft);
    grid->addWidget(m_cboCurve, 3, 2, Qt::AlignLeft);
    grid->setColumnStretch(2, 1);
    return grid;
}

QLayout* CoursesPage::layOutResults()
{
    auto* column = new QVBoxLayout;
    column->setSpacing(groupGap);
    auto* answers = new WrappingRow;
    answers->setGap(pageGap);
    const auto part = [&](const char* head, std::size_t first, std::size_t last) {
        auto* grid = newGrid();
        grid->setHorizontalSpacing(pageGap);
        grid->addWidget(sectionHead(head), 0, 0, 1, static_cast<int>(last - first) + 1);
        for (std::size_t i = first; i <= last; ++i) {
            const int place = static_cast<int>(i - first);
            grid->addWidget(quietLabel(resultsOfCourses[i].caption), 1, place);
            grid->addWidget(m_lblCourses[i], 2, place);
        }
        answers->addLayout(grid);
    };
    part("Head to steer", SteeredTrue, SteeredByCompass);
    part("Made good", Track, SpeedMadeGood);
    column->addLayout(answers);
    auto* details = newGrid();
    for (std::size_t i = Magnetic; i < resultsOfCourses.size(); ++i) {
        const int place = static_cast<int>(i - Magnetic);
        details->addWidget(quietLabel(resultsOfCourses[i].caption), place / 2, place % 2 * 2);
        details->addWidget(m_lblCourses[i], place / 2, place % 2 * 2 + 1);
    }
    details->setColumnStretch(4, 1);
    column->addLayout(details);
    return column;
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
    for (std::size_t i = 0; i < resultsOfCourses.size(); ++i)
        m_lblCourses[i]->setText(asQString(result.*resultsOfCourses[i].text));
    m_picture->showTriangle(result.triangle, result.head);
}

void CoursesPage::setColours(const ColourScheme& colours)
{
    tintQuietLabels(*this, colours);
    m_picture->update();
}

std::vector<ResultLabel*> CoursesPage::answers() const
{
    return {m_lblCourses.begin(), m_lblCourses.begin() + Magnetic};
}

PageRecord CoursesPage::kept()
{
    return {m_txtCourses.all(), {m_optGiven->choice(), choiceOf(m_cboCurve)}};
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
