// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <array>
#include <span>
#include <string_view>

/// Astronomical arguments and node factors of tidal constituents, good for 1950 to 2060.
namespace tidedata
{

using NavFunc113::Degrees;
using NavFunc113::Hours;

/// Day number of these routines: days since 2000-01-01 00:00.
using Days2000 = double;

/// Mean longitudes, degrees, 0 to below 360.
struct MeanLongitudes {
    Degrees moon;         ///< s
    Degrees sun;          ///< h
    Degrees lunarPerigee; ///< p
    Degrees lunarNode;    ///< N
    Degrees solarPerigee; ///< p'
};

/// Mean longitudes at an instant; no distinction is made between UT and dynamical time, which is
/// worth 0.01 degrees. Source: Meeus, Astronomical Algorithms, chapters 25 and 47 (the polynomials
/// of the mean longitudes and perigees).
MeanLongitudes meanLongitudesAt(Days2000 day);

/// Which series gives a constituent's node factor f and phase u.
enum class NodeSeries { None, M2, K2, K1, O1, J1, OO1, L2, MF, MM };

/// Slow modulation of a constituent by the lunar node (and, for L2, the perigee).
struct Node {
    double factor = 1; ///< f
    Degrees phase;     ///< u
};

/// Node factor and phase by the usual short series in the longitude of the node; compared with
/// Schureman's formulas (Manual of Harmonic Analysis and Prediction of Tides) over 2003-2060 within
/// 0.011 in f and 0.15 degrees in u.
Node nodeOf(NodeSeries series, const MeanLongitudes& at);

/// A constituent: its argument is V = moon s + sun h + perigee p + solarPerigee p' + constant at
/// 00:00 and grows by speed an hour.
struct Constituent {
    std::string_view name;
    int cycles; ///< whole cycles a day
    int moon;
    int sun;
    int perigee;
    int solarPerigee;
    double constant; ///< degrees
    double speed;    ///< degrees an hour
    NodeSeries node;
};

/// The constituents of the daily table and of the station files.
std::span<const Constituent> constituents();

/// The constituent of that name. @throws std::out_of_range when it is not among constituents()
const Constituent& constituentOf(std::string_view name);

/// A constituent's share at an instant: f and V + u at 00:00 of the day.
struct Argument {
    double factor = 1; ///< f
    Degrees angle;     ///< V + u, not reduced
};
Argument argumentOf(const Constituent& constituent, const MeanLongitudes& at);

/// An angle reduced to 0 <= x < 360.
Degrees reduced(Degrees angle);

} // namespace tidedata
