// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CrudeResults.h"

#include "shell/controls/Panels.h"

#include <QGridLayout>

namespace korvel
{
namespace
{

/// A figure of the result, or of its tons.
template <auto Member>
const std::string& figure(const CrudeResult& result)
{
    return result.*Member;
}
template <auto Tons, auto Member>
const std::string& figure(const CrudeResult& result)
{
    return result.*Tons.*Member;
}

void addHeading(QGridLayout* grid, int row, const QString& text)
{
    grid->addWidget(panelTitle(text), row, 0, 1, -1);
}

} // namespace

CrudeResults::CrudeResults()
{
    auto* grid = new QGridLayout(this);
    layOutBody(*grid);
    grid->setVerticalSpacing(fontMetrics().leading() + fontMetrics().descent());
    int row = 0;
    layOutVolumes(grid, row);
    layOutByDensity(grid, row);
    layOutTons(grid, row);
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(3, 1);
    // Room for a large cargo, so that the columns stand still while the officer types.
    const int figure = rangeFlag()->fontMetrics().horizontalAdvance("00000000.000");
    grid->setColumnMinimumWidth(1, figure);
    grid->setColumnMinimumWidth(2, figure);
    grid->setColumnMinimumWidth(3, fontMetrics().horizontalAdvance("Table 56 exact, 0.999999 "));
    // Where there is room for it the usual note of the barrels stands in one line.
    const int note =
        fontMetrics().horizontalAdvance("at 60 °F = kL at 15 °C / 0.1589156, by density ");
    grid->addItem(new QSpacerItem(note - figure, 0, QSizePolicy::Preferred), row, 3);
}

ResultLabel* CrudeResults::add(const char* name, const QString& words, Figure figure)
{
    auto* label = new ResultLabel(this);
    label->setObjectName(name);
    label->declare(words);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_figures.emplace_back(label, figure);
    return label;
}

ResultLabel* CrudeResults::addNote(const char* name, const QString& words, Figure figure)
{
    ResultLabel* label = add(name, words, figure);
    label->setFont(font());
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label->setRoom({});
    return label;
}

/// Two lines: the rows below stand still when a factor of one's own makes it long.
ResultLabel* CrudeResults::addLongNote(const char* name, const QString& words, Figure figure)
{
    ResultLabel* label = addNote(name, words, figure);
    label->setRoom({}, 2);
    return label;
}

void CrudeResults::layOutVolumes(QGridLayout* grid, int& row)
{
    const auto figureRow = [&](const char* caption, ResultLabel* figure, QWidget* beside) {
        grid->addWidget(new QLabel(caption), row, 0);
        grid->addWidget(figure, row, 1);
        if (beside) grid->addWidget(beside, row, 2, 1, 2);
        ++row;
    };
    addHeading(grid, row++, "Oil");
    figureRow("Density at 15 °C",
              add("lblDensity15", "Density at 15 °C, kg/m³", figure<&CrudeResult::density15>),
              new QLabel("kg/m³"));
    figureRow("API at 60 °F", add("lblAPI60", "API at 60 °F", figure<&CrudeResult::api60>),
              new QLabel("°API"));
    figureRow("VCF", add("lblVCF", "VCF", figure<&CrudeResult::vcf>),
              addNote("lblVCFMethod", "Method of the VCF", figure<&CrudeResult::vcfMethod>));
    m_rangeFlag = addNote("lblRangeFlag", "Range of the table", figure<&CrudeResult::rangeFlag>);
    figureRow("", m_rangeFlag, nullptr);
    grid->addWidget(m_rangeFlag, row - 1, 1, 1, 3);

    addHeading(grid, row++, "Volume");
    figureRow("Total observed",
              add("lblTotalObserved", "Total observed", figure<&CrudeResult::totalObserved>),
              nullptr);
    figureRow("Free water",
              add("lblFreeWater", "Free water taken off", figure<&CrudeResult::freeWater>),
              nullptr);
    figureRow("Gross observed",
              add("lblGrossObserved", "Gross observed", figure<&CrudeResult::grossObserved>),
              nullptr);
    figureRow("Gross standard",
              add("lblGrossStandard", "Gross standard", figure<&CrudeResult::grossStandard>),
              addNote("lblStandardMethod", "Method of the standard volume",
                      figure<&CrudeResult::standardMethod>));
    figureRow("Net standard",
              add("lblNetStandard", "Net standard", figure<&CrudeResult::netStandard>), nullptr);
    figureRow("Barrels", add("lblBarrels", "Barrels", figure<&CrudeResult::barrels>),
              addLongNote("lblBarrelsMethod", "Method of the barrels",
                          figure<&CrudeResult::barrelsMethod>));
    figureRow("Kilolitres", add("lblKilolitres", "Kilolitres", figure<&CrudeResult::kilolitres>),
              addLongNote("lblKilolitresMethod", "Method of the kilolitres",
                          figure<&CrudeResult::kilolitresMethod>));
}

void CrudeResults::layOutByDensity(QGridLayout* grid, int& row)
{
    addHeading(grid, row++, "Net, by density, whatever KL/Bbl says");
    grid->addWidget(columnHead("at 15 °C", Qt::AlignRight), row, 1);
    grid->addWidget(columnHead("at 60 °F", Qt::AlignRight), row++, 2);
    grid->addWidget(new QLabel("Kilolitres"), row, 0);
    grid->addWidget(add("lblKilolitres15", "Kilolitres by density, at 15 °C",
                        figure<&CrudeResult::kilolitres15>),
                    row, 1);
    grid->addWidget(add("lblKilolitres60", "Kilolitres by density, at 60 °F",
                        figure<&CrudeResult::kilolitres60>),
                    row++, 2);
    grid->addWidget(new QLabel("Barrels"), row, 0);
    grid->addWidget(
        add("lblBarrels15", "Barrels by density, at 15 °C", figure<&CrudeResult::barrels15>), row,
        1);
    grid->addWidget(
        add("lblBarrels60", "Barrels by density, at 60 °F", figure<&CrudeResult::barrels60>), row++,
        2);
}

void CrudeResults::layOutTons(QGridLayout* grid, int& row)
{
    addHeading(grid, row++, "Weight");
    grid->addWidget(columnHead("in air", Qt::AlignRight), row, 1);
    grid->addWidget(columnHead("in vacuo", Qt::AlignRight), row++, 2);
    const auto tonsRow = [&](const char* caption, ResultLabel* inAir, ResultLabel* inVacuo) {
        grid->addWidget(new QLabel(caption), row, 0);
        grid->addWidget(inAir, row, 1);
        grid->addWidget(inVacuo, row++, 2);
    };
    using Result = CrudeResult;
    using Tons = CrudeTons;
    grid->addWidget(
        addNote("lblWeightMethod", "Method of the weight", figure<&Result::weightMethod>), row, 3);
    tonsRow("Metric tons, gross",
            add("lblGrossMetricTonsInAir", "Metric tons gross, in air",
                figure<&Result::gross, &Tons::metricInAir>),
            add("lblGrossMetricTonsInVacuo", "Metric tons gross, in vacuo",
                figure<&Result::gross, &Tons::metricInVacuo>));
    tonsRow("Metric tons, net",
            add("lblMetricTonsInAir", "Metric tons net, in air",
                figure<&Result::net, &Tons::metricInAir>),
            add("lblMetricTonsInVacuo", "Metric tons net, in vacuo",
                figure<&Result::net, &Tons::metricInVacuo>));
    tonsRow("Long tons, gross",
            add("lblGrossLongTonsInAir", "Long tons gross, in air",
                figure<&Result::gross, &Tons::longInAir>),
            add("lblGrossLongTonsInVacuo", "Long tons gross, in vacuo",
                figure<&Result::gross, &Tons::longInVacuo>));
    tonsRow(
        "Long tons, net",
        add("lblLongTonsInAir", "Long tons net, in air", figure<&Result::net, &Tons::longInAir>),
        add("lblLongTonsInVacuo", "Long tons net, in vacuo",
            figure<&Result::net, &Tons::longInVacuo>));
}

void CrudeResults::show(const CrudeResult& result)
{
    for (const auto& [label, figureOf] : m_figures)
        label->setText(QString::fromStdString(figureOf(result)));
}

std::vector<ResultLabel*> CrudeResults::labels() const
{
    std::vector<ResultLabel*> all;
    for (const auto& [label, figureOf] : m_figures)
        all.push_back(label);
    return all;
}

} // namespace korvel
