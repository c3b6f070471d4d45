// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/SheetTables.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/Options.h"
#include "shell/controls/ResultLabels.h"
#include "shell/layout/FollowingScrollArea.h"

/// The pages of the window beside those of tanks.
namespace korvel
{

/// Grades with their bills, port and times, and how everything is calculated.
class GradesPage : public ScrolledBody
{
    Q_OBJECT

public:
    GradesPage(SheetInHand& work, SheetBinding& binding, const FieldBoxes& fields);

    /// Chooses what the sheet has.
    void fill();

signals:
    /// A choice was made, which no box tells.
    void chosen();

private:
    void takeChoices(const QString& option);
    QWidget* layOutChoices();

    SheetInHand& m_work;
    GradesTable* m_table;
    Options* m_optMovement;
    Options* m_optEdition;
    Options* m_optRounding;
    Options* m_optAir;
    Options* m_optVolume;
    Options* m_optTemperature;
};

/// Totals of a survey or of what was moved, and ship against bill of lading.
class TotalsPage : public ScrolledBody
{
    Q_OBJECT

public:
    explicit TotalsPage(const ResultLabels<TanksShown>& labels);

    void show(const TankReckoning& reckoning);

signals:
    void chosen();

private:
    Options* m_optTotals;
    TotalsTable* m_totals;
    CompareTable* m_compare;
};

/// The voyages and the factors of loading and discharge.
class ExperiencePage : public ScrolledBody
{
public:
    ExperiencePage(SheetBinding& binding, const ResultLabels<TanksShown>& labels);

    void show(const TanksShown& shown);

private:
    std::array<VoyagesTable*, 2> m_tables; ///< by Movement
};

} // namespace korvel
