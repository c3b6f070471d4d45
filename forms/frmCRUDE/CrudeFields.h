// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <array>

namespace korvel
{

/// The boxes of the crude-oil window; in this order in the record, before the choices. Units are
/// chosen beside the boxes and added to the names.
inline constexpr std::array<Field, 7> CrudeFields = {{
    {"txtVolume", "V&olume", "Observed volume", FieldKind::KeyUp},
    {"txtFreeWater", "Fr&ee water", "Free water", FieldKind::KeyUp},
    {"txtTemperature", "Cargo &temperature", "Temperature of the cargo", FieldKind::KeyUp},
    {"txtDensity", "&Density", "Density", FieldKind::KeyUp},
    {"txtObservedTemperature", "Density take&n at", "Temperature at which the density was observed",
     FieldKind::KeyUp},
    {"txtSedimentAndWater", "&Sediment and water", "Sediment and water, per cent",
     FieldKind::KeyUp},
    {"txtKLperBbl", "&KL/Bbl",
     "KL/Bbl, kilolitres at 15 °C per barrel at 60 °F, empty for that of the density",
     FieldKind::KeyUp},
}};

} // namespace korvel
