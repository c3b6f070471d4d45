// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PassagePlan.h"

#include <algorithm>
#include <array>

namespace korvel
{

bool PlanRow::isEmpty() const
{
    const std::array boxes{&name,  &latitude, &longitude, &step,  &limit,
                           &speed, &stop,     &zone,      &remark};
    return std::ranges::all_of(boxes, [](const std::string* box) {
        return box->find_first_not_of(" \t") == std::string::npos;
    });
}

} // namespace korvel
