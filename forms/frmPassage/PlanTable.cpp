// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanTable.h"

#include "forms/frmPassage/PlanModel.h"

namespace korvel
{
namespace
{

constexpr std::array widest{
    "000 !",   "Long Beach pilot", "000°00.0' W",          "composite ", "000.0",
    "00000.0", "00 d 00 h 00 m",   "Wed 2038/08/04 20:38", "17 h back"};
static_assert(widest.size() == PlanTable::Columns);

} // namespace

PlanTable::PlanTable(Program& program, const PlanInHand& work, QWidget* parent)
    : PlanTable(program, work, new PlanModel(work, nullptr), parent)
{
}

PlanTable::PlanTable(Program& program, const PlanInHand& work, PlanModel* model, QWidget* parent)
    : RowsView(*model,
               {widest, Waypoint, 7, 2,
                [&program]() -> const ColourScheme& { return program.colours(); },
                [&work] { return work.row(); }},
               parent),
      m_model(model)
{
    m_model->setParent(this);
    setObjectName("tblPlan");
    setAccessibleName("Rows of the plan; a key goes to the box of its column");
}

void PlanTable::showPlan()
{
    follow(true);
    m_model->follow();
    showRowInHand();
    follow(false);
}

} // namespace korvel
