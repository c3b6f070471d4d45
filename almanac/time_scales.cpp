// SPDX-License-Identifier: MIT
#include "almanac/time_scales.h"
#include "navlib/datetime.h"

#include <erfa.h>

#include <cmath>
#include <string>

namespace almanac
{

void requireAlmanacYears(DateTime ut)
{
    using namespace NavFunc113;
    if (ut >= MakeDateTime({firstYear, 1, 1}) && ut < MakeDateTime({lastYear + 1, 1, 1})) return;
    throw OutOfRange("the almanac holds for " + std::to_string(firstYear) + " to " +
                     std::to_string(lastYear));
}

DeltaT deltaTAt(DateTime ut)
{
    constexpr int firstOfUtc = 1960;
    const double day = std::floor(ut);
    const auto date = NavFunc113::DateOfSerial(static_cast<std::int64_t>(day));
    if (date.year < firstOfUtc) {
        const double t = decimalYear(ut) - 1950;
        return {29.07 + 0.407 * t - t * t / 233 + t * t * t / 2547, DeltaT::Source::Estimate};
    }
    double leapSeconds = 0;
    const int status = eraDat(date.year, date.month, date.day, ut - day, &leapSeconds);
    return {32.184 + leapSeconds,
            status > 0 ? DeltaT::Source::Assumed : DeltaT::Source::LeapSeconds};
}

double decimalYear(DateTime ut)
{
    using namespace NavFunc113;
    const int year = DateOfSerial(static_cast<std::int64_t>(std::floor(ut))).year;
    const DateTime start = MakeDateTime({year, 1, 1});
    return year + (ut - start) / (MakeDateTime({year + 1, 1, 1}) - start);
}

} // namespace almanac
