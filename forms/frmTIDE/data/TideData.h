// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"
#include "navlib/sea/tide.h"

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

/// Reading the tide data files that lie beside the program: the daily astronomical factors and one
/// file of harmonic constants a station.
namespace korvel
{

/// A data file that is missing or cannot be read. what() is the dialog's text: it names the file
/// and, where there is one, the line and the field.
class TideDataFault : public std::runtime_error
{
public:
    /// @param line 1 for the first line; 0 when the fault is not in a line
    /// @param field 1 for the first field; 0 when the fault is not in a field
    TideDataFault(const std::string& file, std::int64_t line, int field,
                  const std::string& trouble);

    std::string file;
    std::int64_t line;
    int field;
};

/// Name of the factors file.
inline constexpr const char* factorsFileName = "AF2005.txt";
/// The first day of the factors file, 2002-10-01.
inline constexpr std::int64_t firstFactorsSerial = 37530;
/// Bytes of a line of the factors file: 44 characters, CR and LF.
inline constexpr std::int64_t factorsLineLength = 46;

/// Name of a tide station's file, and of a tidal-stream station's, which is told apart by an
/// underscore. The place is used as it stands, blanks and apostrophes included.
std::string tideFileName(std::string_view place);
std::string streamFileName(std::string_view place);

/// What a day's prediction needs of the factors file.
struct DaysFactors {
    NavFunc113::DailyFactors thisDay;
    NavFunc113::DailyFactors nextDay;
};

/// Reads a day's line and the next one's. Only these two are looked at: the line is reached by its
/// byte position, so a file whose lines are not 46 bytes long is refused rather than misread, and
/// so is one that begins with a byte-order mark.
///
/// @param dayNumber 0 for 2002-10-01
/// @throws TideDataFault
DaysFactors readDaysFactors(FileStore& files, std::int64_t dayNumber);

/// A station's constants.
struct TideStation {
    std::string title;
    NavFunc113::Hours zone; ///< east positive
    double meanLevel{};     ///< metres above chart datum, or mean stream in knots
    NavFunc113::TideConstituents constituents;
    NavFunc113::ShallowWaterTerms shallowWater;
    std::array<double, 12> monthlyCorrections{}; ///< metres; tide stations only
    NavFunc113::Degrees floodDirection;          ///< true; stream stations only
};

/// Reads a station's fields: separated by commas, blanks or line ends, the title quoted or not; a
/// byte-order mark and fields beyond the last are passed over, any line end will do.
/// @param whyMissing reason for which no file is shipped, or empty
/// @throws TideDataFault; for a missing file it says how one from the ship's own tables is laid out
TideStation readTideStation(FileStore& files, const std::string& place,
                            const std::string& whyMissing = {});
TideStation readStreamStation(FileStore& files, const std::string& place);

/// What of a station's file its fields are read from, without a byte-order mark.
/// @throws TideDataFault as the readers above
std::string tideStationBytes(FileStore& files, const std::string& place,
                             const std::string& whyMissing = {});
std::string streamStationBytes(FileStore& files, const std::string& place);

/// Why no file of a stream station is shipped.
inline constexpr std::string_view whyNoStreams =
    "no open constants of streams exist for these waters";

} // namespace korvel
