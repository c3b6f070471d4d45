// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/TankFigures.h"

namespace korvel
{

/// What of a list was measured, and how it adds up.
struct SurveySums {
    std::array<TankSums, gradeCount> grades;
    TankSums ship;
    std::size_t measured{}; ///< tanks
    std::size_t faults{};   ///< tanks that have no quantities; the sums are without them
};

/// Ship and bill of lading, or outturn, in one measure.
struct BillComparison {
    std::optional<double> ship;
    std::optional<double> bill;
    std::optional<double> difference; ///< ship - bill
    std::optional<double> percent;    ///< of the bill
};

/// The three measures of a bill.
enum class BillMeasure : std::size_t { CubicMetres, Barrels, TonsInAir };
using BillComparisons = std::array<BillComparison, 3>; ///< by BillMeasure

/// A list worked out. Tanks are calculated when their boxes change; sums are made of all.
class TankReckoning
{
public:
    explicit TankReckoning(ListKind kind) : m_kind(kind) {}

    void takeAll(const TankList& list, const TankChoices& choices);
    /// A row changed; as many rows as before.
    void takeRow(const TankList& list, std::size_t row);

    std::size_t rows() const { return m_tanks.size(); }
    const TankFigures& tank(std::size_t row, TankSurvey survey) const
    {
        return m_tanks[row][static_cast<std::size_t>(survey)];
    }
    const std::array<ReadGrade, gradeCount>& grades() const { return m_grades; }
    const TankChoices& choices() const { return m_choices; }
    const SurveySums& sums(TankSurvey survey) const
    {
        return m_sums[static_cast<std::size_t>(survey)];
    }

    /// Both surveys are there and no tank is in doubt: what was loaded or discharged is known.
    bool isMoved() const;
    /// What was loaded (last less first) or discharged (first less last) of a grade.
    TankSums moved(std::size_t grade) const;
    TankSums movedOfShip() const;

    BillComparisons comparison(std::size_t grade) const;
    /// Of all grades that were moved; a measure that one of them has no bill in stays empty.
    BillComparisons comparisonOfShip() const;

    /// Tanks that the first survey has and the last one, which was begun, has not.
    std::vector<std::size_t> notMeasuredAgain() const;

private:
    void addUp();

    ListKind m_kind;
    TankChoices m_choices;
    std::array<ReadGrade, gradeCount> m_grades;
    std::vector<std::array<TankFigures, surveyCount>> m_tanks;
    std::array<SurveySums, surveyCount> m_sums;
};

} // namespace korvel
