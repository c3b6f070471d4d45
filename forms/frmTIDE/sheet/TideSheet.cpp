// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideSheet.h"

#include "shell/layout/Panels.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace korvel
{
namespace
{

constexpr int partGap = 16; // between curve and waters

} // namespace

TideSheet::TideSheet(QWidget* parent)
    : ScrolledBody(parent), m_head(new TideHead(this)), m_picTIDE(new frmTIDEPicture(this)),
      m_scrDate(new DateScrollBar(this)), m_day(new TideDayPanel(this)),
      m_foot(new TideFoot(this, m_day->rangeLabel(), {m_day->byAllPart(), m_head->halfHours()}))
{
    m_scrDate->setObjectName("scrDate");
    m_scrDate->setAccessibleName("Date, a step is a day");
    connect(m_scrDate, &QScrollBar::valueChanged, this,
            [this](int value) { onDay(TideDates().serialOfScrollValue(value)); });
    m_day->onAnswers = [this](const CurveAnswer& height, const CurveAnswer& times) {
        mark(height, times);
    };

    layOut();
}

void TideSheet::layOut()
{
    auto* row = new QHBoxLayout;
    layOutBody(*row);
    row->addWidget(m_picTIDE, 1);
    row->addWidget(m_scrDate);
    auto* grid = new QGridLayout(this);
    layOutBody(*grid, Spacing::Dense);
    grid->setHorizontalSpacing(partGap);
    grid->setVerticalSpacing(partGap / 2);
    grid->addWidget(m_head, 0, 0, 1, 2);
    grid->addLayout(row, 1, 0);
    grid->addWidget(m_day->watersPart(), 1, 1);
    grid->addWidget(m_day, 2, 0, 1, 2);
    grid->addWidget(m_foot, 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(1, 1);
}

void TideSheet::mark(const CurveAnswer& height, const CurveAnswer& times)
{
    std::vector<NavFunc113::Hours> marked = height.times;
    marked.insert(marked.end(), times.times.begin(), times.times.end());
    m_picTIDE->mark(marked, times.level);
    onNotice("time", height.remark);
    onNotice("height", times.remark);
}

void TideSheet::showChoice(const TideChoice& choice, const TideDates& dates)
{
    m_head->showChoice(choice);
    if (const auto date = TideDates::dateIn(choice.lblDate)) {
        const QSignalBlocker quiet(m_scrDate);
        m_scrDate->setValue(dates.scrollValueOf(*date));
    }
}

void TideSheet::showDay(const TideDayShown& day, const StationLines& lines, bool withAll)
{
    m_head->showFigures(day.four);
    m_foot->showStation(lines, day.four.remark);
    std::optional<NavFunc113::TideValues> all;
    if (day.all && withAll) all = day.all->halfHourly();
    m_picTIDE->showPrediction(day.four, all, day.isEstimated ? "~" : "");
    m_day->showDay(day, withAll);
}

void TideSheet::showDates(const TideDates& dates, const std::string& factorsFile)
{
    const QSignalBlocker quiet(m_scrDate);
    m_scrDate->setRange(dates.scrollMinimum(), dates.scrollMaximum());
    m_foot->showDates(dates, factorsFile);
}

} // namespace korvel
