// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/SightList.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/sight/SightBody.h"
#include "forms/frmSunSight/sight/SightFields.h"
#include "forms/frmSunSight/sight/SightInput.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace korvel
{
namespace
{

/// Before every sight in the file: it is found by this even when the rest of the record is not.
constexpr std::string_view tag = "SIGHT;";
constexpr char separator = ';';

Observation observationOf(const SightTexts& texts)
{
    Remarks unheard;
    return readObservation(texts, unheard);
}

/// @param b a complete one
bool isSameSight(const SightTexts& a, const SightTexts& b)
{
    const Observation first = observationOf(a), second = observationOf(b);
    constexpr double halfSecond = 0.5 / 86400;
    constexpr double halfTenth = 0.05 / 60;
    return first.complete() && first.body == second.body && a.upperLimb == b.upperLimb &&
           std::fabs(*first.UTC - *second.UTC) < halfSecond &&
           fabs(NavFunc113::DegMinToDeg(first.corrections->Ho) -
                NavFunc113::DegMinToDeg(second.corrections->Ho)) < NavFunc113::Degrees(halfTenth);
}

std::string textOfSight(const RecordedSight& sight)
{
    std::string text(tag);
    text += sight.on ? "on" : "off";
    text += sight.texts.SMT ? ";SMT" : ";UTC";
    text += sight.texts.upperLimb ? ";U" : ";L";
    for (const auto field : sightMembers) {
        text += separator;
        for (char c : sight.texts.*field)
            text += c == separator ? ' ' : c;
    }
    return text;
}

std::vector<std::string> split(std::string_view text)
{
    std::vector<std::string> parts(1);
    for (char c : text) {
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

/// Fields that are missing at the end stay empty; date, time and altitude must be usable.
std::optional<RecordedSight> sightOf(std::string_view text)
{
    if (!text.starts_with(tag)) return std::nullopt;
    const std::vector<std::string> parts = split(text.substr(tag.size()));
    constexpr std::size_t heads = 3;
    if (parts.size() < heads) return std::nullopt;
    RecordedSight sight;
    sight.on = parts[0] != "off";
    sight.texts.SMT = parts[1] == "SMT";
    sight.texts.upperLimb = parts[2] == "U";
    for (std::size_t i = 0; i < sightMembers.size() && i + heads < parts.size(); ++i)
        sight.texts.*sightMembers[i] = parts[i + heads];
    if (!observationOf(sight.texts).complete()) return std::nullopt;
    return sight;
}

} // namespace

SightList::Outcome SightList::check(const SightTexts& texts, std::size_t except) const
{
    if (!observationOf(texts).complete()) return Outcome::Unusable;
    for (std::size_t i = 0; i < m_sights.size(); ++i)
        if (i != except && isSameSight(m_sights[i].texts, texts)) return Outcome::Already;
    return Outcome::Recorded;
}

SightList::Outcome SightList::record(const SightTexts& texts)
{
    const Outcome outcome = check(texts, m_sights.size());
    if (outcome != Outcome::Recorded) return outcome;
    if (isFull()) return Outcome::Full;
    m_sights.push_back({texts, true});
    sort();
    return outcome;
}

SightList::Outcome SightList::replace(std::size_t index, const SightTexts& texts)
{
    if (index >= m_sights.size()) return Outcome::Unusable;
    const Outcome outcome = check(texts, index);
    if (outcome != Outcome::Recorded) return outcome;
    m_sights[index].texts = texts;
    sort();
    return outcome;
}

void SightList::setOn(std::size_t index, bool on)
{
    m_sights.at(index).on = on;
}

void SightList::setBody(std::size_t index, const std::string& body)
{
    if (index < m_sights.size()) m_sights[index].texts.body = body;
}

std::string SightList::textWithoutBody(const SightTexts& sight)
{
    return textOfSight({sight, true});
}

void SightList::remove(std::size_t index)
{
    if (index >= m_sights.size()) return;
    m_removed = {m_sights[index]};
    m_removedUnreadable.clear();
    m_sights.erase(m_sights.begin() + static_cast<std::ptrdiff_t>(index));
}

void SightList::clear()
{
    if (m_sights.empty() && m_unreadable.empty()) return;
    m_removed = std::exchange(m_sights, {});
    m_removedUnreadable = std::exchange(m_unreadable, {});
}

std::size_t SightList::takeBack()
{
    const std::size_t before = m_sights.size() + m_unreadable.size();
    std::vector<RecordedSight> left;
    for (const RecordedSight& sight : std::exchange(m_removed, {})) {
        if (check(sight.texts, m_sights.size()) != Outcome::Recorded) continue;
        (isFull() ? left : m_sights).push_back(sight);
    }
    m_removed = std::move(left);
    for (const std::string& text : std::exchange(m_removedUnreadable, {}))
        (isFull() ? m_removedUnreadable : m_unreadable).push_back(text);
    sort();
    return m_sights.size() + m_unreadable.size() - before;
}

std::optional<NavFunc113::DateTime> SightList::lastOn(std::optional<std::size_t> except) const
{
    std::optional<NavFunc113::DateTime> last;
    for (std::size_t i = 0; i < m_sights.size(); ++i)
        if (m_sights[i].on && i != except)
            last = std::max(last, observationOf(m_sights[i].texts).UTC);
    return last;
}

void SightList::sort()
{
    std::stable_sort(m_sights.begin(), m_sights.end(),
                     [](const RecordedSight& a, const RecordedSight& b) {
                         return *observationOf(a.texts).UTC < *observationOf(b.texts).UTC;
                     });
}

std::vector<std::string> SightList::texts() const
{
    std::vector<std::string> all;
    for (const RecordedSight& sight : m_sights)
        all.push_back(textOfSight(sight));
    all.insert(all.end(), m_unreadable.begin(), m_unreadable.end());
    all.resize(most);
    return all;
}

SightList SightList::fromTexts(const std::vector<std::string>& texts)
{
    SightList list;
    for (const std::string& text : texts) {
        if (const auto sight = sightOf(text))
            list.m_sights.push_back(*sight);
        else if (!isBlank(text))
            list.m_unreadable.push_back(text);
    }
    list.sort();
    return list;
}

bool SightList::isText(std::string_view text)
{
    return text.starts_with(tag);
}

SightList SightList::salvaged(std::string_view file)
{
    std::vector<std::string> texts;
    for (std::size_t at = file.find(tag); at != std::string_view::npos;
         at = file.find(tag, at + 1)) {
        const std::size_t end = std::min(file.find_first_of("\"\r\n", at), file.find(tag, at + 1));
        if (texts.size() < most) texts.emplace_back(file.substr(at, end - at));
    }
    return fromTexts(texts);
}

std::string outcomeText(SightList::Outcome outcome)
{
    switch (outcome) {
    case SightList::Outcome::Recorded:
        return {};
    case SightList::Outcome::Already:
        return "Recorded already!";
    case SightList::Outcome::Full:
        return "The list is full: delete a sight first";
    case SightList::Outcome::Unusable:
        return "Not recorded: date, time or altitude cannot be used";
    }
    return {};
}

std::string listLine(const RecordedSight& sight)
{
    const Observation observation = observationOf(sight.texts);
    if (!observation.complete()) return "?";
    const bool isUpper = sight.texts.upperLimb && almanac::hasLimbs(observation.body);
    const std::string time = Format(*observation.UTC, "yyyy/mm/dd hh:mm:ss");
    // Of other bodies their name stands where the Sun's line has the scale.
    return time + (observation.isSun() ? " UTC" : "  " + bodyForRecord(sight.texts.body)) +
           "  Hs " + angleText(observation.corrections->Hs) + (isUpper ? " upper limb" : "") +
           "  Ho " + angleText(observation.corrections->Ho);
}

} // namespace korvel
