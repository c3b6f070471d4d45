// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/TankSheet.h"

#include <string>
#include <string_view>

namespace korvel
{

/// File of the tank list.
inline constexpr const char* tankFile = "KV_Tanks.ini";

/// The sheet as the bytes of its file: a first line that tells kind and version, then a line for
/// every box that holds something, those of a grade, a tank or a voyage behind a line that opens
/// it. Whatever is typed comes back as it was.
std::string tankRecordText(const TankSheet& sheet);

/// What was found in a text that should be a sheet's.
struct ReadTankRecord {
    TankSheet sheet;    ///< as far as it could be read
    std::string damage; ///< line and what is wrong, the first of it; empty when the text is a sheet
};

/// Reads that. Boxes that a later version may have are passed over without a word; a line that is
/// none, text that is not UTF-8 and tanks beyond the most are named, and the rest is read.
ReadTankRecord readTankRecord(std::string_view text);

} // namespace korvel
