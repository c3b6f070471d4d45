// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankExperience.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"

namespace korvel
{
namespace
{

using NavFunc113::VoyageQuantities;
using NavFunc113::VoyageRatio;

constexpr double leastQuantity = 0.001;
constexpr double mostQuantity = 1e9;

const char* wordOf(VoyageRatio::Standing standing)
{
    if (standing == VoyageRatio::Standing::Counts) return "counts";
    return standing == VoyageRatio::Standing::GrossError ? "gross error, out"
                                                         : "over 0.30 % off, out";
}

} // namespace

ExperienceShown experienceShown(const std::array<VoyageBoxes, voyageCount>& voyages,
                                const std::string& what)
{
    ExperienceShown shown;
    Remarks remarks;
    std::vector<VoyageQuantities> quantities;
    std::vector<std::size_t> lines;
    for (std::size_t i = 0; i < voyageCount; ++i) {
        const std::string line = what + ", voyage " + std::to_string(i + 1);
        const auto ship =
            readIfTyped(voyages[i].ship, {line + ", ship", leastQuantity, mostQuantity}, remarks);
        const auto shore =
            readIfTyped(voyages[i].shore, {line + ", shore", leastQuantity, mostQuantity}, remarks);
        if (!ship || !shore) continue;
        quantities.push_back({*ship, *shore});
        lines.push_back(i);
    }
    shown.notice = remarks.text();
    if (lines.empty()) return shown;
    const NavFunc113::VesselExperience found = NavFunc113::VesselExperienceFactor(quantities);
    for (std::size_t i = 0; i < lines.size(); ++i)
        shown.lines[lines[i]] = {Format(found.voyages[i].ratio, "0.00000"),
                                 wordOf(found.voyages[i].standing)};
    shown.counted = std::to_string(found.counted) + " of " + std::to_string(lines.size());
    if (found.mean > 0) shown.mean = Format(found.mean, "0.00000");
    if (found.counted > 0)
        shown.sums =
            "ship " + Format(found.ship, "0.###") + ", shore " + Format(found.shore, "0.###");
    shown.value = found.factor;
    if (found.factor)
        shown.factor = Format(*found.factor, "0.00000");
    else
        shown.notice = joined({shown.notice, what + ": a factor needs five voyages that count, " +
                                                 std::to_string(found.counted) + " do"});
    return shown;
}

} // namespace korvel
