// SPDX-License-Identifier: MIT
#include "routes/route/LegWords.h"

#include "app/reading/Ascii.h"
#include "app/reading/Format.h"
#include "app/records/DelimitedText.h"
#include "navlib/angles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace korvel
{
namespace
{

struct KindName {
    std::string_view name;
    LegKind kind;
};

// Signs between words do not count: "Great-Circle" is "great circle". The first of a kind is ours.
constexpr std::array kindNames{
    KindName{"rhumb", LegKind::Rhumb},
    KindName{"greatcircle", LegKind::GreatCircle},
    KindName{"composite", LegKind::Composite},
    KindName{"rhumbline", LegKind::Rhumb},
    KindName{"rl", LegKind::Rhumb},
    KindName{"loxodrome", LegKind::Rhumb},
    KindName{"gc", LegKind::GreatCircle},
    KindName{"orthodrome", LegKind::GreatCircle},
};

std::vector<std::string> wordsOf(std::string_view text)
{
    std::vector<std::string> words(1);
    for (const char c : text) {
        if (c == ' ' || c == '_' || c == '\t')
            words.emplace_back();
        else
            words.back() += lower(c);
    }
    std::erase(words, "");
    return words;
}

std::string stepWords(const CircleStep& step)
{
    if (step.degrees) return " " + Format(*step.degrees, "0.######") + " deg";
    return step.miles ? " " + Format(*step.miles, "0.######") + " nm" : "";
}

/// The step in the last two words behind the kind of leg, which are taken off.
/// @return false when they are a number and no unit of a step
bool takeStep(std::vector<std::string>& words, CircleStep& step)
{
    if (words.size() < 3 || (words.back() != "deg" && words.back() != "nm")) return true;
    const auto value = wholeNumber(words[words.size() - 2]);
    if (!value || !(*value > 0)) return false;
    if (words.back() == "deg")
        step.degrees = NavFunc113::Degrees(*value);
    else
        step.miles = NavFunc113::Miles(*value);
    words.resize(words.size() - 2);
    return true;
}

} // namespace

std::string legWords(LegKind kind, const CircleStep& step, NavFunc113::DegMin limit)
{
    switch (kind) {
    case LegKind::Rhumb:
        return "rhumb";
    case LegKind::GreatCircle:
        return "great circle" + stepWords(step);
    default:
        return "composite " + Format(NavFunc113::DegMinToDeg(limit), "0.0######") + stepWords(step);
    }
}

std::optional<LegWords> readLegWords(std::string_view text)
{
    LegWords leg;
    std::vector<std::string> words = wordsOf(text);
    if (!takeStep(words, leg.step)) return std::nullopt;
    std::optional<double> limit;
    if (words.size() > 1 && (limit = wholeNumber(words.back()))) words.pop_back();
    std::string name;
    for (const std::string& word : words)
        name += word;
    std::erase(name, '-');
    const auto found = std::ranges::find(kindNames, name, &KindName::name);
    if (found == kindNames.end()) return std::nullopt;
    leg.kind = found->kind;
    const bool isComposite = leg.kind == LegKind::Composite;
    if (isComposite != limit.has_value()) return std::nullopt;
    if (isComposite && !(std::fabs(*limit) > 0 && std::fabs(*limit) < 90)) return std::nullopt;
    leg.limit = NavFunc113::Degrees(limit.value_or(0));
    return leg;
}

} // namespace korvel
