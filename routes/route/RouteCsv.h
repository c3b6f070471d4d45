// SPDX-License-Identifier: MIT
#pragma once

#include "routes/route/Route.h"

#include <string_view>

namespace korvel
{

/// Reads a list of waypoints: comma-separated values, with semicolons or tabs instead of the commas
/// too, and then with decimal commas; fields between double quotes; with or without a heading.
///
/// A heading names its columns (name, lat_deg, lon_deg, leg, speed_kn, stay_h, zone_h, eta_utc,
/// etd_utc, remark and their usual names); courses and distances are calculated anew, and what else
/// is not known is named in a remark. Without a heading a line is name, latitude, longitude;
/// latitude, longitude, name; latitude, longitude; or the ten columns of our own list. A position
/// is decimal degrees, with a sign or with N, S, E or W, also in a column of their own, or degrees
/// and minutes in any form that the boxes understand when pasted.
/// @param text UTF-8; other bytes are read as Western European letters, and a remark says so
/// @return a fault names the line and the column
ReadRoute readRouteCsv(std::string_view text);

} // namespace korvel
