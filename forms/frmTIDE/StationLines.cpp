// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/StationLines.h"

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

} // namespace

StationLines describeStation(const TidePrediction& prediction,
                             const std::optional<StationNotes>& notes)
{
    if (!notes || notes->grade == "none")
        return {prediction.title + ": no grade", "", "Constants: a file of the ship's own."};
    StationLines lines;
    lines.station = prediction.title + ": grade " + notes->grade;
    if (!notes->uncertainty.empty())
        lines.uncertainty = "Uncertainty: " + withPlusMinus(notes->uncertainty);
    lines.source = "Constants: " + withPlusMinus(notes->source) + ". " + notes->licence + ".";
    return lines;
}

} // namespace korvel
