// SPDX-License-Identifier: MIT
#include "forms/frmTanks/SheetTables.h"

#include <string_view>

namespace korvel
{
namespace
{

using Label = TableColumn::Label;

/// A column of boxes, and where its text stands in a grade.
struct GradeColumn {
    TableColumn column;
    std::string GradeBoxes::*text;
};
constexpr std::array<GradeColumn, 8> cargoColumns = {{
    {{"txtGradeName", "Grade", "Gasoline 95 000", FieldKind::Text, "Row %1, name of the grade", ""},
     &GradeBoxes::name},
    {{"txtGradeTable", "Table", "54B 0", FieldKind::Text, "Row %1, table of the grade",
      "54A, 54B, 54C, 54D, 6A, 6B or 6D"},
     &GradeBoxes::table},
    {{"txtGradeDensity", "ρ15 or API", "0000.000", FieldKind::Figure,
      "Row %1, density or API gravity of the grade", "kg/m³, or °API with a table 6"},
     &GradeBoxes::density},
    {{"txtGradeCoefficient", "α, 54C", "0.0000000", FieldKind::Figure,
      "Row %1, coefficient of expansion of the grade", "per °C, for table 54C"},
     &GradeBoxes::coefficient},
    {{"txtGradeSediment", "S&W %", "00.000", FieldKind::Figure, "Row %1, sediment and water",
      "per cent"},
     &GradeBoxes::sediment},
    {{"txtBillVolume", "Bill m³", "000000.000", FieldKind::Figure, "Row %1, bill of lading in m³",
      "m³ at 15 °C", Qt::AlignLeft, false, true},
     &GradeBoxes::billVolume},
    {{"txtBillBarrels", "Bill bbl", "0000000.00", FieldKind::Figure,
      "Row %1, bill of lading in barrels", "barrels at 60 °F"},
     &GradeBoxes::billBarrels},
    {{"txtBillWeight", "Bill t", "000000.000", FieldKind::Figure,
      "Row %1, bill of lading by weight", "t in air"},
     &GradeBoxes::billWeight},
}};
constexpr std::array<GradeColumn, 6> bunkerColumns = {{
    {{"txtParcelName", "Parcel", "VLSFO old 0000", FieldKind::Text, "Row %1, name of the parcel",
      ""},
     &GradeBoxes::name},
    {{"txtParcelTable", "Table", "54B 0", FieldKind::Text, "Row %1, table of the parcel",
      "54A, 54B, 54C, 54D; empty: 54B"},
     &GradeBoxes::table},
    {{"txtParcelDensity", "ρ15", "0000.000", FieldKind::Figure, "Row %1, density of the parcel",
      "kg/m³"},
     &GradeBoxes::density},
    {{"txtParcelCoefficient", "α, 54C", "0.0000000", FieldKind::Figure,
      "Row %1, coefficient of expansion of the parcel", "per °C, for table 54C"},
     &GradeBoxes::coefficient},
    {{"txtParcelFuel", "Fuel", "0000", FieldKind::Figure, "Row %1, fuel of the noon report",
      "1 to 3; empty: 1"},
     &GradeBoxes::fuel},
    {{"txtParcelReceived", "Received t", "00000.000", FieldKind::Figure,
      "Row %1, received since the previous survey", "t in air"},
     &GradeBoxes::received},
}};

template <std::size_t N>
constexpr std::array<TableColumn, N + 1> withNumbers(const char* name, const char* words,
                                                     const std::array<GradeColumn, N>& columns)
{
    std::array<TableColumn, N + 1> all{};
    all[0] = {name, "No.", "00", Label::RowNumber, words, "", Qt::AlignRight};
    for (std::size_t i = 0; i < N; ++i)
        all[i + 1] = columns[i].column;
    return all;
}
constexpr auto cargoTable = withNumbers("lblGradeNo", "Grade %1", cargoColumns);
constexpr auto bunkerTable = withNumbers("lblParcelNo", "Parcel %1", bunkerColumns);

std::span<const TableColumn> gradeTable(ListKind kind)
{
    if (kind == ListKind::Cargo) return cargoTable;
    return bunkerTable;
}

template <std::size_t N>
void bindGrades(const RowTable& table, const std::array<GradeColumn, N>& columns, ListKind kind,
                SheetBinding& binding)
{
    for (std::size_t row = 0; row < gradeCount; ++row)
        for (std::size_t i = 0; i < N; ++i)
            binding.bind(table.box(row, i + 1),
                         [kind, row, text = columns[i].text](TankSheet& sheet) -> std::string& {
                             return sheet.list(kind).grades[row].*text;
                         });
}

using VoyageLine = ExperienceShown::Line;
constexpr std::array<std::array<const char*, 5>, 2> voyageNames = {
    {{"lblLoadingNo", "txtLoadingName", "txtLoadingShip", "txtLoadingShore", "lblLoadingRatio"},
     {"lblDischargeNo", "txtDischargeName", "txtDischargeShip", "txtDischargeShore",
      "lblDischargeRatio"}}};
constexpr std::array<const char*, 2> standingNames{"lblLoadingStanding", "lblDischargeStanding"};

constexpr std::array<RowColumn<VoyageLine>, 6> voyageTable(std::size_t of)
{
    const auto& names = voyageNames[of];
    return {{
        {{names[0], "No.", "20", Label::RowNumber, "Voyage %1", "", Qt::AlignRight}},
        {{names[1], "Voyage", "2026-08 Rotterdam", FieldKind::Text, "Row %1, name of the voyage",
          ""}},
        {{names[2], "Ship", "00000000.0", FieldKind::Figure, "Row %1, ship's figure of the voyage",
          "TCV, m³, barrels or t"}},
        {{names[3], "Shore", "00000000.0", FieldKind::Figure,
          "Row %1, shore's figure of the voyage", "the same unit"}},
        {{names[4], "Ratio", "0.00000", Label::Result, "Row %1, ratio of the voyage", "",
          Qt::AlignRight},
         &VoyageLine::ratio},
        {{standingNames[of], "", "over 0.30 % off, out", Label::Result,
          "Row %1, whether the voyage counts", ""},
         &VoyageLine::standing},
    }};
}
constexpr auto loadingTable = voyageTable(0);
constexpr auto dischargeTable = voyageTable(1);
constexpr auto loadingColumns = columnsOf(loadingTable);
constexpr auto dischargeColumns = columnsOf(dischargeTable);

constexpr RowColumn<TotalsRow> total(const char* name, const char* heading, const char* words,
                                     const char* measure, std::string TotalsRow::*text,
                                     bool startsGroup = false)
{
    return {{name, heading, "000000.000", Label::Result, words, measure, Qt::AlignRight, false,
             startsGroup},
            text};
}
constexpr std::array<RowColumn<TotalsRow>, 13> totalsTable = {{
    {{"lblTotalNo", "", "00", Label::RowNumber, "Total %1", "", Qt::AlignRight}},
    {{"lblTotalName", "Grade", "Gasoline 95 000", Label::Result, "Row %1, grade of the total", ""},
     &TotalsRow::name},
    total("lblTotalObserved", "TOV", "Row %1, total TOV", "", &TotalsRow::observed),
    total("lblTotalWater", "Water", "Row %1, total free water", "", &TotalsRow::water),
    total("lblTotalGross", "GOV", "Row %1, total GOV", "", &TotalsRow::gross),
    total("lblTotalStandard", "GSV m³", "Row %1, total GSV", "m³ at 15 °C", &TotalsRow::standard),
    total("lblTotalNet", "NSV m³", "Row %1, total NSV", "m³ at 15 °C", &TotalsRow::net, true),
    total("lblTotalTCV", "TCV m³", "Row %1, total TCV", "m³", &TotalsRow::total),
    total("lblTotalBarrels", "bbl 60 °F", "Row %1, total in barrels", "at 60 °F",
          &TotalsRow::barrels),
    total("lblTotalAir", "t in air", "Row %1, total in air", "t", &TotalsRow::inAir),
    total("lblTotalVacuo", "t in vacuo", "Row %1, total in vacuo", "t", &TotalsRow::inVacuo, true),
    total("lblTotalLong", "Long tons", "Row %1, total in long tons", "", &TotalsRow::longTons),
    total("lblTotalNetAir", "Net t in air", "Row %1, total net in air", "t", &TotalsRow::netInAir),
}};
constexpr auto totalsColumns = columnsOf(totalsTable);

template <std::size_t Measure, auto Member>
const std::string& ofMeasure(const CompareRow& row)
{
    return row.measures[Measure].*Member;
}

constexpr RowColumn<CompareRow> compared(const char* name, const char* heading, const char* words,
                                         const char* measure, RowColumn<CompareRow>::Text text,
                                         bool startsGroup = false)
{
    const char* widest = std::string_view(heading) == "%" ? "-00.000" : "000000.000";
    return {
        {name, heading, widest, Label::Result, words, measure, Qt::AlignRight, false, startsGroup},
        text};
}
using Texts = CompareTexts;
constexpr std::array<RowColumn<CompareRow>, 14> compareTable = {{
    {{"lblCompareNo", "", "00", Label::RowNumber, "Comparison %1", "", Qt::AlignRight}},
    {{"lblCompareName", "Grade", "Gasoline 95 000", Label::Result,
      "Row %1, grade of the comparison", ""},
     &CompareRow::name},
    compared("lblShipWeight", "Ship t", "Row %1, ship by weight", "t in air",
             ofMeasure<2, &Texts::ship>),
    compared("lblBillWeight", "Bill t", "Row %1, bill by weight", "t in air",
             ofMeasure<2, &Texts::bill>),
    compared("lblLessWeight", "Diff. t", "Row %1, difference by weight", "t in air",
             ofMeasure<2, &Texts::difference>),
    compared("lblPercentWeight", "%", "Row %1, per cent by weight", "per cent",
             ofMeasure<2, &Texts::percent>),
    compared("lblShipVolume", "Ship m³", "Row %1, ship by volume", "m³ at 15 °C",
             ofMeasure<0, &Texts::ship>, true),
    compared("lblBillVolume", "Bill m³", "Row %1, bill by volume", "m³ at 15 °C",
             ofMeasure<0, &Texts::bill>),
    compared("lblLessVolume", "Diff. m³", "Row %1, difference by volume", "m³ at 15 °C",
             ofMeasure<0, &Texts::difference>),
    compared("lblPercentVolume", "%", "Row %1, per cent by volume", "per cent",
             ofMeasure<0, &Texts::percent>),
    compared("lblShipBarrels", "Ship bbl", "Row %1, ship by barrels", "barrels at 60 °F",
             ofMeasure<1, &Texts::ship>, true),
    compared("lblBillBarrels", "Bill bbl", "Row %1, bill by barrels", "barrels at 60 °F",
             ofMeasure<1, &Texts::bill>),
    compared("lblLessBarrels", "Diff. bbl", "Row %1, difference by barrels", "barrels at 60 °F",
             ofMeasure<1, &Texts::difference>),
    compared("lblPercentBarrels", "%", "Row %1, per cent by barrels", "per cent",
             ofMeasure<1, &Texts::percent>),
}};
constexpr auto compareColumns = columnsOf(compareTable);

} // namespace

GradesTable::GradesTable(ListKind kind, SheetBinding& binding)
    : RowTable(gradeTable(kind), gradeCount)
{
    if (kind == ListKind::Cargo)
        bindGrades(*this, cargoColumns, kind, binding);
    else
        bindGrades(*this, bunkerColumns, kind, binding);
}

VoyagesTable::VoyagesTable(Movement movement, SheetBinding& binding)
    : RowTable(movement == Movement::Loading ? std::span<const TableColumn>(loadingColumns)
                                             : std::span<const TableColumn>(dischargeColumns),
               voyageCount)
{
    constexpr std::array texts{&VoyageBoxes::name, &VoyageBoxes::ship, &VoyageBoxes::shore};
    for (std::size_t row = 0; row < voyageCount; ++row)
        for (std::size_t i = 0; i < texts.size(); ++i)
            binding.bind(box(row, i + 1),
                         [movement, row, text = texts[i]](TankSheet& sheet) -> std::string& {
                             return sheet.voyages[static_cast<std::size_t>(movement)][row].*text;
                         });
}

void VoyagesTable::show(const ExperienceShown& shown)
{
    for (std::size_t row = 0; row < voyageCount; ++row)
        showRow(row, loadingTable, shown.lines[row]);
}

namespace
{

/// Grades that there are, and the ship; one row at least, which tells what belongs there.
template <typename Rows>
void showRowsOfGrades(RowTable& table, const Rows& shown)
{
    for (std::size_t row = 1; row < gradeCount; ++row)
        table.setRowSeen(row, !shown[row].name.empty());
}

} // namespace

TotalsTable::TotalsTable() : RowTable(totalsColumns, gradeCount + 1)
{
    number(gradeCount)->clear(); // the ship's is no grade
    nameRowsBy(1);
}

void TotalsTable::show(const std::array<TotalsRow, gradeCount + 1>& shown)
{
    for (std::size_t row = 0; row < shown.size(); ++row)
        showRow(row, totalsTable, shown[row]);
    showRowsOfGrades(*this, shown);
}

CompareTable::CompareTable() : RowTable(compareColumns, gradeCount + 1)
{
    number(gradeCount)->clear();
    nameRowsBy(1);
}

void CompareTable::show(const std::array<CompareRow, gradeCount + 1>& shown)
{
    for (std::size_t row = 0; row < shown.size(); ++row)
        showRow(row, compareTable, shown[row]);
    showRowsOfGrades(*this, shown);
}

} // namespace korvel
