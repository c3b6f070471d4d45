// SPDX-License-Identifier: MIT
#include "forms/frmSky/pages/StarsPage.h"

#include "forms/frmSky/pages/SkyDisc.h"
#include "shell/controls/AnswerStrip.h"
#include "shell/controls/TextTable.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QItemSelectionModel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr std::array<std::size_t, 3> counts{3, 5, 7};

constexpr std::array<TextTable::Column, 9> starColumns = {{
    {"", "●", false},
    {"No.", "00", true},
    {"Body", "Kaus Australis 0", false},
    {"Preset", "00°00'", true},
    {"Azimuth", "000.0", true},
    {"Altitude", "00°00.0'", true},
    {"′/min", "-00.0", true},
    {"°/min", "-00.00", true},
    {"Mag.", "-0.0", true},
}};

QString cellOf(const SkyBodyTexts& row, std::size_t column)
{
    const std::array<const std::string*, starColumns.size()> texts{
        &row.mark,     &row.number,         &row.name,          &row.preset,   &row.azimuth,
        &row.altitude, &row.altitudeChange, &row.azimuthChange, &row.magnitude};
    return asQString(*texts[column]);
}

} // namespace

StarsPage::StarsPage(QWidget* parent, const FieldBoxes& boxes)
    : ScrolledBody(parent), m_boxes(boxes), m_labels(StarsResults, this),
      m_optTwilight(new Options(this, "optTwilight",
                                {{"morning", "Middle of the morning twilight"},
                                 {"evening", "Middle of the evening twilight"}})),
      m_optCount(new Options(
          this, "optCount",
          {{"3", "A round of three"}, {"5", "A round of five"}, {"7", "A round of seven"}})),
      m_optUp(new Options(this, "optUp",
                          {{"north up", "Disc with north up"}, {"head up", "Disc with head up"}})),
      m_cmdSend(makeButton(this, "cmdSend", "Round to the si&ghts",
                           "Hands the bodies of the round to the window of the sights")),
      m_table(new TextTable(this, "tblStars", "Bodies above the horizon")),
      m_disc(new SkyDisc(this))
{
    m_optTwilight->choose(1);
    m_optCount->choose(1);
    m_cmdSend->setEnabled(false);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(pageGap);
    grid->setVerticalSpacing(pageGroupGap / 2);
    grid->addLayout(layOutQuestion(), 0, 0, 1, 2);
    grid->addLayout(layOutFigures(), 1, 0);
    grid->addWidget(m_table, 2, 0);
    grid->addWidget(m_disc, 1, 1, 2, 1);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    grid->setRowStretch(2, 1);
    for (Options* each : {m_optTwilight, m_optCount})
        connect(each, &QButtonGroup::idToggled, this, [this](int, bool chosen) {
            if (chosen) emit choiceChanged();
        });
    connect(m_optUp, &QButtonGroup::idToggled, this,
            [this] { m_disc->setHeadUp(m_optUp->chosen() == 1); });
    connect(m_cmdSend, &QPushButton::clicked, this, &StarsPage::sendAsked);
    connect(m_disc, &SkyDisc::picked, m_table, &TextTable::chooseRow);
    m_table->showRows(starColumns, 0, {});
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // or it would come with the stars
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { m_disc->pick(m_table->chosenRow()); });
}

QLayout* StarsPage::layOutQuestion()
{
    auto* row = new WrappingRow;
    row->setGap(pageGap);
    EntryBox* at = m_boxes[placeOf(SkyBox::StarsAt)];
    at->setFixedWidth(at->fontMetrics().horizontalAdvance("0000/00/00 00:00"));
    at->setPlaceholderText("middle");
    const auto add = [row](std::initializer_list<QWidget*> controls) {
        row->startGroup();
        bool isFirst = true;
        for (QWidget* each : controls) {
            if (!isFirst) row->stayClose();
            row->addWidget(each);
            isFirst = false;
        }
    };
    add({quietLabel(SkyFields[placeOf(SkyBox::StarsAt)].caption, at), at,
         m_optTwilight->makeSwitch(), quietLabel("twilight")});
    add({quietLabel("Round of"), m_optCount->makeSwitch()});
    add({m_cmdSend});
    row->addStretch();
    add({m_optUp->makeSwitch()});
    return row;
}

QLayout* StarsPage::layOutFigures()
{
    auto* grid = newGrid();
    auto* strip = new AnswerStrip;
    m_labels.addAnswer(strip, 0, "00:00");
    grid->addWidget(strip, 0, 0, 4, 1, Qt::AlignTop);
    constexpr std::array widest{"0000/00/00 00:00", "00°00.0'N 000°00.0'W",
                                "00.0 × the error of a sight", "azimuth 000.0°, altitude 00°00.0'"};
    for (std::size_t i = 0; i < widest.size(); ++i) {
        m_labels[i + 1]->setRoom(widest[i]);
        grid->addWidget(quietLabel(StarsResults[i + 1].caption), static_cast<int>(i), 1);
        grid->addWidget(m_labels[i + 1], static_cast<int>(i), 2);
    }
    grid->setColumnStretch(2, 1);
    return grid;
}

SkyStarsAsked StarsPage::asked() const
{
    return {m_boxes[placeOf(SkyBox::StarsAt)]->value(),
            static_cast<SkyTwilight>(m_optTwilight->chosen()),
            counts[static_cast<std::size_t>(m_optCount->chosen())]};
}

void StarsPage::show(const SkyStars& stars, NavFunc113::Degrees course)
{
    m_labels.show(stars);
    m_rows.clear();
    for (const SkyBody& each : stars.bodies)
        m_rows.push_back(textsOf(each));
    m_disc->showSky(stars, course);
    m_table->showRows(starColumns, m_rows.size(), [this](std::size_t row, std::size_t column) {
        return cellOf(m_rows.at(row), column);
    });
    m_cmdSend->setEnabled(stars.roundSize() > 0);
}

void StarsPage::setColours(const ColourScheme& colours)
{
    tintQuietLabels(*this, colours);
    m_disc->setColours(colours);
}

std::vector<PageRecord::Choice> StarsPage::choices()
{
    return {choiceOf(m_optTwilight), choiceOf(m_optCount), choiceOf(m_optUp)};
}

} // namespace korvel
