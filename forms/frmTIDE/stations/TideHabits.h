// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/SettingsRecord.h"
#include "app/records/Value.h"

#include <string>
#include <vector>

namespace korvel
{

/// A station as it is remembered.
struct StationChoice {
    bool TideMode = true;
    std::string place;
    friend bool operator==(const StationChoice&, const StationChoice&) = default;
};

/// What the window remembers beside its settings record: "KV_TideOwn.ini", the year in which the
/// extension was last offered unasked, whether all constituents are drawn, the last stations,
/// behind the last of them whether the details are open.
struct TideHabits {
    static constexpr std::size_t kept = 5;

    int offeredYear{};
    bool drawsAll = true;
    bool showsDetails = false;
    std::vector<StationChoice> stations; ///< the last one first

    /// Puts a station in front.
    void remember(const StationChoice& station);
};

std::vector<FieldKind> habitKinds();
Record recordOf(const TideHabits& habits);
/// Stations that the menus do not have are passed over.
TideHabits habitsOf(const Record& record);

} // namespace korvel
