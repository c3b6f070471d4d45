// SPDX-License-Identifier: MIT
#include "forms/frmSky/pages/UnknownPage.h"

#include "shell/controls/AnswerStrip.h"
#include "shell/controls/TextTable.h"
#include "shell/layout/Panels.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr std::array<TextTable::Column, 6> unknownColumns = {{
    {"Body", "Kaus Australis", false},
    {"No.", "00", true},
    {"Mag.", "-0.0", true},
    {"Stood at altitude, bearing", "-00°00.0'  000.0", true},
    {"Altitude off", "+00°00'", true},
    {"Bearing off", "+000.0°", true},
}};

QString cellOf(const UnknownLine& line, std::size_t column)
{
    const std::array<const std::string*, unknownColumns.size()> texts{
        &line.name,      &line.number,      &line.magnitude,
        &line.direction, &line.altitudeOff, &line.bearingOff};
    return asQString(*texts[column]);
}

} // namespace

UnknownPage::UnknownPage(QWidget* parent, const FieldBoxes& boxes)
    : ScrolledBody(parent), m_labels(UnknownResults, this),
      m_table(new TextTable(this, "tblUnknown", "The three likeliest bodies"))
{
    auto* grid = newGrid();
    grid->addWidget(sectionHead("Observation"), 0, 0, 1, 3);
    int row = 1;
    for (const SkyBox which :
         {SkyBox::UnknownAt, SkyBox::UnknownAltitude, SkyBox::UnknownBearing}) {
        EntryBox* entry = boxes[placeOf(which)];
        entry->setFixedWidth(entry->fontMetrics().horizontalAdvance("0000/00/00 00:00:00 00"));
        grid->addWidget(quietLabel(SkyFields[placeOf(which)].caption, entry), row, 0);
        grid->addWidget(entry, row, 1);
        if (auto* position = dynamic_cast<PositionBox*>(entry))
            grid->addWidget(position->echo(), row, 2);
        ++row;
    }
    auto* now = makeButton(this, "cmdUnknownNow", "N&ow (F5)", "The present time into the box");
    connect(now, &QPushButton::clicked, this, &UnknownPage::nowAsked);
    grid->addWidget(now, 1, 2, Qt::AlignLeft);
    grid->addWidget(quietLabel("° true"), 3, 2);
    grid->setColumnStretch(2, 1);

    auto* strip = new AnswerStrip;
    m_labels.addAnswer(strip, 0, "Kaus Australis");
    auto* figures = newGrid();
    m_labels[1]->setRoom("-00°00.0'");
    m_labels[2]->setRoom("0000/00/00 00:00:00");
    m_labels[3]->setRoom("00°00.0'N 000°00.0'W");
    for (std::size_t i = 1; i < UnknownResults.size(); ++i)
        addResultLine(figures, static_cast<int>(i), UnknownResults[i].caption, m_labels[i]);
    figures->setColumnStretch(1, 1);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(pageGroupGap);
    column->addLayout(grid);
    column->addWidget(strip);
    column->addLayout(figures);
    column->addWidget(sectionHead("Likeliest bodies; off: observed less where they stood"));
    column->addWidget(m_table, 1);
    m_table->showRows(unknownColumns, 0, {});
}

void UnknownPage::show(const UnknownResult& found)
{
    m_labels.show(found);
    m_lines = found.lines;
    m_table->showRows(
        unknownColumns, found.likely.size(),
        [this](std::size_t row, std::size_t column) { return cellOf(m_lines.at(row), column); });
}

void UnknownPage::setColours(const ColourScheme& colours)
{
    tintQuietLabels(*this, colours);
}

} // namespace korvel
