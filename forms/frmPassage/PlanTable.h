// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanInHand.h"
#include "shell/controls/RowsView.h"
#include "shell/program/Program.h"

namespace korvel
{

class PlanModel;

/// The rows of a plan.
class PlanTable : public RowsView
{
    Q_OBJECT

public:
    enum Column {
        Number,
        Waypoint,
        Position,
        Leg,
        Course,
        Distance,
        Speed,
        Arrival,
        Zone,
        Columns
    };

    PlanTable(Program& program, const PlanInHand& work, QWidget* parent = nullptr);

    /// Shows everything anew, the row in hand marked and in sight.
    void showPlan();

private:
    PlanTable(Program& program, const PlanInHand& work, PlanModel* model, QWidget* parent);

    PlanModel* m_model;
};

} // namespace korvel
