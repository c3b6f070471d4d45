// SPDX-License-Identifier: MIT
#include "forms/frmTanks/BunkerReckoning.h"

namespace korvel
{

BunkersNow bunkersNow(const TankList& list, const TankReckoning& reckoning)
{
    BunkersNow bunkers;
    bunkers.before = list.times[0];
    bunkers.now = list.times[1];
    for (std::size_t i = 0; i < gradeCount; ++i) {
        const ReadGrade& parcel = reckoning.grades()[i];
        if (!parcel.isUsed) continue;
        BunkersNow::Fuel& fuel = bunkers.fuels[parcel.fuel.value_or(0)];
        fuel.name += (fuel.name.empty() ? "" : " + ") + parcel.name;
        fuel.received += parcel.received.value_or(0);
        const auto add = [&reckoning, i](std::optional<double>& to, TankSurvey survey) {
            const SurveySums& sums = reckoning.sums(survey);
            if (sums.measured > 0 && sums.faults == 0) to = to.value_or(0) + sums.grades[i].inAir;
        };
        add(fuel.previous, TankSurvey::First);
        // A tank that was forgotten would be taken for consumed.
        if (reckoning.notMeasuredAgain().empty()) add(fuel.remaining, TankSurvey::Last);
    }
    return bunkers;
}

BunkersNow bunkersNow(const TankSheet& sheet)
{
    TankReckoning reckoning(ListKind::Bunkers);
    reckoning.takeAll(sheet.list(ListKind::Bunkers), sheet.choices);
    return bunkersNow(sheet.list(ListKind::Bunkers), reckoning);
}

} // namespace korvel
