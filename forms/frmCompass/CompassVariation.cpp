// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassVariation.h"

#include "app/reading/Format.h"
#include "forms/frmCompass/CompassTexts.h"

namespace korvel
{

std::string CompassVariation::text() const
{
    std::string value = eastWestText(variation);
    if (!uncertainty) return value;
    return value + " ±" + Format(*uncertainty, "0.0") + " (" + source + ")";
}

OwnModel modelOfFolder(FileStore& files)
{
    constexpr const char* name = "WMM.COF";
    const FileStore::Content file = files.read(name);
    if (file.status == FileStore::Content::Status::Missing) return {};
    std::string fault = file.reason;
    if (file.status == FileStore::Content::Status::Read) {
        try {
            return {almanac::MagneticModel::read(file.bytes), {}};
        } catch (const almanac::ModelFault& wrong) {
            fault = wrong.what();
        }
    }
    return {{}, name + (" cannot be used: " + fault)};
}

const almanac::MagneticModel& modelFor(const almanac::MagneticModel& chosen,
                                       NavFunc113::DateTime ut)
{
    const double year = almanac::decimalYear(ut);
    const bool holds = year >= chosen.firstYear() && year <= chosen.lastYear();
    return holds ? chosen : almanac::MagneticModel::ofProgram();
}

std::optional<CompassVariation> variationOf(const almanac::MagneticModel& model,
                                            NavFunc113::DateTime ut, NavFunc113::Degrees latitude,
                                            NavFunc113::Degrees longitude, Remarks& remarks)
{
    try {
        const auto found = model.variation({almanac::decimalYear(ut), 0, latitude, longitude});
        remarks.warn(std::string(almanac::describe(found.zone)));
        return CompassVariation{found.variation, found.uncertainty, model.name()};
    } catch (const almanac::OutOfRange& fault) {
        remarks.fault("Variation: " + std::string(fault.what()));
        return std::nullopt;
    }
}

} // namespace korvel
