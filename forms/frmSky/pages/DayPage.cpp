// SPDX-License-Identifier: MIT
#include "forms/frmSky/pages/DayPage.h"

#include "shell/layout/Panels.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <tuple>

namespace korvel
{
namespace
{

constexpr const char* widestBox = "0000/00/00 00:00:00";

using EventColumn = RowColumn<SkyEventLine>;
constexpr std::array eventColumns = {
    EventColumn{
        {"lblEvent", "", "Nautical twilight begins ", TableColumn::Label::Result, "Event %1"},
        &SkyEventLine::name},
    EventColumn{{"lblShips", "Ship's time", "Ship's time", TableColumn::Label::Result,
                 "Ship's time of event %1", "", Qt::AlignRight},
                &SkyEventLine::ships},
    EventColumn{{"lblZulu", "UTC", "00/00 00:00", TableColumn::Label::Result,
                 "UTC of event %1, month/day hh:mm", "", Qt::AlignRight},
                &SkyEventLine::zulu},
    EventColumn{{"lblBearing", "Bearing", "Bearing", TableColumn::Label::Result,
                 "Bearing at event %1", "degrees true", Qt::AlignRight},
                &SkyEventLine::bearing},
    EventColumn{{"lblAltitude", "Altitude", "-00°00.0'", TableColumn::Label::Result,
                 "Altitude at event %1", "", Qt::AlignRight},
                &SkyEventLine::altitude},
    EventColumn{{"lblWhere", "Position then, or why there is none",
                 "the Moon is below the horizon all day", TableColumn::Label::Result,
                 "Position or reason of event %1", "", Qt::AlignLeft, true, true},
                &SkyEventLine::where},
};
constexpr auto eventTable = columnsOf(eventColumns);

} // namespace

DayPage::DayPage(QWidget* parent, const FieldBoxes& boxes)
    : ScrolledBody(parent), m_boxes(boxes), m_labels(DayResults, this),
      m_strip(new AnswerStrip(this)), m_events(new RowTable(eventTable, skyEvents))
{
    layOutAnswers();
    m_events->nameRowsBy(0);
    auto* table = new QVBoxLayout;
    table->setSpacing(0);
    table->addWidget(m_events->makeHeading());
    table->addWidget(m_events);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(pageGap);
    grid->setVerticalSpacing(pageGroupGap);
    grid->addLayout(layOutShip(), 0, 0);
    grid->addLayout(layOutDay(), 0, 1);
    grid->addLayout(table, 1, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
}

QLayout* DayPage::layOutShip()
{
    auto* grid = newGrid();
    grid->addWidget(sectionHead("Ship"), 0, 0, 1, 3);
    int row = 1;
    for (const SkyBox which :
         {SkyBox::Moment, SkyBox::Latitude, SkyBox::Longitude, SkyBox::Course, SkyBox::Speed,
          SkyBox::HeightOfEye, SkyBox::IndexError, SkyBox::TD, SkyBox::Day}) {
        const std::size_t field = placeOf(which);
        EntryBox* entry = m_boxes[field];
        entry->setFixedWidth(entry->fontMetrics().horizontalAdvance(widestBox));
        grid->addWidget(quietLabel(SkyFields[field].caption, entry), row, 0);
        grid->addWidget(entry, row, 1);
        if (auto* position = dynamic_cast<PositionBox*>(entry))
            grid->addWidget(position->echo(), row, 2);
        else if (which == SkyBox::Course)
            grid->addWidget(quietLabel("° true"), row, 2);
        else if (which == SkyBox::IndexError)
            grid->addWidget(quietLabel("′, on the arc +"), row, 2);
        else if (which != SkyBox::Moment && which != SkyBox::Day)
            grid->addWidget(quietLabel(SkyFields[field].unit), row, 2);
        ++row;
    }
    auto* now = makeButton(this, "cmdNow", "&Now (F5)", "The present time into the box");
    connect(now, &QPushButton::clicked, this, &DayPage::nowAsked);
    grid->addWidget(now, 1, 2, Qt::AlignLeft);
    auto* days = new QHBoxLayout;
    days->setSpacing(4);
    for (const auto& [name, caption, words, later] :
         {std::tuple("cmdDay(0)", "‹", "The day before (Ctrl+PgUp)", -1),
          std::tuple("cmdDay(1)", "›", "The next day (Ctrl+PgDown)", 1)}) {
        auto* button = makeButton(this, name, caption, words);
        button->setAccessibleName(words);
        connect(button, &QPushButton::clicked, this, [this, by = later] { emit dayAsked(by); });
        days->addWidget(button);
    }
    days->addStretch();
    grid->addLayout(days, row - 1, 2);
    return grid;
}

void DayPage::layOutAnswers()
{
    m_labels.addAnswer(m_strip, 0, "00:00 – 00:00");
    m_labels.addAnswer(m_strip, 1, "00:00 – 00:00");
    m_labels.addAnswer(m_strip, 2, "00:00");
}

QLayout* DayPage::layOutDay()
{
    auto* grid = newGrid();
    grid->addWidget(sectionHead("Day, ship's time"), 0, 0, 1, 2);
    int row = 1;
    constexpr std::array widest = {"Sun 0000/00/00, TD +00.00", "waxing crescent", "00.0 days",
                                   "000 %"};
    for (std::size_t i = dayAnswers; i < DayResults.size(); ++i) {
        m_labels[i]->setRoom(widest[i - dayAnswers]);
        addResultLine(grid, row++, DayResults[i].caption, m_labels[i]);
    }
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

/// As wide as the page of the stars wants, for the window opens as this page asks.
QSize DayPage::sizeHint() const
{
    constexpr int linesWide = 58;
    return ScrolledBody::sizeHint().expandedTo({linesWide * fontMetrics().height(), 0});
}

std::vector<ResultLabel*> DayPage::results() const
{
    std::vector<ResultLabel*> all = m_labels.all();
    const auto events = m_events->results();
    all.insert(all.end(), events.begin(), events.end());
    return all;
}

void DayPage::show(const SkyDay& day)
{
    m_labels.show(day);
    for (std::size_t row = 0; row < skyEvents; ++row)
        m_events->showRow(row, eventColumns, day.events[row]);
}

void DayPage::setColours(const ColourScheme& colours)
{
    tintQuietLabels(*this, colours);
}

} // namespace korvel
