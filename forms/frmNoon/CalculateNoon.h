// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/BunkersNow.h"
#include "forms/frmNoon/NoonArrival.h"
#include "forms/frmNoon/NoonDay.h"

/// The noon report: from the record of positions and the passage plan, nothing typed twice.
namespace korvel
{

struct NoonInput {
    NoonBoxes boxes;
    PositionRecordInput record;
    PassagePlan plan;
    NavFunc113::Hours shipsTD;
    BunkersNow bunkers = {}; ///< what the boxes for fuel stand for while they are empty
};

/// The propeller's day.
struct NoonEngine {
    NavFunc113::Metres pitch;
    double first{}; ///< counters
    double last{};
    NavFunc113::Miles miles; ///< of 1852 m
    std::optional<double> wake;
};

/// What the window shows; an empty text blanks the label.
struct NoonResult {
    std::string run;                 ///< miles of the day
    std::string hours;               ///< "23 h 00 m"
    std::string average;             ///< knots
    std::string between;             ///< which fixes, and what the clocks did
    std::string position;            ///< of the later fix
    std::string sinceAway;           ///< "980.5 nm in 70 h 00 m, 14.01 kn"
    std::string toGo;                ///< miles
    std::string by;                  ///< "by the plan to row 5", "as typed"
    std::array<std::string, 3> eta;  ///< "14.5 kn: Thu 2026/12/03 06:00 TD -8; UTC .."
    std::string speedNeeded;         ///< knots
    std::string setAndDrift;         ///< "259°, 26.4 nm = 1.15 kn"
    std::string engine;              ///< "377.0 of 1852 m"
    std::string apparentSlip;        ///< per cent
    std::string realSlip;            ///< per cent
    std::array<std::string, 3> fuel; ///< "25.0 t, 0.0725 t per nm"
    std::string fuelBy;              ///< where the fuel on board comes from, and of when
    std::string sea;                 ///< "4-Moderate, Slight swell"
    std::string visibility;          ///< "7-Good, 10.8 nm"
    std::string weather;             ///< "b Blue sky, c Cloudy"
    std::string notice;
    bool isWhole = false; ///< there is a day's run
    std::string mail;     ///< the report as a block of text

    // The same in full.
    PositionRecordResult record;
    std::optional<NoonDay> day;
    std::optional<NoonWay> way;
    std::optional<NoonArrivals> arrivals;
    std::optional<NoonEngine> propeller;
    struct Fuel {
        double before, onBoard; ///< tons
        double received;        ///< between them, by the tank list
    };
    std::array<std::optional<Fuel>, 3> tons;
    std::array<std::optional<double>, 3> byTanks; ///< on board, where the box is empty
};

NoonResult CalculateNoon(const NoonInput& input);

} // namespace korvel
