// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/SheetBinding.h"
#include "forms/frmTanks/TankTexts.h"
#include "shell/controls/RowTable.h"

/// The tables of the window that have a fixed number of rows.
namespace korvel
{

/// Grades of a cargo with their bills, or parcels of bunkers.
class GradesTable : public RowTable
{
public:
    GradesTable(ListKind kind, SheetBinding& binding);
};

/// Voyages of the experience factor.
class VoyagesTable : public RowTable
{
public:
    VoyagesTable(Movement movement, SheetBinding& binding);
    void show(const ExperienceShown& shown);
};

/// Totals a grade, and of the ship.
class TotalsTable : public RowTable
{
public:
    TotalsTable();
    void show(const std::array<TotalsRow, gradeCount + 1>& rows);
};

/// Ship against bill of lading, a grade a row.
class CompareTable : public RowTable
{
public:
    CompareTable();
    void show(const std::array<CompareRow, gradeCount + 1>& rows);
};

} // namespace korvel
