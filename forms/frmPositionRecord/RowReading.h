// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/NumberField.h"
#include "forms/frmPositionRecord/RecordMemory.h"

namespace korvel
{

/// What the boxes of a row take.
namespace RowField
{
inline constexpr NumberField timeDifference{"TD", -12, 12, "hours"};
inline constexpr NumberField latitude{"latitude", -90, 90, "degrees", FieldKind::Latitude};
inline constexpr NumberField longitude{"longitude", -180, 180, "degrees", FieldKind::Longitude};
} // namespace RowField

/// What the boxes of the course and speed steered take.
namespace SteeredField
{
inline constexpr NumberField course{"course steered", 0, 360, "degrees"};
inline constexpr NumberField speed{"speed steered", 0, 999, "knots"};
} // namespace SteeredField

/// Adds a sentence to a remark.
void say(std::string& text, const std::string& sentence);

/// The number in a box. Empty and half-typed boxes give nothing and no word.
std::optional<double> numberIn(const std::string& box, const NumberField& field,
                               std::string& remark);

/// Reads a row of the record; writes its UTC, remarks and what was understood into its result.
/// @param tdAbove time difference of the rows above, hours; replaced by the row's own
/// @param before the row as it was read last: taken over when it is still the same
/// @return the fix when the row is complete
std::optional<RecordedFix> readRow(const PositionRecordInput& input, std::size_t index,
                                   double& tdAbove, PositionRowResult& result,
                                   std::optional<RecordMemory::ReadBefore>& before);

} // namespace korvel
