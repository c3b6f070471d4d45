// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Places of the Sun, the Moon, planets and stars, and magnetic variation, for 1950 to 2100.
namespace almanac
{

enum class BodyKind { Sun, Moon, Planet, Star };

/// A body of the almanac. The stars are the values between Saturn and VenusDisc; bodies() names
/// them.
enum class Body { Sun, Moon, Venus, Mars, Jupiter, Saturn, VenusDisc = 102 };

/// What does not change with time.
struct BodyEntry {
    Body body = Body::Sun;
    BodyKind kind = BodyKind::Sun;
    std::string_view name; ///< as almanacs print it, "Al Na'ir"
    int number{};          ///< 1 to 57 for the stars that almanacs number; 0 for all others
    std::string_view bayer;
    std::optional<double> magnitude; ///< visual, of the catalogue's epoch; stars only
};

/// All that are looked for in the sky: Sun, Moon, the four planets, the 57 stars by number,
/// Polaris, 38 others by brightness.
std::span<const BodyEntry> bodies();

const BodyEntry& entryOf(Body body);

/// "the Sun", "the Moon", "Venus", "Arcturus".
std::string bodyInSentence(Body body);

/// Bodies whose names begin so, capitals or not, in the order of bodies(); a whole name or a
/// star's number stands for itself alone.
std::vector<Body> bodiesBeginning(std::string_view beginning);

/// Whether a sextant brings a limb down to the horizon: of the Sun and the Moon.
constexpr bool hasLimbs(Body body)
{
    return body == Body::Sun || body == Body::Moon;
}

/// Body of a name, capitals or not, or of a star's number ("18"). "Venus" is her centre of light,
/// as almanacs have it since 1985; "Venus-disc" the centre of her disc.
std::optional<Body> findBody(std::string_view nameOrNumber);

} // namespace almanac
