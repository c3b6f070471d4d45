// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

/// Routines of the library called by their names, as tables of cases write it.
namespace NavFunc113::calls
{

/// The arguments of a call as they are written: numbers, dates (2024-06-21, 2024-06-21T11:45:00),
/// and the names of choices (sphere, spheroid, hydrometer ..).
using Arguments = std::vector<std::string>;

/// What a call gives, part by part: numbers, or texts.
struct Result {
    std::vector<std::string> texts;
    std::vector<double> figures; ///< of the same length; not a number where the part is a text
    void add(double figure);
    void add(std::string_view text);
};

using Routine = std::function<Result(const Arguments&)>;

double numberOf(const std::string& argument);

template <typename Argument>
Argument argumentOf(const std::string& text)
{
    if constexpr (std::is_same_v<Argument, std::string_view>)
        return text;
    else
        return static_cast<Argument>(numberOf(text));
}

template <typename Part>
void addPart(Result& result, const Part& part)
{
    if constexpr (requires { part.value(); })
        result.add(part.value());
    else if constexpr (requires { part.packed(); })
        result.add(part.packed());
    else if constexpr (requires { std::string_view(part); })
        result.add(std::string_view(part));
    else
        result.add(static_cast<double>(part));
}

template <typename Parameter>
void addIfChanged(Result& result, const std::remove_cvref_t<Parameter>& value)
{
    if constexpr (std::is_lvalue_reference_v<Parameter>) addPart(result, value);
}

/// A call of a plain routine; arguments that it changes in the caller's variable are parts of the
/// result too.
template <typename Value, typename... Parameters>
Routine routine(Value (*function)(Parameters...))
{
    return [function](const Arguments& texts) {
        if (texts.size() != sizeof...(Parameters)) throw std::invalid_argument("arguments");
        std::tuple<std::remove_cvref_t<Parameters>...> values;
        Result result;
        [&]<std::size_t... i>(std::index_sequence<i...>)
        {
            ((std::get<i>(values) = argumentOf<std::remove_cvref_t<Parameters>>(texts[i])), ...);
            addPart(result, function(std::get<i>(values)...));
            (addIfChanged<Parameters>(result, std::get<i>(values)), ...);
        }
        (std::index_sequence_for<Parameters...>());
        return result;
    };
}

/// The call written as "Routine argument argument ..". @throws std::invalid_argument for a routine
/// that is not known or another number of arguments
Result resultOf(const std::string& call);

} // namespace NavFunc113::calls
