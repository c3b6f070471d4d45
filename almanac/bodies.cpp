// SPDX-License-Identifier: MIT
#include "almanac/bodies.h"
#include "almanac/star_catalogue.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace almanac
{
namespace
{

constexpr Star catalogue[] = {
#include "stars.inc"
};
constexpr std::size_t firstStar = static_cast<std::size_t>(Body::Saturn) + 1;
constexpr std::size_t bodyCount = firstStar + std::size(catalogue);
static_assert(bodyCount == static_cast<std::size_t>(Body::VenusDisc));

constexpr auto makeEntries()
{
    using enum BodyKind;
    std::array<BodyEntry, bodyCount + 1> entries{
        BodyEntry{Body::Sun, Sun, "Sun", 0, "", {}},
        BodyEntry{Body::Moon, Moon, "Moon", 0, "", {}},
        BodyEntry{Body::Venus, Planet, "Venus", 0, "", {}},
        BodyEntry{Body::Mars, Planet, "Mars", 0, "", {}},
        BodyEntry{Body::Jupiter, Planet, "Jupiter", 0, "", {}},
        BodyEntry{Body::Saturn, Planet, "Saturn", 0, "", {}},
    };
    std::size_t index = firstStar;
    for (const struct Star& star : catalogue) {
        entries[index] = {
            static_cast<Body>(index), Star, star.name, star.number, star.bayer, star.magnitude};
        ++index;
    }
    entries[bodyCount] = {Body::VenusDisc, Planet, "Venus-disc", 0, "", {}};
    return entries;
}

constexpr auto allEntries = makeEntries();

bool isAlike(std::string_view a, std::string_view b)
{
    const auto small = [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    };
    return std::ranges::equal(a, b, {}, small, small);
}

} // namespace

std::span<const Star> starCatalogue()
{
    return catalogue;
}

std::span<const BodyEntry> bodies()
{
    return std::span(allEntries).first(bodyCount);
}

const BodyEntry& entryOf(Body body)
{
    return allEntries.at(static_cast<std::size_t>(body));
}

std::optional<Body> findBody(std::string_view nameOrNumber)
{
    int number{};
    const char* end = nameOrNumber.data() + nameOrNumber.size();
    const auto [rest, fault] = std::from_chars(nameOrNumber.data(), end, number);
    const bool isNumber = fault == std::errc{} && rest == end && number > 0;
    const auto found = std::ranges::find_if(allEntries, [&](const BodyEntry& entry) {
        return isNumber ? entry.number == number : isAlike(entry.name, nameOrNumber);
    });
    if (found == allEntries.end()) return std::nullopt;
    return found->body;
}

std::string bodyInSentence(Body body)
{
    std::string name(entryOf(body).name);
    return body == Body::Sun || body == Body::Moon ? "the " + name : name;
}

std::vector<Body> bodiesBeginning(std::string_view beginning)
{
    if (const auto body = findBody(beginning)) return {*body};
    std::vector<Body> found;
    if (beginning.empty()) return found;
    for (const BodyEntry& entry : bodies())
        if (isAlike(entry.name.substr(0, beginning.size()), beginning)) found.push_back(entry.body);
    return found;
}

} // namespace almanac
