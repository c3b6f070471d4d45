// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/ship/under_keel.h"

#include <optional>

namespace korvel
{

/// How the squat is estimated; in the order of the list.
enum class Water {
    Open,     ///< Cb V^2 / 100
    Confined, ///< Cb V^2 / 50
    Channel   ///< by the blockage of the channel's section
};

/// The section of a channel, by its bottom and banks or as it was typed.
struct ChannelShape {
    NavFunc113::Metres bottom;
    double slope{}; ///< of the banks, run over rise
    std::optional<NavFunc113::SquareMetres> section = {};

    NavFunc113::SquareMetres at(NavFunc113::Metres depth) const
    {
        return section ? *section : NavFunc113::ChannelSection(bottom, slope, depth);
    }
};

/// Ship and water, everything but tide and speed: those are what an officer can choose.
struct KeelModel {
    using Metres = NavFunc113::Metres;
    using Knots = NavFunc113::Knots;

    Metres draught; ///< static, the deepest, more than 0
    Metres density; ///< sinkage by it
    Metres list;    ///< sinkage by it
    Metres heave;
    double block{};
    Metres breadth;
    Water water = Water::Open;
    ChannelShape channel;
    Metres charted;
    Metres uncertainty;
    Metres minimum;

    /// Depth to count on: charted depth and tide without the uncertainty.
    Metres depth(Metres tide) const { return charted + tide - uncertainty; }
    /// Breadth x draught: a full section, which is on the safe side.
    NavFunc113::SquareMetres midship() const;
    NavFunc113::SquareMetres section(Metres tide) const { return channel.at(depth(tide)); }

    /// @throws ArithmeticError InvalidArgument where the ship fills the channel
    Metres squat(Knots speed, Metres tide) const;
    Metres dynamicDraught(Knots speed, Metres tide) const;
    Metres clearance(Knots speed, Metres tide) const;

    /// The least tide that keeps the minimum at a speed; nothing where none of up to 30 metres
    /// does. More water never lessens the clearance.
    std::optional<Metres> tideFor(Knots speed) const;
    /// The greatest speed that keeps the minimum; nothing where not even a stopped ship keeps it.
    std::optional<Knots> speedFor(Metres tide) const;
};

} // namespace korvel
