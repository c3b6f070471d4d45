// SPDX-License-Identifier: MIT
#include "app/records/ScreenChoices.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <optional>
#include <utility>

namespace korvel
{
namespace
{

struct Slot {
    enum { DimStep, Zoom, ReopensWindows, ClockOnTop, Places, Count };
};

// A choice that came later stands among the places: what is no place there is passed over by the
// versions that do not know it, and their files stay whole.
constexpr std::string_view ownFramesMark = "ownFrames";

// More than any screen has; a file that says so was not written by the program.
constexpr int farthestPixel = 100000;

std::string textOfPlaces(const std::map<std::string, WindowPlace>& places)
{
    std::string text;
    for (const auto& [name, place] : places) {
        if (!text.empty()) text += ';';
        text += name;
        for (int each : {place.x, place.y, place.width, place.height, place.zoom, int(place.open)})
            text += ' ' + std::to_string(each);
    }
    return text;
}

/// Takes the next word off a text.
std::string_view nextWord(std::string_view& text, char end)
{
    const std::size_t length = std::min(text.find(end), text.size());
    const std::string_view word = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return word;
}

std::optional<int> integerOf(std::string_view word)
{
    int number = 0;
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool whole = fault == std::errc() && end == word.data() + word.size();
    return whole && std::abs(number) <= farthestPixel ? std::optional(number) : std::nullopt;
}

std::optional<WindowPlace> placeOf(std::string_view words)
{
    WindowPlace place;
    int open = 0;
    for (int* each : {&place.x, &place.y, &place.width, &place.height, &place.zoom, &open}) {
        const auto number = integerOf(nextWord(words, ' '));
        if (!number) return std::nullopt;
        *each = *number;
    }
    place.open = open != 0;
    return place.width > 0 && place.height > 0 ? std::optional(place) : std::nullopt;
}

std::map<std::string, WindowPlace> placesOf(std::string_view text)
{
    std::map<std::string, WindowPlace> places;
    while (!text.empty()) {
        std::string_view words = nextWord(text, ';');
        const std::string name(nextWord(words, ' '));
        if (const auto place = placeOf(words)) places[name] = *place;
    }
    return places;
}

} // namespace

const std::vector<int>& ScreenChoices::zoomSteps()
{
    static const std::vector<int> steps = {80, 90, 100, 110, 125, 150, 175, 200, 250, 300};
    return steps;
}

bool ScreenChoices::changeZoom(int change)
{
    const auto& all = zoomSteps();
    const int wanted = change == 0 ? 100 : zoom;
    const auto at = std::find(all.begin(), all.end(), wanted) - all.begin() + change;
    if (at < 0 || at >= std::ssize(all)) return false;
    const int before = std::exchange(zoom, all[static_cast<std::size_t>(at)]);
    return zoom != before;
}

std::vector<FieldKind> ScreenChoices::kinds()
{
    return {FieldKind::Number, FieldKind::Number, FieldKind::Tick, FieldKind::Tick,
            FieldKind::Text};
}

Record ScreenChoices::record() const
{
    std::string kept = textOfPlaces(places);
    if (ownFrames) kept.append(kept.empty() ? "" : ";").append(ownFramesMark);
    return {double(dimStep), double(zoom), reopensWindows, clockOnTop, kept};
}

ScreenChoices ScreenChoices::of(const Record& record)
{
    ScreenChoices choices;
    if (record.size() < Slot::Count) return choices;
    for (int step = 0; step < dimSteps; ++step)
        if (numberOf(record[Slot::DimStep]) == step) choices.dimStep = step;
    for (int percent : zoomSteps())
        if (numberOf(record[Slot::Zoom]) == percent) choices.zoom = percent;
    choices.reopensWindows = tickOf(record[Slot::ReopensWindows]);
    choices.clockOnTop = tickOf(record[Slot::ClockOnTop]);
    const std::string kept = textOf(record[Slot::Places]);
    choices.places = placesOf(kept);
    choices.ownFrames =
        kept.ends_with(ownFramesMark) && (kept.size() == ownFramesMark.size() ||
                                          kept[kept.size() - ownFramesMark.size() - 1] == ';');
    return choices;
}

} // namespace korvel
