// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/magnetic_model.h"
#include "app/reading/Remarks.h"
#include "app/records/FileStore.h"

#include <optional>
#include <string>

namespace korvel
{

/// The variation of a compass error.
struct CompassVariation {
    NavFunc113::Degrees variation;                       ///< east positive
    std::optional<NavFunc113::Degrees> uncertainty = {}; ///< nothing: it was typed
    std::string source = "typed";                        ///< "WMM-2025"

    std::string text() const; ///< "8.0 E", "8.0 E ±0.4 (WMM-2025)"
};

/// Another edition that lies beside the program, "WMM.COF" in its producer's format.
struct OwnModel {
    std::optional<almanac::MagneticModel> model; ///< nothing: there is none that can be used
    std::string fault;                           ///< why a file cannot be used, in words
};
OwnModel modelOfFolder(FileStore& files);

/// The edition to go by: the one that was chosen where it holds for the time, else the program's.
const almanac::MagneticModel& modelFor(const almanac::MagneticModel& chosen,
                                       NavFunc113::DateTime ut);

/// Variation of a model at sea level.
/// @param remarks what makes the compass doubtful there; why there is none
/// @return nothing beyond the years of the model
std::optional<CompassVariation> variationOf(const almanac::MagneticModel& model,
                                            NavFunc113::DateTime ut, NavFunc113::Degrees latitude,
                                            NavFunc113::Degrees longitude, Remarks& remarks);

} // namespace korvel
