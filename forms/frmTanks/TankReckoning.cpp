// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankReckoning.h"

namespace korvel
{
namespace
{

double inMeasure(const TankSums& sums, std::size_t measure)
{
    return std::array{sums.standard, sums.barrels, sums.inAir}[measure];
}

const std::optional<double>& billOf(const ReadGrade& grade, std::size_t measure)
{
    return measure == 0 ? grade.billVolume : measure == 1 ? grade.billBarrels : grade.billWeight;
}

void compare(BillComparison& comparison)
{
    if (!comparison.ship || !comparison.bill) return;
    comparison.difference = *comparison.ship - *comparison.bill;
    if (*comparison.bill > 0) comparison.percent = *comparison.difference / *comparison.bill * 100;
}

} // namespace

void TankReckoning::takeAll(const TankList& list, const TankChoices& choices)
{
    m_choices = choices;
    for (std::size_t i = 0; i < gradeCount; ++i)
        m_grades[i] = readGrade(list.grades[i], i + 1, m_kind, choices);
    m_tanks.resize(list.rows.size());
    for (std::size_t row = 0; row < m_tanks.size(); ++row)
        for (std::size_t survey = 0; survey < surveyCount; ++survey)
            m_tanks[row][survey] = tankFigures(list.rows[row].surveys[survey], m_grades, m_choices);
    addUp();
}

void TankReckoning::takeRow(const TankList& list, std::size_t row)
{
    for (std::size_t survey = 0; survey < surveyCount; ++survey)
        m_tanks[row][survey] = tankFigures(list.rows[row].surveys[survey], m_grades, m_choices);
    addUp();
}

void TankReckoning::addUp()
{
    m_sums = {};
    for (const auto& tank : m_tanks) {
        for (std::size_t survey = 0; survey < surveyCount; ++survey) {
            const TankFigures& figures = tank[survey];
            SurveySums& sums = m_sums[survey];
            if (figures.isMeasured) ++sums.measured;
            if (figures.isFault) ++sums.faults;
            if (!figures.quantities) continue;
            sums.ship += *figures.quantities;
            if (figures.grade) sums.grades[*figures.grade] += *figures.quantities;
        }
    }
}

bool TankReckoning::isMoved() const
{
    const auto& [first, last] = m_sums;
    return last.measured > 0 && first.faults + last.faults == 0 && notMeasuredAgain().empty();
}

TankSums TankReckoning::moved(std::size_t grade) const
{
    const TankSums last = m_sums[1].grades[grade], first = m_sums[0].grades[grade];
    return m_choices.movement == Movement::Loading ? last - first : first - last;
}

TankSums TankReckoning::movedOfShip() const
{
    return m_choices.movement == Movement::Loading ? m_sums[1].ship - m_sums[0].ship
                                                   : m_sums[0].ship - m_sums[1].ship;
}

BillComparisons TankReckoning::comparison(std::size_t grade) const
{
    BillComparisons found;
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (isMoved() && m_grades[grade].isUsed) found[i].ship = inMeasure(moved(grade), i);
        found[i].bill = billOf(m_grades[grade], i);
        compare(found[i]);
    }
    return found;
}

BillComparisons TankReckoning::comparisonOfShip() const
{
    BillComparisons found;
    for (std::size_t i = 0; i < found.size(); ++i) {
        double bills = 0;
        bool isBilled = false, isMissing = false;
        for (std::size_t grade = 0; grade < gradeCount; ++grade) {
            const auto& bill = billOf(m_grades[grade], i);
            isBilled = isBilled || bill;
            isMissing = isMissing || (!bill && moved(grade).standard != 0);
            bills += bill.value_or(0);
        }
        if (isMoved()) found[i].ship = inMeasure(movedOfShip(), i);
        if (isBilled && !isMissing) found[i].bill = bills;
        compare(found[i]);
    }
    return found;
}

std::vector<std::size_t> TankReckoning::notMeasuredAgain() const
{
    std::vector<std::size_t> rows;
    if (m_sums[1].measured == 0) return rows;
    for (std::size_t row = 0; row < m_tanks.size(); ++row)
        if (m_tanks[row][0].isMeasured && !m_tanks[row][1].isMeasured) rows.push_back(row);
    return rows;
}

} // namespace korvel
