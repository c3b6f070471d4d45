// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/StationLines.h"

#include "app/reading/Format.h"
#include "navlib/datetime.h"

namespace korvel
{
namespace
{

// The list is plain ASCII and writes the sign in two characters.
std::string withPlusMinus(std::string text)
{
    for (std::size_t at = 0; (at = text.find("+-", at)) != text.npos;)
        text.replace(at, 2, "±");
    return text;
}

std::string accuracyText(const std::optional<MethodError>& error)
{
    if (!error)
        return "Method: not measured here, for there is no record of all constituents of this "
               "place.";
    const auto turn = [](const char* name, double height, double minutes) {
        return std::string(name) + " " + Format(height, "0.00") + " m, " + Format(minutes, "0") +
               " min";
    };
    return "Method against the sum of all constituents (2003 to 2005): heights " +
           Format(error->rms, "0.00") + " m, " +
           turn("highest", error->highRms, error->highMinutes) + ", " +
           turn("lowest", error->lowRms, error->lowMinutes) + ".";
}

std::string estimatesText(const StationNotes& notes, std::int64_t serial)
{
    if (!notes.isLevelEstimated && !notes.areMonthsEstimated) return {};
    const int month = NavFunc113::DateOfSerial(serial).month;
    const std::string correction =
        "the correction of month " + std::to_string(month) + ", from other places";
    if (!notes.areMonthsEstimated) return "~ estimated: the mean level.";
    return notes.isLevelEstimated ? "~ estimated: the mean level and " + correction + "."
                                  : "~ estimated: " + correction + ".";
}

} // namespace

StationLines describeStation(const TidePrediction& prediction, const StationNotes* notes,
                             const std::optional<MethodError>& error, const std::string& doubts)
{
    StationLines lines;
    if (!notes || notes->grade == "none") {
        lines.station = prediction.title + ": no grade";
        lines.source = "Constants: a file of the ship's own." +
                       (doubts.empty() ? "" : "  Doubtful: " + doubts);
        return lines;
    }
    lines.station = prediction.title + ": grade " + notes->grade;
    if (!notes->uncertainty.empty())
        lines.uncertainty = "Uncertainty: " + withPlusMinus(notes->uncertainty);
    lines.estimates = estimatesText(*notes, prediction.serial);
    lines.accuracy = accuracyText(error);
    lines.source = "Constants: " + withPlusMinus(notes->source) + ". " + notes->licence + ".";
    return lines;
}

} // namespace korvel
