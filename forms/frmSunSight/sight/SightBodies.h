// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/sight/SightSettings.h"

#include <string>
#include <string_view>

/// The file beside the record of the sights that keeps what the record has no place for: the body
/// of each sight, and whether the shots of one body are one line.
///
/// A first line tells kind and version, then "entry=body" of the sight being entered, "series=yes",
/// and "sight=body;sight" for each recorded sight of another body than the Sun, the sight as its
/// record has it. A sight without such a line is one of the Sun.
namespace korvel
{

constexpr const char* sightBodiesFile = "KV_SightBodies.ini";

std::string sightBodiesText(const SightSettings& settings);

/// Gives the sights of a record their bodies back.
/// @return what could not be read, in words; empty when all was
std::string takeSightBodies(std::string_view bytes, SightSettings& settings);

} // namespace korvel
