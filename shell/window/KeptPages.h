// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/PageParts.h"

namespace korvel
{

class WindowRecord;

/// Has the record of a window hold its kind, then the boxes of its pages, behind them their
/// choices.
void keepPages(WindowRecord& record, const char* file, const char* kind,
               const std::vector<PageRecord>& pages);

} // namespace korvel
