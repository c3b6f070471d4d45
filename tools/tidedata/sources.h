// SPDX-License-Identifier: MIT
#pragma once

#include "tidedata/astronomy.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// The published harmonic constants of sources.json.
namespace tidedata
{

/// One published constant.
struct Constant {
    double amplitude = 0; ///< metres
    Degrees greenwichLag; ///< referred to Greenwich, times in UT
};

/// A place with the constants that its station file is made of.
struct Station {
    std::string place;
    std::string grade;       ///< A, B, C or D; "none" for a place without an honest source
    std::string uncertainty; ///< of the constants, in words; empty for grade A
    std::string source;      ///< the records used, in words; for grade "none" why there is none
    std::string licence;     ///< licences of the records
    Hours zone;              ///< east positive
    double meanLevel = 0;    ///< metres
    double latitude = 0;     ///< degrees, north positive
    double longitude = 0;    ///< degrees, east positive
    bool isLevelEstimated = false;   ///< the mean level is no record's
    bool areMonthsEstimated = false; ///< the seasonal terms are those of other places
    std::map<std::string, Constant, std::less<>> constants;
};

struct Sources {
    std::vector<Station> stations;      ///< in the file's order
    std::vector<Station> withoutSource; ///< grade "none"
};

/// Reads the sources. @throws std::runtime_error that names the file when it cannot be read
Sources readSources(const std::filesystem::path& file);

} // namespace tidedata
