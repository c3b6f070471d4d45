// SPDX-License-Identifier: MIT
#pragma once

namespace korvel
{

/// The user scale of a picture: what its four edges stand for. Left may be greater than right and
/// top smaller than bottom.
struct UserScale {
    double left = 0;
    double top = 1;
    double right = 1;
    double bottom = 0;
};

} // namespace korvel
