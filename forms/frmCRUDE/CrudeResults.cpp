// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CrudeResults.h"

#include <QGridLayout>

namespace korvel
{
namespace
{

void addHeading(QGridLayout* grid, int row, const QString& text)
{
    auto* heading = new QLabel(text);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    grid->addWidget(heading, row, 0, 1, -1);
}

} // namespace

CrudeResults::CrudeResults()
{
    auto* grid = new QGridLayout(this);
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
    grid->setColumnMinimumWidth(
        3, fontMetrics().horizontalAdvance("= bbl x 0.15899 (by density 0.1589141) "));
}

ResultLabel* CrudeResults::add(const char* name, Figure figure)
{
    auto* label = new ResultLabel(this);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_figures.emplace_back(label, figure);
    return label;
}

ResultLabel* CrudeResults::addNote(const char* name, Figure figure)
{
    ResultLabel* label = add(name, figure);
    label->setFont(font());
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
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
    figureRow("Density at 15 °C", add("lblDensity15", &CrudeResult::density15),
              new QLabel("kg/m³"));
    figureRow("API at 60 °F", add("lblAPI60", &CrudeResult::api60), new QLabel("°API"));
    figureRow("VCF", add("lblVCF", &CrudeResult::vcf),
              addNote("lblVCFMethod", &CrudeResult::vcfMethod));
    m_rangeFlag = addNote("lblRangeFlag", &CrudeResult::rangeFlag);
    figureRow("", m_rangeFlag, nullptr);
    grid->addWidget(m_rangeFlag, row - 1, 1, 1, 3);

    addHeading(grid, row++, "Volume");
    figureRow("Gross observed", add("lblGrossObserved", &CrudeResult::grossObserved), nullptr);
    figureRow("Gross standard", add("lblGrossStandard", &CrudeResult::grossStandard),
              addNote("lblStandardMethod", &CrudeResult::standardMethod));
    figureRow("Net standard", add("lblNetStandard", &CrudeResult::netStandard), nullptr);
    figureRow("Barrels", add("lblBarrels", &CrudeResult::barrels),
              addNote("lblBarrelsMethod", &CrudeResult::barrelsMethod));
    figureRow("Kilolitres", add("lblKilolitres", &CrudeResult::kilolitres),
              addNote("lblKilolitresMethod", &CrudeResult::kilolitresMethod));
}

void CrudeResults::layOutByDensity(QGridLayout* grid, int& row)
{
    addHeading(grid, row++, "By density, whatever KL/Bbl says");
    grid->addWidget(new QLabel("at 15 °C"), row, 1, Qt::AlignRight);
    grid->addWidget(new QLabel("at 60 °F"), row++, 2, Qt::AlignRight);
    grid->addWidget(new QLabel("Kilolitres"), row, 0);
    grid->addWidget(add("lblKilolitres15", &CrudeResult::kilolitres15), row, 1);
    grid->addWidget(add("lblKilolitres60", &CrudeResult::kilolitres60), row++, 2);
    grid->addWidget(new QLabel("Barrels"), row, 0);
    grid->addWidget(add("lblBarrels15", &CrudeResult::barrels15), row, 1);
    grid->addWidget(add("lblBarrels60", &CrudeResult::barrels60), row++, 2);
}

void CrudeResults::layOutTons(QGridLayout* grid, int& row)
{
    addHeading(grid, row++, "Weight");
    grid->addWidget(new QLabel("in air"), row, 1, Qt::AlignRight);
    grid->addWidget(new QLabel("in vacuo"), row++, 2, Qt::AlignRight);
    grid->addWidget(new QLabel("Metric tons"), row, 0);
    grid->addWidget(add("lblMetricTonsInAir", &CrudeResult::metricTonsInAir), row, 1);
    grid->addWidget(add("lblMetricTonsInVacuo", &CrudeResult::metricTonsInVacuo), row, 2);
    grid->addWidget(addNote("lblWeightMethod", &CrudeResult::weightMethod), row++, 3);
    grid->addWidget(new QLabel("Long tons"), row, 0);
    grid->addWidget(add("lblLongTonsInAir", &CrudeResult::longTonsInAir), row, 1);
    grid->addWidget(add("lblLongTonsInVacuo", &CrudeResult::longTonsInVacuo), row++, 2);
}

void CrudeResults::show(const CrudeResult& result)
{
    for (const auto& [label, figure] : m_figures)
        label->setText(QString::fromStdString(result.*figure));
}

std::vector<ResultLabel*> CrudeResults::labels() const
{
    std::vector<ResultLabel*> all;
    for (const auto& [label, figure] : m_figures)
        all.push_back(label);
    return all;
}

} // namespace korvel
