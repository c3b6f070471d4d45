// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/time_scales.h"
#include "navlib/units.h"

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

namespace almanac
{

using NavFunc113::Degrees;

/// Where and when the field is wanted.
struct MagneticPoint {
    double year = 2025;  ///< decimal
    double kilometres{}; ///< over the WGS 84 ellipsoid, -1 to 850
    Degrees latitude;    ///< geodetic, north positive, -90 to 90
    Degrees longitude;   ///< east positive, -360 to 360
};

/// The field of the earth's core, nanotesla.
struct MagneticField {
    double north{};
    double east{};
    double down{};
    double horizontal{};
    Degrees declination;       ///< east positive, -180 to 180
    Degrees declinationChange; ///< a year
};

/// What a magnetic compass is worth there, by the producer's limits of the horizontal field.
enum class CompassZone {
    Reliable,
    Caution,   ///< below 6000 nT: the compass may be unreliable
    Unreliable ///< below 2000 nT, around the magnetic poles: not to be used
};

/// A sentence for a zone; empty where the compass is reliable.
std::string_view describe(CompassZone zone);

struct Variation {
    Degrees variation; ///< east positive
    /// One standard deviation, the crust's field in it: sqrt(0.26^2 + (5417 / H)^2), not above 180.
    /// The producer's error model for 2025; other editions are taken to be as good.
    Degrees uncertainty;
    Degrees change;      ///< of the variation in a year, east positive
    double horizontal{}; ///< nanotesla
    CompassZone zone = CompassZone::Reliable;
};

/// A coefficient file that cannot be right. what() names the line.
class ModelFault : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// An edition of the World Magnetic Model: spherical harmonics of degree and order 12 with their
/// yearly change, good for five years.
///
/// The edition that is compiled in, 2025, meets the producer's test values (tests/golden/
/// wmm2025_values.csv) to their last printed digit: largest difference of D 0.005 degrees (114
/// cases, printed to 0.01), of H 0.0008 nT, of Y and Z 0.000003 nT, of the change of D 0.000001
/// degrees a year (100 cases each).
/// Source: World Magnetic Model 2025, NOAA National Centers for Environmental Information and
/// British Geological Survey; formulas of its report.
class MagneticModel
{
public:
    static constexpr int degree = 12;
    static constexpr double yearsOfUse = 5;
    /// More than this no coefficient file of the producer has.
    static constexpr std::size_t largestFile = std::size_t{64} * 1024;

    /// The edition of 2025, for 2025.0 to 2030.0.
    static const MagneticModel& ofProgram();

    /// An edition in its producer's format (WMM.COF): epoch, name and date of release in the first
    /// line, then "n m g h g' h'" in nT and nT a year for n = 1 to 12, m = 0 to n, and a line of
    /// 9s.
    /// @throws ModelFault when anything is missing, doubtful or too much
    static MagneticModel read(std::string_view file);

    const std::string& name() const { return m_name; } ///< "WMM-2025"
    double firstYear() const { return m_epoch; }
    double lastYear() const { return m_epoch + yearsOfUse; } ///< still good

    /// @throws OutOfRange when the year, the height or the latitude is beyond what the model holds
    /// for
    MagneticField field(const MagneticPoint& point) const;
    Variation variation(const MagneticPoint& point) const;

private:
    struct Coefficient {
        double g{}, h{}, gChange{}, hChange{};
    };
    static constexpr std::size_t count = degree * (degree + 3) / 2;
    static constexpr std::size_t indexOf(int n, int m)
    {
        return static_cast<std::size_t>(n * (n + 1) / 2 + m - 1);
    }
    friend class CoefficientFile;
    void requireRange(const MagneticPoint& point) const;

    std::string m_name;
    double m_epoch{};
    std::array<Coefficient, count> m_coefficients;
};

} // namespace almanac
