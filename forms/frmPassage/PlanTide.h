// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "app/records/FileStore.h"
#include "navlib/sailing/great_circle_arc.h"

#include <memory>
#include <string>

namespace korvel
{

/// The tide where the plan comes to, by the stations and the data of the tide window. What was read
/// of them is kept: a key reads nothing that it had before.
class PlanTide
{
public:
    /// A station tells nothing of the water further off.
    static constexpr NavFunc113::Miles furthest{100};

    /// @param files must outlive this object
    explicit PlanTide(FileStore& files);
    ~PlanTide();

    /// The tide at the nearest station whose constants are there, within that distance.
    /// @return "Tokyo, 12 nm: 2005/06/01 12:00 TD +9, 1.23 m rising ..", times of its own zone; why
    ///         there is no figure of it; empty where no station is near
    std::string at(const NavFunc113::GeoPoint& position, Instant utc);

private:
    struct Stations;

    FileStore& m_files;
    std::unique_ptr<Stations> m_stations; ///< read when they are first asked for
};

} // namespace korvel
