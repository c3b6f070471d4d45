// SPDX-License-Identifier: MIT
#include "app/shell/ColourScheme.h"

namespace korvel
{
namespace
{

struct Surfaces {
    QColor window, base, alternate, button, text, disabled, highlight, highlightedText;
};

QPalette paletteOf(const Surfaces& s)
{
    QPalette palette(s.text, s.button, s.button.lighter(125), s.button.darker(160),
                     s.button.darker(), s.text, s.text, s.base, s.window);
    palette.setColor(QPalette::AlternateBase, s.alternate);
    palette.setColor(QPalette::ToolTipBase, s.alternate);
    palette.setColor(QPalette::ToolTipText, s.text);
    palette.setColor(QPalette::PlaceholderText, s.disabled);
    palette.setColor(QPalette::Highlight, s.highlight);
    palette.setColor(QPalette::HighlightedText, s.highlightedText);
    palette.setColor(QPalette::Link, s.highlight);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, s.disabled);
    return palette;
}

} // namespace

ColourScheme ColourScheme::day()
{
    ColourScheme scheme;
    scheme.palette = paletteOf(
        {"#eef1f4", "#ffffff", "#e3e8ee", "#e4e8ec", "#14202b", "#8a949e", "#1f5f99", "#ffffff"});
    scheme.clock = "#0b3d6b";
    scheme.memo = "#23313e";
    scheme.unit = "#5a3d00";
    scheme.echo = "#44566a";
    scheme.notice = "#9a2b00";
    scheme.dimmed = "#97a1ab";
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

ColourScheme ColourScheme::night()
{
    // Dim and warm: the eyes must still see the sea after a look at the screen.
    ColourScheme scheme;
    scheme.palette = paletteOf(
        {"#15110e", "#2a2019", "#211a15", "#3a2d24", "#d9a06a", "#7a6048", "#7c3b14", "#ffd9ae"});
    scheme.clock = "#ff9a4d";
    scheme.memo = "#d9a06a";
    scheme.unit = "#c98b5e";
    scheme.echo = "#b58557";
    scheme.notice = "#ff6a3d";
    scheme.dimmed = "#6d553f";
    scheme.paper = "#0c0a08";
    scheme.ink = "#d9a06a";
    scheme.grid = "#55463a";
    scheme.equator = "#b8321f";
    scheme.route = "#ffb066";
    scheme.secondary = "#c4683a";
    scheme.tertiary = "#8f9a55";
    scheme.marker = "#ff7a4d";
    scheme.curve = "#ffb066";
    scheme.datum = "#c98b5e";
    return scheme;
}

} // namespace korvel
