// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmETA/CalculateETA.h"
#include "forms/frmETA/CalculateReqSpd.h"
#include "shell/window/CalculatorWindow.h"
#include "shell/window/FollowingTD.h"

class QGroupBox;
class QScrollBar;

namespace korvel
{

/// Arrival times at five speeds, and the speed that arrives at a given time.
///
/// Settings "KV_ETA.ini": the texts of txtTime(0) .. (3), txtTD(0) .. (1), txtDist, txtSpeed.
class frmETA : public CalculatorWindow
{
public:
    explicit frmETA(Program& program);

protected:
    WorkingPaper paper() const override;

private:
    /// A date box and a time box with the scroll bar that moves them by hours from what was typed.
    struct TimeEntry {
        EntryBox* date = nullptr;
        EntryBox* time = nullptr;
        QScrollBar* bar = nullptr;
        QString typedDate;
        QString typedTime;
        bool moving = false; ///< the bar is writing, nobody types
    };

    void nameBoxes();
    void addBars();
    void addTimeBar(TimeEntry& entry, std::size_t firstBox, const QString& name,
                    const QString& accessibleName);
    void addSpeedBar();
    void offerDefaults();
    QGroupBox* layOutPassage();
    QGroupBox* layOutArrivals();
    QGroupBox* layOutRequiredSpeed();
    void addMenus();

    void runETA();
    void takeLeg(const PlanExchange::Leg& leg);
    void showTD(std::size_t end);
    void EnterPresent();
    void scrTime_Change(TimeEntry& entry);
    void scrSpeed_Change();

    FieldBoxes m_boxes;
    ResultLabels<ETALabels> m_lblArrivals;
    ResultLabels<ReqSpdResult> m_lblRequired;
    std::array<EntryBox*, 4> m_txtTime{};
    std::array<EntryBox*, 2> m_txtTD{};
    std::array<FollowingTD*, 2> m_TD{}; ///< of the same boxes, which own them
    EntryBox* m_txtDist = nullptr;
    EntryBox* m_txtSpeed = nullptr;
    TimeEntry m_departure;
    TimeEntry m_arrival;
    QScrollBar* m_scrSpeed = nullptr;
    std::array<QLabel*, 2> m_lblZD{};
    ETAResult m_arrivals;
    ReqSpdResult m_required; ///< without a speed while the label shows an older one
};

} // namespace korvel
