// SPDX-License-Identifier: MIT
#pragma once

namespace korvel
{

/// Chooses X11 in a Wayland session on a system without the tables of keyboards: the toolkit's part
/// for Wayland does not start without them, it falls. Called before the application object is made;
/// what the officer chose (QT_QPA_PLATFORM) stands.
void choosePlatform();

} // namespace korvel
