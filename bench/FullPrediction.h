// SPDX-License-Identifier: MIT
#pragma once

#include "tools/tidedata/sources.h"

#include <cstddef>
#include <vector>

/// The full harmonic prediction: all constituents of a station's record. What the program's
/// four-constituent form is measured against.
namespace bench
{

/// One constituent of one station, ready for a day.
struct Wave {
    double amplitude; ///< f H, metres
    double phase;     ///< V + u - kappa at 00:00 of the day
    double speed;     ///< an hour
};

class FullPrediction
{
public:
    /// @param limit only so many constituents, those of the largest amplitude
    /// @throws std::out_of_range for a constituent whose argument is not known here
    explicit FullPrediction(const tidedata::Station& station, std::size_t limit = 1000);

    /// The constituents for a day; node factors are those of noon.
    std::vector<Wave> wavesOf(std::int64_t serial) const;

    /// Height above chart datum, t hours after 00:00 of that day in zone time.
    double height(const std::vector<Wave>& waves, double t) const;

    std::size_t size() const { return m_parts.size(); }

private:
    // A constituent is a product of basic ones: V, u and speed add up, factors multiply.
    struct Factor {
        const tidedata::Constituent* basic;
        double power;
    };
    struct Part {
        std::vector<Factor> factors;
        double amplitude;
        double kappa;
        double constant;
        double speed;
    };
    static Part partOf(std::string_view name);

    std::vector<Part> m_parts;
    double m_meanLevel;
};

} // namespace bench
