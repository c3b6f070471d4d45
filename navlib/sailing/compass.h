// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

/// What checks a compass at sea: bearings of bodies near the horizon, the speed error of a gyro.
/// Errors are positive when the compass reads too low: easterly.
namespace NavFunc113
{

/// Dip of the visible horizon, 0 or more: 1.776' times the square root of the height in metres, as
/// the altitude corrections of SunAltitudeTerms have it.
/// @param heightOfEye over the sea, 0 or more
/// @throws ArithmeticError InvalidArgument for a height below 0 or no number
Degrees DipOfHorizon(Metres heightOfEye);

/// True bearing of a body at an altitude: cos Z = (sin d - sin L sin h) / (cos L cos h). At
/// altitude 0 it is the amplitude, counted from north.
///
/// @param latitude, declination  north positive, -90 to 90
/// @param altitude  of the centre, refraction, dip and parallax taken off; negative below the
///                  celestial horizon
/// @param rising    east of the meridian; else west of it
/// @return 0 <= bearing < 360
/// @throws ArithmeticError InvalidArgument when the body never has this altitude in this latitude;
///         DivisionByZero or InvalidArgument at the poles and in the zenith
/// Source: the cosine rule of the navigational triangle; Bowditch, American Practical Navigator,
/// chapter "Azimuths and Amplitudes".
Degrees BearingAtAltitude(Degrees latitude, Degrees declination, Degrees altitude, bool rising);

/// Change of a body's true bearing by the earth's turning: 0.25 degrees a minute of time times
/// (sin L - cos L tan h cos Z). The Moon's own motion, up to a twentieth of it, is left out.
///
/// @param latitude, altitude, bearing  of the observer and of the body's centre; north positive
/// @return degrees a minute of time, clockwise positive
/// @throws ArithmeticError Overflow or DivisionByZero in the zenith itself
Degrees BearingChangeOfMinute(Degrees latitude, Degrees altitude, Degrees bearing);

/// Speed error of a gyro compass without correction: it settles on the axis of the earth's turning
/// and the ship's own together, tan e = V cos C / (900 cos L + V sin C).
///
/// @param course    true, in degrees, any turn
/// @param speed     over the ground, 0 or more; a negative one counts as going astern
/// @param latitude  -90 < latitude < 90
/// @return east positive: westerly, negative, on northerly courses
/// @throws ArithmeticError InvalidArgument so near to a pole that the ship outruns the earth
/// Source: the earth turns 900 miles an hour at the equator, 21600 in a day.
Degrees GyroSpeedError(Degrees course, Knots speed, Degrees latitude);

} // namespace NavFunc113
