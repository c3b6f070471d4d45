// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"
#include "forms/frmTIDE/data/TideData.h"
#include "tidedata/all_constituents.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvel
{

/// constituents.txt beside the program: for each station with more than the four constituents the
/// whole of its record, from which the second curve is drawn. The file may be missing.
class FullConstants
{
public:
    FullConstants() = default;
    explicit FullConstants(FileStore& files);

    /// The constituents of a place. Nothing when the list does not have it, when its entry cannot
    /// be read, and when the station's file does not hold the same constants: then it is the ship's
    /// own, and another record's sum beside it would mislead.
    std::optional<tidedata::AllConstituents> of(std::string_view place,
                                                const TideStation& station) const;

    /// Whether there is no list, and whether it has a place, with whatever constants.
    bool isEmpty() const { return m_list.empty(); }
    bool has(std::string_view place) const { return !lineOf(place).empty(); }

private:
    std::string_view lineOf(std::string_view place) const;

    std::string m_list;
};

} // namespace korvel
