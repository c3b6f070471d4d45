// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What is typed into the sun sight window.
namespace korvel
{

/// A sight as typed. Empty boxes: index error, watch error, TD and height of eye are 0;
/// air and sea 10 degrees (the sea: as the air), pressure 1013 hPa, the air of the tables.
struct SightTexts {
    std::string body;       ///< name or number; empty: the Sun
    std::string date;       ///< by the scale below
    std::string time;       ///< by the watch, h:mm:ss
    bool SMT = false;       ///< the watch keeps ship's mean time; else UTC
    std::string TD;         ///< hours, used with SMT only
    std::string watchError; ///< seconds, fast positive; taken off
    std::string Hs;         ///< sextant altitude, DegMin
    std::string indexError; ///< minutes of arc, on the arc positive; taken off
    bool upperLimb = false;
    std::string heightOfEye; ///< metres
    std::string air;         ///< degrees Celsius
    std::string sea;         ///< degrees Celsius
    std::string pressure;    ///< hectopascals

    /// True when any of date, time and altitude is there: the rest may stand from the last sight.
    bool isBegun() const;

    bool operator==(const SightTexts&) const = default;
};

/// The dead-reckoned track that all sights are referred to, as typed.
struct TrackTexts {
    std::string latitude;  ///< txtSunDR(0), DegMin, -89 to 89
    std::string longitude; ///< txtSunDR(1), DegMin
    std::string time;      ///< UTC of that position, date and time; empty: that of the last sight
    std::string course;    ///< made good, 0 to 360
    std::string speed;     ///< made good, knots
};

/// How good sights and run are held to be, as typed.
struct SightFixOptions {
    std::string sigma;     ///< miles, of one line; empty: 1
    std::string runAlong;  ///< per cent of the distance run; empty: 5
    std::string runCourse; ///< degrees of the course made good; empty: 2
    bool measured = false; ///< scale the ellipse by the residuals (three lines or more)
    bool series = false;   ///< shots of one body within a quarter of an hour are one line
};

} // namespace korvel
