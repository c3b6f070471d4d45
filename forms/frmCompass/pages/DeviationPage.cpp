// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/DeviationPage.h"

#include "app/reading/TypedTime.h"
#include "forms/frmCompass/CompassTexts.h"
#include "forms/frmCompass/pages/DeviationPicture.h"
#include "shell/controls/TextTable.h"
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

constexpr std::array<Field, 2> sinceFields = {{
    {"txtSince(0)", "Standard: lines since", "Lines of the standard compass since", "yyyy/m/d",
     FieldKind::Moment, "yyyy/m/d"},
    {"txtSince(1)", "Steering: lines since", "Lines of the steering compass since", "yyyy/m/d",
     FieldKind::Moment, "yyyy/m/d"},
}};

constexpr std::array<TextTable::Column, 6> columns = {{
    {"Head", "000.0"},
    {"Deviation", "000.0 W"},
    {"Curve", "000.0 W"},
    {"Residual", "000.0 W"},
    {"UTC", "0000/00/00 00:00"},
    {"", "left out", false},
}};

} // namespace

DeviationPage::DeviationPage(QWidget* parent)
    : ScrolledBody(parent),
      m_optDeviation(new Options(this, "optDeviation",
                                 {{"Standard", "Deviation of the standard compass is shown"},
                                  {"Steering", "Deviation of the steering compass is shown"}})),
      m_txtSince(sinceFields, this), m_lblDeviation(DeviationResults, this),
      m_cmdCard(makeButton(this, "cmdCard", "Print the car&d..",
                           "The deviation card with its date, by heads of 15 degrees")),
      m_table(new TextTable(this, "tblDeviation", "Lines of the curve by head")),
      m_picture(new DeviationPicture(this))
{
    for (ResultLabel* label : m_lblDeviation.all())
        label->setRoom("A 000.0 W");
    auto* left = new QVBoxLayout;
    left->setSpacing(pageGap / 3);
    left->addWidget(sectionHead("Curve of the lines that were kept"));
    left->addLayout(layOutChoice());
    left->addLayout(layOutCoefficients());
    left->addWidget(m_table, 1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(pageGap);
    row->addLayout(left);
    row->addWidget(m_picture, 1);
    m_table->showRows(columns, 0, {});
    connect(m_optDeviation, &QButtonGroup::idToggled, this, [this](int, bool chosen) {
        if (chosen) emit compassChosen();
    });
    connect(m_cmdCard, &QPushButton::clicked, this, &DeviationPage::cardAsked);
}

QLayout* DeviationPage::layOutChoice()
{
    auto* grid = newGrid();
    auto* options = new QHBoxLayout;
    options->addWidget(m_optDeviation->makeSwitch());
    options->addStretch();
    grid->addWidget(quietLabel("Compass"), 0, 0);
    grid->addLayout(options, 0, 1);
    grid->addWidget(m_cmdCard, 0, 2, Qt::AlignLeft);
    for (std::size_t i = 0; i < sinceFields.size(); ++i) {
        const int row = static_cast<int>(i) + 1;
        EntryBox* box = m_txtSince[i];
        box->setFixedWidth(box->fontMetrics().horizontalAdvance("0000/00/00 00:00 0"));
        grid->addWidget(quietLabel(sinceFields[i].caption, box), row, 0);
        grid->addWidget(box, row, 1);
        grid->addWidget(quietLabel("a refit, a dry dock, an adjustment"), row, 2);
    }
    grid->setColumnStretch(2, 1);
    return grid;
}

QLayout* DeviationPage::layOutCoefficients()
{
    auto* row = new WrappingRow;
    row->setGap(pageGap / 2);
    for (std::size_t i = 0; i < DeviationResults.size(); ++i) {
        if (*DeviationResults[i].caption) row->addWidget(quietLabel(DeviationResults[i].caption));
        row->addWidget(m_lblDeviation[i]);
    }
    row->addStretch();
    return row;
}

CompassKind DeviationPage::kind() const
{
    return m_optDeviation->chosen() == 1 ? CompassKind::Steering : CompassKind::Standard;
}

CountsSinceByCompass DeviationPage::since(Remarks& remarks) const
{
    CountsSinceByCompass since;
    for (std::size_t i = 0; i < m_txtSince.size(); ++i) {
        const std::string typed = m_txtSince[i]->value();
        if (isBlankBox(typed)) continue;
        const TypedTime time = readTypedTime(typed, Due::Date);
        if (time.value) since[i + 1] = instantOf(*time.value);
        if (!time.remark.empty())
            remarks.fault(std::string(sinceFields[i].words) + ": " + time.remark);
    }
    return since;
}

void DeviationPage::show(const DeviationCurve& curve, const CompassBook& book)
{
    m_lblDeviation.show(curve);
    m_lines = curveLines(curve, book);
    m_table->showRows(columns, m_lines.size(), [this](std::size_t row, std::size_t column) {
        return asQString(m_lines[row][column]);
    });
    m_cmdCard->setEnabled(curve.fit.has_value());
    m_picture->showCurve(curve);
}

void DeviationPage::showInHand(const CompassReading& reading)
{
    if (reading.head && reading.deviation)
        m_picture->showInHand(NavFunc113::DeviationPoint{*reading.head, *reading.deviation});
    else
        m_picture->showInHand({});
}

void DeviationPage::setColours(const ColourScheme& colours)
{
    tintQuietLabels(*this, colours);
}

PageRecord DeviationPage::kept()
{
    return {m_txtSince.all(), {choiceOf(m_optDeviation)}};
}

std::vector<PaperFigure> DeviationPage::paperFigures() const
{
    const auto shown = static_cast<std::size_t>(kind());
    PaperFigure since = m_txtSince.paperFigure(shown - 1);
    since.name = "Lines since";
    if (since.shown.empty() && m_txtSince[shown - 1]->text().isEmpty())
        since.value = "the beginning of the book";
    return {{"Compass", compassNames[shown]}, since};
}

} // namespace korvel
