// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "navlib/ship/unit_tables.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace korvel
{

/// What volumes and consumptions for work done need among masses.
inline constexpr std::array<Field, 2> flowConditions = {{
    {"txtFlowDensity", "Density", "Density of the liquid", "kilograms per cubic metre",
     FieldKind::Figure, "kg/m³", 300, 2000, "at the temperature of the volume"},
    {"txtFlowPower", "Power", "Power of the engine", "kilowatts", FieldKind::Figure, "kW", 0.1,
     200000},
}};

/// What powers need among energies.
inline constexpr std::array<Field, 1> energyConditions = {{
    {"txtEnergyHours", "Hours", "Hours of the power", "hours", FieldKind::Figure, "h", 0.001,
     100000},
}};

inline constexpr std::array flowNeeds{NavFunc113::UnitNeed::Density, NavFunc113::UnitNeed::Power};
inline constexpr std::array energyNeeds{NavFunc113::UnitNeed::Duration};

/// Boxes of what some units need to be known beside their value.
struct ConditionFields {
    std::span<const Field> fields = {};
    std::span<const NavFunc113::UnitNeed> needs = {}; ///< of each field
};

/// Reads them; what cannot be used is not known.
NavFunc113::UnitConditions readConditions(const ConditionFields& conditions,
                                          const std::vector<std::string>& texts, Remarks& remarks);

} // namespace korvel
