// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace korvel
{

/// A text of the calculations (UTF-8) as the toolkit takes it.
inline QString asQString(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace korvel
