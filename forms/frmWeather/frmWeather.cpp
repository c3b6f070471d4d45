// SPDX-License-Identifier: MIT
#include "forms/frmWeather/frmWeather.h"

#include "forms/frmWeather/CalculateWeather.h"
#include "forms/frmWeather/WeatherFields.h"
#include "forms/frmWeather/WeatherWorking.h"
#include "navlib/weather_terms.h"
#include "shell/controls/CellLayout.h"
#include "shell/controls/Panels.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

enum : std::size_t { Wave, Swell, Visibility };

QString textOfTerm(std::string_view term)
{
    return QString::fromUtf8(term.data(), static_cast<qsizetype>(term.size()));
}

} // namespace

frmWeather::frmWeather(Program& program)
    : CalculatorWindow(program, "frmWeather", "Weather"), m_boxes(addFields(WeatherFields))
{
    m_lblWave = addLabel("lblWave");
    m_lblSWELL = addLabel("lblSWELL");
    m_lblVISIBILITY = addLabel("lblVISIBILITY");
    m_lblVISIBILITYnm = addLabel("lblVISIBILITYnm");
    m_lblWr = addLabel("lblWr");
    m_lblWr->declare("Weather");

    auto* column = new QVBoxLayout(scrollBody());
    layOutBody(*column);
    column->addWidget(layOutTerms());
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
    const std::array<ResultLabel*, WeatherFields.size()> terms = {m_lblWave, m_lblSWELL,
                                                                  m_lblVISIBILITY};
    for (std::size_t i = 0; i < terms.size(); ++i) {
        const int row = static_cast<int>(i);
        auto* caption = new QLabel(WeatherFields[i].caption);
        caption->setBuddy(m_boxes[i]);
        terms[i]->declare(WeatherFields[i].words);
        grid->addWidget(caption, row, 0);
        grid->addWidget(m_boxes[i], row, 1);
        grid->addWidget(new QLabel(WeatherFields[i].unit), row, 2);
        grid->addWidget(terms[i], row, 3);
    }
    m_lblVISIBILITYnm->declare("Visibility in miles");
    grid->addWidget(m_lblVISIBILITYnm, 2, 4);
    // Room for the longest terms, so that nothing moves while the officer types.
    const QFontMetrics metrics(m_lblVISIBILITY->font());
    grid->setColumnMinimumWidth(3, metrics.horizontalAdvance("9-Visivility exceptional "));
    grid->setColumnMinimumWidth(4, metrics.horizontalAdvance("9999.9 nm"));
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
            if (chosen)
                m_lblWr->setText(
                    QString::fromStdString(CalculateWeatherTerm(static_cast<std::size_t>(index))));
        });
        cells->addCell({option});
    }
    grid->addWidget(m_lblWr, 1, 0);
    return group;
}

WorkingPaper frmWeather::paper() const
{
    const auto shown = [](const ResultLabel* label) { return label->text().toStdString(); };
    WorkingPaper paper = CalculatorWindow::paper();
    paper.workings = {weatherWorking(m_boxes[Wave]->value(), m_boxes[Swell]->value(),
                                     m_boxes[Visibility]->value(),
                                     {shown(m_lblWave), shown(m_lblSWELL), shown(m_lblVISIBILITY),
                                      shown(m_lblVISIBILITYnm), shown(m_lblWr)})};
    return paper;
}

void frmWeather::addCalculations()
{
    const auto text = [this](std::size_t field) {
        setNotice(WeatherFields[field].name,
                  QString::fromStdString(remarkOn(m_boxes[field]->value(), WeatherFields[field])),
                  NoticeLevel::Fault);
        return m_boxes[field]->value();
    };
    calculations().add({"Sea state", {m_boxes[Wave]}, {m_lblWave}, [=, this] {
                            m_lblWave->setText(
                                QString::fromStdString(CalculateSeaState(text(Wave))));
                        }});
    calculations().add({"Swell", {m_boxes[Swell]}, {m_lblSWELL}, [=, this] {
                            m_lblSWELL->setText(
                                QString::fromStdString(CalculateSwell(text(Swell))));
                        }});
    calculations().add(
        {"Visibility", {m_boxes[Visibility]}, {m_lblVISIBILITY, m_lblVISIBILITYnm}, [=, this] {
             const auto result = CalculateVisibility(text(Visibility));
             m_lblVISIBILITY->setText(QString::fromStdString(result.term));
             m_lblVISIBILITYnm->setText(QString::fromStdString(result.nauticalMiles));
         }});
}

} // namespace korvel
