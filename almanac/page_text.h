// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/daily_page.h"

#include <string>

namespace almanac
{

/// A page of three days as text: ASCII, at most 115 columns, minutes of arc to a tenth.
std::string pageText(const DailyPage& page);

} // namespace almanac
