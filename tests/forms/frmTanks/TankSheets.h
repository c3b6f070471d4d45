// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/SheetInHand.h"

namespace korvel::testing
{

inline GradeBoxes grade(const char* name, const char* table, const char* density)
{
    GradeBoxes boxes;
    boxes.name = name;
    boxes.table = table;
    boxes.density = density;
    return boxes;
}

inline TankRow tank(const char* name, const TankReading& first, const TankReading& last)
{
    return {name, {first, last}};
}

/// The cargo of an ullage report: two grades, after loading.
inline TankSheet cargoOfReport()
{
    TankSheet sheet;
    TankList& cargo = sheet.list(ListKind::Cargo);
    cargo.grades[0] = grade("Gasoline", "54B", "721.4");
    cargo.grades[1] = grade("Gas oil", "54b", "842.8");
    cargo.rows = {tank("1", {}, {"", "8834.839", "0.046", "22.0", "1"}),
                  tank("2", {}, {"", "2202.606", "0.169", "22.5", "gas oil"})};
    return sheet;
}

inline SheetInHand inHand(const TankSheet& sheet)
{
    SheetInHand work;
    work.take(sheet);
    return work;
}

/// A loading with what was on board before, against its bill.
inline TankSheet loading()
{
    TankSheet sheet = cargoOfReport();
    TankList& cargo = sheet.list(ListKind::Cargo);
    cargo.rows[1].surveys[0] = {"", "2.400", "", "20", "2"};
    cargo.grades[0].billWeight = "6320";
    cargo.grades[0].billVolume = "8760";
    cargo.grades[1].billWeight = "1842.5";
    sheet.choices.rounding = NavFunc113::FactorRounding::FourDecimals;
    return sheet;
}

} // namespace korvel::testing
