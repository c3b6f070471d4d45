// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "navlib/sailing/sailing.h"

#include <optional>
#include <string>

namespace korvel
{

/// Where the ship is, how she goes, and how the program knows: one thing for all windows, which
/// offer it and fill no box with it by themselves.
///
/// The position is the latest of the last fix of the position record and one that was typed, run on
/// by course and speed.
class ShipNow
{
public:
    static constexpr const char* file = "KV_ShipNow.ini";

    enum class Source { LastFix, Typed };

    struct Fix {
        NavFunc113::DegMin latitude;  ///< north positive
        NavFunc113::DegMin longitude; ///< east positive
        Instant utc;
        Source source = Source::LastFix;

        bool operator==(const Fix&) const = default;
    };

    struct Motion {
        NavFunc113::Degrees course; ///< true
        NavFunc113::Knots speed;

        bool operator==(const Motion&) const = default;
    };

    /// The last fix of the record. One that was typed holds until a later one comes.
    /// @return whether anything is another now
    bool tellFix(const Fix& fix);
    /// What the officer typed, whatever was known before.
    void typeFix(const Fix& fix) { m_fix = fix; }
    /// @return whether it is another
    bool tellMotion(const std::optional<Motion>& motion);

    const std::optional<Fix>& fix() const { return m_fix; }
    const std::optional<Motion>& motion() const { return m_motion; }

    /// The position at an instant.
    struct Position {
        NavFunc113::DegMin latitude;
        NavFunc113::DegMin longitude;
        std::string how; ///< "DR of 0940, fix 1 h 40 m old", "fix of 0940"
    };
    /// @param utc  not before the fix; before it the fix itself comes back
    /// @param zone of the times that are told
    /// @return nothing while nothing is known
    std::optional<Position> at(Instant utc, Span zone, NavFunc113::Earth earth) const;

    bool isShown = false; ///< in the main window

    /// As the bytes of its file: a first line that tells kind and version, then a line a figure.
    std::string recordText() const;
    /// @return what could not be read, in words; empty when all was
    std::string take(const std::string& bytes);

private:
    std::optional<Fix> m_fix;
    std::optional<Motion> m_motion;
};

} // namespace korvel
