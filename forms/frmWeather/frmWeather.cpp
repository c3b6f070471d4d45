// SPDX-License-Identifier: MIT
#include "forms/frmWeather/frmWeather.h"

#include "forms/frmWeather/CalculateWeather.h"
#include "navlib/weather_terms.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

QString textOfTerm(std::string_view term)
{
    return QString::fromUtf8(term.data(), static_cast<qsizetype>(term.size()));
}

} // namespace

frmWeather::frmWeather(Program& program) : CalculatorWindow(program, "frmWeather", "Weather")
{
    m_txtWave = addTextBox("txtWave", "Wave height, metres");
    m_txtSWELL = addTextBox("txtSWELL", "Swell height, metres");
    m_txtVISIBILITY = addKeyUpBox("txtVISIBILITY", "Visibility, kilometres");
    setEntryOrder({m_txtWave, m_txtSWELL, m_txtVISIBILITY});
    m_lblWave = addLabel("lblWave");
    m_lblSWELL = addLabel("lblSWELL");
    m_lblVISIBILITY = addLabel("lblVISIBILITY");
    m_lblVISIBILITYnm = addLabel("lblVISIBILITYnm");
    m_lblWr = addLabel("lblWr");

    auto* column = new QVBoxLayout(scrollBody());
    column->addWidget(layOutTerms());
    column->addWidget(layOutLetters());
    column->addStretch();
    addLinksMenu("mnuWeather");
    addCalculations();
    loadSettings();
    m_txtWave->setFocus();
}

QGroupBox* frmWeather::layOutTerms()
{
    auto* group = new QGroupBox("Sea, swell and visibility");
    auto* grid = new QGridLayout(group);
    const auto row = [grid](int at, const char* caption, EntryBox* box, const char* unit,
                            ResultLabel* term) {
        auto* label = new QLabel(caption);
        label->setBuddy(box);
        grid->addWidget(label, at, 0);
        grid->addWidget(box, at, 1);
        grid->addWidget(new QLabel(unit), at, 2);
        grid->addWidget(term, at, 3);
    };
    row(0, "Wa&ve height", m_txtWave, "m", m_lblWave);
    row(1, "&Swell height", m_txtSWELL, "m", m_lblSWELL);
    row(2, "Visi&bility", m_txtVISIBILITY, "km", m_lblVISIBILITY);
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
    auto* grid = new QGridLayout(group);
    const auto letters = NavFunc113::WeatherLetters();
    const int rows = (static_cast<int>(letters.size()) + columns - 1) / columns;
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
        grid->addWidget(option, index % rows, index / rows);
    }
    grid->addWidget(m_lblWr, rows, 0, 1, columns);
    return group;
}

void frmWeather::addCalculations()
{
    addCalculation({"Sea state", {m_txtWave}, {m_lblWave}, [this] {
                        m_lblWave->setText(
                            QString::fromStdString(CalculateSeaState(m_txtWave->value())));
                    }});
    addCalculation({"Swell", {m_txtSWELL}, {m_lblSWELL}, [this] {
                        m_lblSWELL->setText(
                            QString::fromStdString(CalculateSwell(m_txtSWELL->value())));
                    }});
    addCalculation({"Visibility", {m_txtVISIBILITY}, {m_lblVISIBILITY, m_lblVISIBILITYnm}, [this] {
                        const auto result = CalculateVisibility(m_txtVISIBILITY->value());
                        m_lblVISIBILITY->setText(QString::fromStdString(result.term));
                        m_lblVISIBILITYnm->setText(QString::fromStdString(result.nauticalMiles));
                    }});
}

} // namespace korvel
