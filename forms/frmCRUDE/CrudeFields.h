// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <array>
#include <cstddef>

namespace korvel
{

namespace CrudeField
{
enum : std::size_t {
    Volume,
    FreeWater,
    Temperature,
    Density,
    ObservedTemperature,
    SedimentAndWater,
    KLperBbl
};
}

/// The boxes of the crude-oil window; in this order in the record, before the choices. Units are
/// chosen beside the boxes and added to the names.
inline constexpr std::array<Field, 7> CrudeFields = {{
    {"txtVolume", "V&olume", "Observed volume", "", FieldKind::Figure, "", 0, HUGE_VAL, "", true},
    {"txtFreeWater", "Fr&ee water", "Free water", "", FieldKind::Figure, "", 0, HUGE_VAL, "", true},
    {.name = "txtTemperature",
     .caption = "Cargo &temperature",
     .words = "Temperature of the cargo",
     .measure = "",
     .kind = FieldKind::Figure,
     .onKeyRelease = true},
    {.name = "txtDensity",
     .caption = "&Density",
     .words = "Density",
     .measure = "",
     .kind = FieldKind::Figure,
     .onKeyRelease = true},
    {.name = "txtObservedTemperature",
     .caption = "Density take&n at",
     .words = "Temperature at which the density was observed",
     .measure = "",
     .kind = FieldKind::Figure,
     .onKeyRelease = true},
    {"txtSedimentAndWater", "&Sediment and water", "Sediment and water", "per cent",
     FieldKind::Figure, "", 0, 100, "", true},
    {"txtKLperBbl", "&KL/Bbl", "KL/Bbl", "kilolitres at 15 °C per barrel at 60 °F",
     FieldKind::Figure, "", 0.158, 0.160, "empty for that of the density", true},
}};

} // namespace korvel
