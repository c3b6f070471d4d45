// SPDX-License-Identifier: MIT
#include "shell/screen/ColourScheme.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace korvel
{
namespace
{

struct Surfaces {
    QColor window, base, alternate, button, text, disabled, placeholder, outline, hair, highlight,
        highlightedText, accent;
};

QPalette paletteOf(const Surfaces& s)
{
    QPalette palette(s.text, s.button, s.button, s.outline, s.outline, s.text, s.accent, s.base,
                     s.window);
    palette.setColor(hairRole, s.hair);
    palette.setColor(QPalette::Shadow, s.outline);
    palette.setColor(QPalette::AlternateBase, s.alternate);
    palette.setColor(QPalette::ToolTipBase, s.alternate);
    palette.setColor(QPalette::ToolTipText, s.text);
    palette.setColor(quietRole, s.placeholder);
    palette.setColor(QPalette::Highlight, s.highlight);
    palette.setColor(QPalette::HighlightedText, s.highlightedText);
    palette.setColor(QPalette::Link, s.highlight);
    palette.setColor(QPalette::LinkVisited, s.highlight);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, s.disabled);
    return palette;
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double ofScreen(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

/// Luminances of one step of the night: the brightest thing there is, the darkest that may be text,
/// the darkest that may be a line or the outline of a control. Against the grounds below, text
/// comes to 4.5 to 1 and the others to 3 to 1, counted with the light that falls on the screen: the
/// formula of contrast takes 0.05 for an office, and the bridges that need the darker steps have
/// less of it. With all of it a screen of 0.10 would have 3 to 1 at most. Each step gives little
/// more than half the light of the one before: one that the eye does not see is none.
struct NightStep {
    double peak, text, line;
    double grounds; ///< their luminance beside that of the brightest step
    double strayLight;
};
constexpr double inAnOffice = 0.05; // stray light
constexpr std::array<NightStep, 3> nightSteps = {{{0.295, 0.235, 0.15, 1, inAnOffice},
                                                  {0.158, 0.11, 0.058, 0.5, 0.02},
                                                  {0.086, 0.055, 0.032, 0.25, 0.005}}};

const NightStep& nightStep(int step)
{
    return nightSteps.at(static_cast<std::size_t>(std::clamp(step, 0, 2)));
}

// From red to amber: the eyes must still see the sea after a look at the screen.
struct Hue {
    static constexpr QColor amber{255, 144, 48}, paleAmber{255, 176, 112}, orange{255, 106, 32},
        red{255, 74, 40}, black{7, 2, 1};
};

QPalette nightPalette(const NightStep& step)
{
    const auto ground = [&](const QColor& ofBrightest) {
        return atLuminance(ofBrightest, step.grounds * relativeLuminance(ofBrightest));
    };
    // Answers alone are of the brightest light.
    const QColor letters = atLuminance(Hue::amber, (step.peak + step.text) / 2);
    return paletteOf({ground("#0d0403"), ground(Hue::black), ground("#1a0905"), ground("#120705"),
                      letters, atLuminance(Hue::orange, step.line),
                      atLuminance(Hue::orange, step.text), atLuminance(Hue::orange, step.line),
                      atLuminance(Hue::red, step.line / 4), atLuminance(Hue::amber, step.text),
                      ground(Hue::black), atLuminance(Hue::paleAmber, step.peak)});
}

} // namespace

double relativeLuminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

bool isNight(const QPalette& palette)
{
    return relativeLuminance(palette.color(QPalette::WindowText)) >
           relativeLuminance(palette.color(QPalette::Window));
}

double strayLight(const QPalette& palette)
{
    if (!isNight(palette)) return inAnOffice;
    // The answers are of the brightest light of their step.
    const double peak = relativeLuminance(palette.color(accentRole));
    const auto isBrighter = [peak](const NightStep& step) { return step.peak > peak / 1.2; };
    const auto step = std::find_if(nightSteps.rbegin(), nightSteps.rend(), isBrighter);
    return step == nightSteps.rend() ? inAnOffice : step->strayLight;
}

QColor atLuminance(const QColor& hue, double luminance)
{
    const double factor = luminance / relativeLuminance(hue);
    const auto channel = [factor](double value) {
        return static_cast<float>(std::min(1.0, ofScreen(linear(value) * factor)));
    };
    return QColor::fromRgbF(channel(hue.redF()), channel(hue.greenF()), channel(hue.blueF()));
}

ColourScheme ColourScheme::day()
{
    ColourScheme scheme;
    scheme.palette = paletteOf({"#eef1f4", "#ffffff", "#dfe7f0", "#e4e8ec", "#14202b", "#69737d",
                                "#56616c", "#74808c", "#ccd5de", "#1f5f99", "#ffffff", "#0b4a86"});
    scheme.accent = scheme.palette.color(accentRole);
    scheme.clock = "#0b3d6b";
    scheme.memo = "#23313e";
    scheme.unit = "#5a3d00";
    scheme.echo = "#44566a";
    scheme.done = "#1a6334";
    scheme.notice = "#8a4500";
    scheme.fault = "#a3001f";
    scheme.dimmed = "#5d6974";
    scheme.paper = "#fbfdff";
    scheme.ink = "#14202b";
    scheme.grid = QColor(128, 128, 128);
    scheme.equator = "#d01818";
    scheme.route = "#0b57a4";
    scheme.secondary = "#b0560a";
    scheme.tertiary = "#1d7a3c";
    scheme.marker = "#a01050";
    scheme.curve = Qt::black;
    scheme.datum = QColor(32, 8, 2); // 133152 as red + 256 green + 65536 blue
    return scheme;
}

ColourScheme ColourScheme::night(int which)
{
    const NightStep& step = nightStep(which);
    ColourScheme scheme;
    scheme.palette = nightPalette(step);
    scheme.accent = scheme.palette.color(accentRole);
    scheme.clock = atLuminance(Hue::amber, step.peak);
    scheme.memo = atLuminance(Hue::paleAmber, step.peak);
    scheme.unit = atLuminance(Hue::orange, step.peak);
    scheme.echo = atLuminance(Hue::orange, step.text);
    scheme.done = atLuminance(Hue::orange, step.text);
    scheme.notice = atLuminance(Hue::red, step.text);
    scheme.fault = atLuminance(Hue::paleAmber, step.peak);
    scheme.dimmed = atLuminance(Hue::orange, step.text);
    scheme.paper = scheme.palette.color(QPalette::Base);
    scheme.ink = atLuminance(Hue::amber, step.text);
    scheme.grid = atLuminance(Hue::red, step.line);
    scheme.equator = atLuminance(Hue::red, step.text);
    scheme.route = atLuminance(Hue::paleAmber, step.peak);
    scheme.secondary = atLuminance(Hue::orange, step.text);
    scheme.tertiary = atLuminance(Hue::amber, step.line);
    scheme.marker = atLuminance(Hue::orange, step.peak);
    scheme.curve = atLuminance(Hue::paleAmber, step.peak);
    scheme.datum = atLuminance(Hue::orange, step.text);
    return scheme;
}

} // namespace korvel
