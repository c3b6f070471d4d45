// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmNoon/CalculateNoon.h"

namespace korvel
{

/// The fields of the mail in the order that is usual.
inline constexpr const char* usualOrder =
    "date position hours run speed togo eta wanted drift slip fuel weather remark";

/// The report as a block of plain text, its fields in the officer's order; those that have nothing
/// to say are left out.
/// @param boxes its remarks name words of the order that are no fields
/// @return empty while there is no day's run
std::string noonMail(NoonReader& boxes, const NoonResult& noon);

} // namespace korvel
