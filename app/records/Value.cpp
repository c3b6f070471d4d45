// SPDX-License-Identifier: MIT
#include "app/records/Value.h"

namespace korvel
{

double numberOf(const Value& value)
{
    if (const auto* number = std::get_if<double>(&value)) return *number;
    if (const auto* number = std::get_if<float>(&value)) return static_cast<double>(*number);
    if (const auto* tick = std::get_if<bool>(&value)) return *tick ? 1 : 0;
    return 0;
}

bool tickOf(const Value& value)
{
    return numberOf(value) != 0;
}

std::string textOf(const Value& value)
{
    const auto* text = std::get_if<std::string>(&value);
    return text ? *text : std::string();
}

} // namespace korvel
