// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/data/TideDates.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmTIDE/data/TideData.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

std::string shortDate(std::int64_t serial)
{
    return Format(static_cast<double>(serial), "yyyy/m/d");
}

// The last date of a factors file whose last line stands where the layout puts it; the first date
// otherwise.
std::int64_t lastSerialOf(FileStore& files)
{
    // The last line's CR LF may be missing.
    const std::int64_t lines = (files.look(factorsFileName).size + 2) / factorsLineLength;
    if (lines < 2) return firstFactorsSerial;
    const std::int64_t lastLine = (lines - 1) * factorsLineLength;
    const bool isInLayout = files.readAt(factorsFileName, lastLine - 2, 2).bytes == "\r\n";
    return isInLayout ? firstFactorsSerial + lines - 2 : firstFactorsSerial;
}

} // namespace

TideDates TideDates::of(FileStore& files)
{
    TideDates dates;
    dates.m_lastSerial = std::max(dates.m_lastSerial, lastSerialOf(files));
    return dates;
}

std::int64_t TideDates::firstSerial() const
{
    return firstFactorsSerial;
}

int TideDates::scrollValueOf(std::int64_t serial) const
{
    return static_cast<int>(serial - firstFactorsSerial + 1);
}

std::int64_t TideDates::serialOfScrollValue(int value) const
{
    return firstFactorsSerial - 1 + value;
}

bool TideDates::contains(std::int64_t serial) const
{
    return firstFactorsSerial <= serial && serial <= m_lastSerial;
}

std::optional<std::int64_t> TideDates::dateIn(std::string_view text)
{
    const std::optional<NavFunc113::DateTime> value = readDateTime(text);
    if (!value) return std::nullopt;
    return static_cast<std::int64_t>(std::floor(*value));
}

std::string TideDates::label(std::int64_t serial)
{
    return Format(static_cast<double>(serial), "yyyy/mm/dd");
}

std::string TideDates::defaultAnswer(std::int64_t serial)
{
    return shortDate(serial);
}

std::string TideDates::refusal() const
{
    return "This version of KORVEL can calculate the tide only " + shortDate(firstFactorsSerial) +
           " to " + shortDate(m_lastSerial) + ".";
}

std::string TideDates::aboutNotice() const
{
    const bool shipped = m_lastSerial == TideDates().m_lastSerial;
    const std::string end = shipped ? "the end of 2005" : shortDate(m_lastSerial);
    return "The tide and tidal stream predictions of this program cover dates up to " + end +
           ".\r\r"
           "They are computed from four harmonic constituents and two shallow-water terms, every "
           "half hour in the station's own zone time. Weather can change levels and times by more "
           "than the figures show. Not for navigation: the official tide tables have precedence.\r"
           "\r"
           "To predict beyond that date, choose Days, Extend the predictions.\r\r"
           "Constants: Neaps tide database and TICON-4 (Hart-Davis, Dettmering, Seitz 2025), "
           "CC BY 4.0, modified; NOAA, public domain. See stations.txt beside the program.";
}

} // namespace korvel
