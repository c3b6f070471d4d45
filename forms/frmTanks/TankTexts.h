// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/BunkersNow.h"
#include "forms/frmTanks/SheetInHand.h"
#include "forms/frmTanks/TankExperience.h"

namespace korvel
{

/// A tank of one survey as it is shown.
struct TankTexts {
    std::string sounding, volume, water, gross, temperature, grade, factor;
    std::string standard, net, total, barrels, inAir, inVacuo, longTons;
};
TankTexts tankTexts(const TankReading& reading, const TankFigures& figures,
                    const TankReckoning& reckoning);

/// Quantities of a grade or of the ship.
struct TotalsRow {
    std::string name, observed, water, gross, standard, net, total, barrels, inAir, inVacuo,
        longTons, netInAir;
};

/// What the totals are of.
enum class TotalsOf : std::size_t { First, Last, Moved };
/// A row a grade, then the ship's. Rows of grades that there are not are empty, and all are while a
/// tank is in doubt: a sum without it would be taken for the ship's.
std::array<TotalsRow, gradeCount + 1> totalsRows(const TankReckoning& reckoning, TotalsOf what);

/// Ship and bill in the three measures.
struct CompareTexts {
    std::string ship, bill, difference, percent;
};
struct CompareRow {
    std::string name;
    std::array<CompareTexts, 3> measures; ///< by BillMeasure
};
std::array<CompareRow, gradeCount + 1> compareRows(const TankReckoning& reckoning);

/// What the window shows beside tables; an empty text blanks the label.
struct TanksShown {
    std::string moved;                           ///< t in air
    std::string movedVolume;                     ///< GSV, m3
    std::string percent;                         ///< of the bill, "-0.123"
    std::string against;                         ///< "ship 8161.216, bill 8170.000 t"
    std::string byExperience;                    ///< the same with the experience factor
    std::string onBoard;                         ///< "OBQ 12.345 m³, 10.000 t" or ROB
    std::string totalMoved;                      ///< TCV, m3
    std::array<std::string, fuelCount> consumed; ///< t
    std::array<std::string, fuelCount> fuels;  ///< "VLSFO: 520.0 + 500.0 received - 495.5 on board"
    std::array<ExperienceShown, 2> experience; ///< by Movement
    std::array<std::string, 2> notices;        ///< by ListKind
    std::array<bool, 2> isWhole{true, true};   ///< by ListKind: nothing was left out
};
TanksShown tanksShown(const SheetInHand& work);

/// "1P" or "Row 3"
std::string tankName(const TankList& list, std::size_t row);
/// "before", "after"; of bunkers "previous", "now"
const char* surveyName(ListKind kind, TankSurvey survey);
/// "Before loading", "After discharge", "Bunkers, previous survey"
std::string surveyTitle(const SheetInHand& work, ListKind kind, TankSurvey survey);

std::string volumeText(double cubicMetres);
std::string weightText(double tons);
/// In the sheet's unit of volume.
std::string observedText(double volume, TankVolumeUnit unit);

} // namespace korvel
