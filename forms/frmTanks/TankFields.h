// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "app/reading/Result.h"
#include "forms/frmTanks/TankTexts.h"

#include <array>

namespace korvel
{

/// The boxes of the row in hand, in their Enter order.
enum TankField : std::size_t {
    TankNameBox,
    TankSounding,
    TankVolume,
    TankWater,
    TankTemperature,
    TankGrade,
    TankFieldCount
};
inline constexpr std::array<Field, TankFieldCount> CargoTankFields = {{
    {"txtTank(0)", "Tank", "Tank", "", FieldKind::Text},
    {"txtTank(1)", "Sounding or ullage", "Sounding or ullage", "in words", FieldKind::Text},
    {"txtTank(2)", "Volume", "Observed volume", "m³ or barrels", FieldKind::Figure, "", 0, 1e7},
    {"txtTank(3)", "Free water", "Free water", "m³ or barrels", FieldKind::Figure, "", 0, 1e7},
    {"txtTank(4)", "Temperature", "Temperature", "°C or °F", FieldKind::Figure, "", -76, 400},
    {"txtTank(5)", "Grade", "Grade", "its number or name", FieldKind::Text},
}};
inline constexpr std::array<Field, TankFieldCount> BunkerTankFields = {{
    {"txtBunker(0)", "Tank", "Bunker tank", "", FieldKind::Text},
    {"txtBunker(1)", "Sounding or ullage", "Sounding or ullage of the bunker tank", "in words",
     FieldKind::Text},
    {"txtBunker(2)", "Volume", "Observed volume of the bunker tank", "m³ or barrels",
     FieldKind::Figure, "", 0, 1e7},
    {"txtBunker(3)", "Free water", "Free water of the bunker tank", "m³ or barrels",
     FieldKind::Figure, "", 0, 1e7},
    {"txtBunker(4)", "Temperature", "Temperature of the bunker tank", "°C or °F", FieldKind::Figure,
     "", -76, 400},
    {"txtBunker(5)", "Parcel", "Parcel of the bunker tank", "its number or name", FieldKind::Text},
}};

/// Port and times of the surveys.
enum SheetField : std::size_t { PortBox, CargoTimes, BunkerTimes = CargoTimes + surveyCount };
inline constexpr std::array<Field, 5> SheetFields = {{
    {"txtPort", "Port and berth", "Port and berth", "", FieldKind::Text},
    {"txtSurveyTime(0)", "Survey before", "Time of the survey before", "year/month/day hh:mm",
     FieldKind::Moment},
    {"txtSurveyTime(1)", "Survey after", "Time of the survey after", "year/month/day hh:mm",
     FieldKind::Moment},
    {"txtBunkerTime(0)", "Previous survey", "Time of the previous survey of the bunkers",
     "year/month/day hh:mm", FieldKind::Moment},
    {"txtBunkerTime(1)", "Survey now", "Time of the survey of the bunkers now",
     "year/month/day hh:mm", FieldKind::Moment},
}};

/// What is worked out of the row in hand.
inline constexpr std::array CargoTankResults = {
    Result<TankTexts>{"lblTank(0)", "GOV", "", Weight::Figure, &TankTexts::gross,
                      "Gross observed volume of the row in hand"},
    Result<TankTexts>{"lblTank(1)", "VCF", "", Weight::Figure, &TankTexts::factor,
                      "Volume correction factor of the row in hand"},
    Result<TankTexts>{"lblTank(2)", "GSV", "m³", Weight::Figure, &TankTexts::standard,
                      "Gross standard volume of the row in hand"},
    Result<TankTexts>{"lblTank(3)", "TCV", "m³", Weight::Figure, &TankTexts::total,
                      "Total calculated volume of the row in hand"},
    Result<TankTexts>{"lblTank(4)", "Barrels", "at 60 °F", Weight::Figure, &TankTexts::barrels,
                      "Barrels of the row in hand"},
    Result<TankTexts>{"lblTank(5)", "In air", "t", Weight::Figure, &TankTexts::inAir,
                      "Weight in air of the row in hand"},
    Result<TankTexts>{"lblTank(6)", "In vacuo", "t", Weight::Figure, &TankTexts::inVacuo,
                      "Mass in vacuo of the row in hand"},
    Result<TankTexts>{"lblTank(7)", "Long tons", "in air", Weight::Figure, &TankTexts::longTons,
                      "Long tons of the row in hand"},
};
inline constexpr std::array BunkerTankResults = {
    Result<TankTexts>{"lblBunker(0)", "VCF", "", Weight::Figure, &TankTexts::factor,
                      "Volume correction factor of the bunker tank"},
    Result<TankTexts>{"lblBunker(1)", "GSV", "m³", Weight::Figure, &TankTexts::standard,
                      "Gross standard volume of the bunker tank"},
    Result<TankTexts>{"lblBunker(2)", "In air", "t", Weight::Figure, &TankTexts::inAir,
                      "Weight in air of the bunker tank"},
};
inline constexpr const char* tankRoom = "000000.000";

template <auto Shown, std::size_t Index, auto Member>
const std::string& ofExperience(const TanksShown& shown)
{
    return (shown.*Shown)[Index].*Member;
}

/// What the window shows beside its tables.
enum TanksLabel : std::size_t {
    LabelMoved,
    LabelMovedVolume,
    LabelPercent,
    LabelAgainst,
    LabelByExperience,
    LabelOnBoard,
    LabelTotalMoved,
    LabelConsumed,
    LabelFuels = LabelConsumed + fuelCount,
    LabelFactors = LabelFuels + fuelCount,
    LabelMeans = LabelFactors + 2,
    LabelCounted = LabelMeans + 2,
    LabelSums = LabelCounted + 2,
    TanksLabelCount = LabelSums + 2
};
using TanksResult = Result<TanksShown>;
inline constexpr std::array<TanksResult, TanksLabelCount> TanksResults = {{
    {"lblMoved(0)", "Loaded or discharged", "t in air", Weight::Answer, &TanksShown::moved},
    {"lblMoved(1)", "Gross standard volume", "m³ at 15 °C", Weight::Answer,
     &TanksShown::movedVolume, "Gross standard volume loaded or discharged"},
    {"lblMoved(2)", "Ship less bill", "per cent", Weight::Answer, &TanksShown::percent,
     "Ship less bill of lading"},
    {"lblMoved(3)", "Against the bill", "", Weight::Figure, &TanksShown::against,
     "Ship and bill of lading"},
    {"lblMoved(4)", "By the experience factor", "", Weight::Figure, &TanksShown::byExperience,
     "Ship and bill of lading with the experience factor"},
    {"lblMoved(5)", "OBQ or ROB", "", Weight::Figure, &TanksShown::onBoard,
     "On board before loading or remaining after discharge"},
    {"lblMoved(6)", "TCV", "m³", Weight::Figure, &TanksShown::totalMoved,
     "Total calculated volume loaded or discharged"},
    {"lblConsumed(0)", "Fuel 1 consumed", "t", Weight::Answer, textAt<&TanksShown::consumed, 0>},
    {"lblConsumed(1)", "Fuel 2 consumed", "t", Weight::Answer, textAt<&TanksShown::consumed, 1>},
    {"lblConsumed(2)", "Fuel 3 consumed", "t", Weight::Answer, textAt<&TanksShown::consumed, 2>},
    {"lblFuel(0)", "Fuel 1", "t", Weight::Figure, textAt<&TanksShown::fuels, 0>,
     "Balance of fuel 1"},
    {"lblFuel(1)", "Fuel 2", "t", Weight::Figure, textAt<&TanksShown::fuels, 1>,
     "Balance of fuel 2"},
    {"lblFuel(2)", "Fuel 3", "t", Weight::Figure, textAt<&TanksShown::fuels, 2>,
     "Balance of fuel 3"},
    {"lblFactor(0)", "Factor of loading", "ship / shore", Weight::Answer,
     ofExperience<&TanksShown::experience, 0, &ExperienceShown::factor>,
     "Vessel experience factor of loading"},
    {"lblFactor(1)", "Factor of discharge", "ship / shore", Weight::Answer,
     ofExperience<&TanksShown::experience, 1, &ExperienceShown::factor>,
     "Vessel experience factor of discharge"},
    {"lblMean(0)", "Mean", "", Weight::Figure,
     ofExperience<&TanksShown::experience, 0, &ExperienceShown::mean>,
     "Mean ratio of loading without gross errors"},
    {"lblMean(1)", "Mean", "", Weight::Figure,
     ofExperience<&TanksShown::experience, 1, &ExperienceShown::mean>,
     "Mean ratio of discharge without gross errors"},
    {"lblCounted(0)", "Count", "", Weight::Figure,
     ofExperience<&TanksShown::experience, 0, &ExperienceShown::counted>,
     "Voyages of loading that count"},
    {"lblCounted(1)", "Count", "", Weight::Figure,
     ofExperience<&TanksShown::experience, 1, &ExperienceShown::counted>,
     "Voyages of discharge that count"},
    {"lblSums(0)", "Sums", "", Weight::Figure,
     ofExperience<&TanksShown::experience, 0, &ExperienceShown::sums>,
     "Sums of the loadings that count"},
    {"lblSums(1)", "Sums", "", Weight::Figure,
     ofExperience<&TanksShown::experience, 1, &ExperienceShown::sums>,
     "Sums of the discharges that count"},
}};
inline constexpr std::array<const char*, TanksLabelCount> TanksRooms = {
    "000000.000",
    "000000.000",
    "-00.000",
    "ship 000000.000, bill 000000.000 bbl",
    "ship / 0.00000 = 000000.000 bbl: -00.000 %",
    "OBQ 000000.000 m³, 000000.000 t",
    "000000.000",
    "00000.000",
    "00000.000",
    "00000.000",
    "VLSFO: 0000.000 + 0000.000 received - 0000.000 on board",
    "VLSFO: 0000.000 + 0000.000 received - 0000.000 on board",
    "VLSFO: 0000.000 + 0000.000 received - 0000.000 on board",
    "0.00000",
    "0.00000",
    "0.00000",
    "0.00000",
    "00 of 00",
    "00 of 00",
    "ship 00000000.000, shore 00000000.000",
    "ship 00000000.000, shore 00000000.000"};

} // namespace korvel
