// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/data/TideDates.h"
#include "forms/frmTIDE/day/StationLines.h"

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include <string>

namespace korvel
{

/// At the foot: how far the station's figures can be trusted, where they come from, which factors
/// file is in use, and the bar of one that is being made.
class TideFoot : public QWidget
{
public:
    explicit TideFoot(QWidget* parent);

    void showStation(const StationLines& lines);
    /// Says which factors file is in use, unless it is the shipped one.
    void showDates(const TideDates& dates, const std::string& factorsFile);

    QProgressBar& progress() { return *m_progress; }

private:
    QLabel* m_lblStation;
    QLabel* m_lblAccuracy;
    QLabel* m_lblSource;
    QLabel* m_lblInUse;
    QProgressBar* m_progress;
};

} // namespace korvel
