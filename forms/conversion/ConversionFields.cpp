// SPDX-License-Identifier: MIT
#include "forms/conversion/ConversionFields.h"

namespace korvel
{

NavFunc113::UnitConditions readConditions(const ConditionFields& conditions,
                                          const std::vector<std::string>& texts, Remarks& remarks)
{
    NavFunc113::UnitConditions known;
    for (std::size_t i = 0; i < conditions.fields.size(); ++i) {
        const auto value = readIfTyped(texts.at(i), conditions.fields[i], remarks);
        switch (conditions.needs[i]) {
        case NavFunc113::UnitNeed::Density:
            known.density = value;
            break;
        case NavFunc113::UnitNeed::Power:
            known.power = value;
            break;
        case NavFunc113::UnitNeed::Duration:
            known.hours = value;
            break;
        case NavFunc113::UnitNeed::Nothing:
            break;
        }
    }
    return known;
}

} // namespace korvel
