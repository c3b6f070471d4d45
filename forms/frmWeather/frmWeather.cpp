// SPDX-License-Identifier: MIT
#include "forms/frmWeather/frmWeather.h"

#include "forms/frmWeather/CalculateWeather.h"
#include "forms/frmWeather/WeatherFields.h"
#include "forms/frmWeather/WeatherWorking.h"
#include "navlib/sea/weather_terms.h"
#include "shell/layout/CellLayout.h"
#include "shell/layout/Panels.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

/// Fields and their results; further results.
enum : std::size_t { Wave, Swell, Visibility, Miles, Letter };

QString textOfTerm(std::string_view term)
{
    return QString::fromUtf8(term.data(), static_cast<qsizetype>(term.size()));
}

/// No height, and the width of what is pinned above: it too is scrolled to where letters are huge.
class AsWideAs final : public QWidget
{
public:
    explicit AsWideAs(const QWidget& other) : m_other(other) {}
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override { return {m_other.minimumSizeHint().width(), 0}; }

private:
    const QWidget& m_other;
};

} // namespace

frmWeather::frmWeather(Program& program)
    : CalculatorWindow(program, "frmWeather", "Weather"), m_boxes(addFields(WeatherFields)),
      m_labels(addResults(WeatherResults))
{
    auto* column = new QVBoxLayout(scrollBody());
    layOutBody(*column, Spacing::Groups);
    QWidget* terms = layOutTerms();
    pinAnswers(terms); // the letters scroll below them on a small screen
    column->addWidget(new AsWideAs(*terms));
    column->addWidget(layOutLetters());
    column->addStretch();
    menus().addLinks("mnuWeather");
    addCalculations();
    loadSettings();
    m_boxes[Wave]->setFocus();
}

QGroupBox* frmWeather::layOutTerms()
{
    auto* group = new QGroupBox("Sea, swell and visibility");
    auto* grid = gridOf(group);
    for (std::size_t i = 0; i < WeatherFields.size(); ++i) {
        const int row = static_cast<int>(i);
        auto* caption = new QLabel(WeatherFields[i].caption);
        caption->setBuddy(m_boxes[i]);
        grid->addWidget(caption, row, 0);
        grid->addWidget(m_boxes[i], row, 1, Qt::AlignLeft);
        grid->addWidget(new QLabel(WeatherFields[i].unit), row, 2);
        grid->addWidget(m_labels[i], row, 3);
    }
    grid->addWidget(m_labels[Miles], 3, 3);
    // Room for the longest terms, so that nothing moves while the officer types.
    const QFontMetrics metrics(m_labels[Visibility]->font());
    grid->setColumnMinimumWidth(3, metrics.horizontalAdvance("9-Visivility exceptional "));
    grid->setColumnStretch(4, 1);
    return group;
}

QGroupBox* frmWeather::layOutLetters()
{
    constexpr int columns = 4;
    auto* group = new QGroupBox("Weather letter");
    auto* grid = gridOf(group);
    auto* cells = new CellLayout(nullptr, columns, Qt::Vertical);
    grid->addLayout(cells, 0, 0);
    const auto letters = NavFunc113::WeatherLetters();
    for (int index = 0; index < static_cast<int>(letters.size()); ++index) {
        const auto& each = letters[static_cast<std::size_t>(index)];
        auto* option = new QRadioButton(textOfTerm(each.letter) + "   " + textOfTerm(each.english));
        option->setObjectName(memberName("optWr", index));
        option->setAccessibleName(QString("Weather letter %1, %2")
                                      .arg(textOfTerm(each.letter), textOfTerm(each.english)));
        option->setToolTip(textOfTerm(each.japanese));
        connect(option, &QRadioButton::toggled, this, [this, index](bool chosen) {
            if (!chosen) return;
            m_shown.letter = CalculateWeatherTerm(static_cast<std::size_t>(index));
            m_labels.show(m_shown);
        });
        cells->addCell({option});
    }
    grid->addWidget(m_labels[Letter], 1, 0);
    return group;
}

WorkingPaper frmWeather::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.workings = {weatherWorking(m_boxes[Wave]->value(), m_boxes[Swell]->value(),
                                     m_boxes[Visibility]->value(), m_shown)};
    return paper;
}

void frmWeather::addCalculations()
{
    const auto text = [this](std::size_t field) {
        setNotice(WeatherFields[field].name,
                  asQString(remarkOn(m_boxes[field]->value(), WeatherFields[field])),
                  NoticeLevel::Fault);
        return m_boxes[field]->value();
    };
    calculations().add({"Sea state", {m_boxes[Wave]}, {m_labels[Wave]}, [=, this] {
                            m_shown.wave.clear(); // a fault leaves none behind
                            m_shown.wave = CalculateSeaState(text(Wave));
                            m_labels.show(m_shown);
                        }});
    calculations().add({"Swell", {m_boxes[Swell]}, {m_labels[Swell]}, [=, this] {
                            m_shown.swell.clear();
                            m_shown.swell = CalculateSwell(text(Swell));
                            m_labels.show(m_shown);
                        }});
    calculations().add(
        {"Visibility", {m_boxes[Visibility]}, {m_labels[Visibility], m_labels[Miles]}, [=, this] {
             m_shown.visibility.clear();
             m_shown.miles.clear();
             const auto result = CalculateVisibility(text(Visibility));
             m_shown.visibility = result.term;
             m_shown.miles = result.nauticalMiles;
             m_labels.show(m_shown);
         }});
}

} // namespace korvel
