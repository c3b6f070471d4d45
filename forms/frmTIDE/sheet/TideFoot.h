// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/data/TideDates.h"
#include "forms/frmTIDE/day/StationLines.h"
#include "shell/layout/DetailsFold.h"

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include <string>
#include <vector>

namespace korvel
{

/// At the foot: the range, what is to be said of the figures, which factors file is in use, and the
/// bar of one that is being made. Behind "Details": waters by all constituents, the half-hourly
/// highest and lowest, how good the method is and where the constants come from.
class TideFoot : public QWidget
{
public:
    /// @param range stands at its beginning
    /// @param details parts that stand behind "Details", before those of the station
    TideFoot(QWidget* parent, QWidget* range, const std::vector<QWidget*>& details);

    /// @param remark on the day's figures
    void showStation(const StationLines& lines, const std::string& remark);
    /// Says which factors file is in use, unless it is the shipped one.
    void showDates(const TideDates& dates, const std::string& factorsFile);

    QProgressBar& progress() { return *m_progress; }
    DetailsFold& details() { return *m_details; }

private:
    QLayout* layOutLine(QWidget* range);
    QLayout* layOutNotes();
    QLayout* layOutFile();
    void layOutDetails(const std::vector<QWidget*>& details);

    QLabel* m_lblStation;
    QLabel* m_lblRemark;
    QLabel* m_lblUncertainty;
    QLabel* m_lblEstimates;
    QLabel* m_lblAccuracy;
    QLabel* m_lblSource;
    QLabel* m_lblInUse;
    QProgressBar* m_progress;
    QWidget* m_folded;
    DetailsFold* m_details;
};

} // namespace korvel
