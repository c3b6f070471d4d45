// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"
#include "forms/frmTIDE/day/PredictTide.h"

#include <string>
#include <vector>

namespace korvel
{

/// A field of a station's file, as the check finds it.
struct CheckedField {
    int number{};
    std::string name; ///< "Phase of M2"
    std::string value;
    std::string unit;
    std::string verdict; ///< "good", or what is wrong with it
    bool isGood = true;
};

/// What the check of a station's file says.
struct StationCheck {
    std::string file;
    std::string fault; ///< what is wrong with the file as a whole; the fields before it are listed
    std::vector<CheckedField> fields;
    bool isReadable = true; ///< a prediction can be made of it, whatever is doubtful

    int questionable() const; ///< fields out of their range
    std::string summary() const;
    /// What of a readable file cannot be right, the fields with their values and bounds; empty when
    /// nothing is doubtful, and for a file that is refused when it is read.
    std::string doubts() const;
};

/// Checks every field of a station's file: that it can be read, and that it lies within what such a
/// figure can be. Meant for files made from the ship's own tables, before they are used.
StationCheck checkStation(FileStore& files, TideKind kind, const std::string& place);

} // namespace korvel
