// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

namespace korvel
{

/// Roles of the palette that the toolkit has no other use for: the one colour of answers, words
/// that keep quiet, the line between rows and below a head.
inline constexpr QPalette::ColorRole accentRole = QPalette::BrightText,
                                     quietRole = QPalette::PlaceholderText,
                                     hairRole = QPalette::Midlight;

/// Every colour of the program, by day or by night.
struct ColourScheme {
    QPalette palette; ///< Dark is the outline of controls

    QColor accent; ///< answers, and the chosen half of a switch; in the palette too
    QColor clock;  ///< text of lblTime
    QColor memo;   ///< text of lblMEMO
    QColor unit;   ///< text of lbl1NM
    QColor echo;   ///< what was understood, beside a box
    QColor done;   ///< what was carried out, in the notice line
    QColor notice; ///< a remark of the notice line, and figures in doubt
    QColor fault;  ///< a fault of the notice line
    QColor dimmed; ///< results that no longer belong to the inputs

    QColor paper;     ///< background of pictures
    QColor ink;       ///< text and main lines of pictures
    QColor grid;      ///< grid lines
    QColor equator;   ///< the equator, and other lines of warning
    QColor route;     ///< the great circle, the curve, the line that the picture is about
    QColor secondary; ///< the line that it is compared with
    QColor tertiary;  ///< a third line
    QColor marker;    ///< marked points
    QColor curve;     ///< the day's curve of a tide or stream
    QColor datum;     ///< chart datum, or slack water, under that curve

    static ColourScheme day();
    /// @param step 0 the brightest, 2 the dimmest
    static ColourScheme night(int step);
};

/// True for a palette that is light on dark.
bool isNight(const QPalette& palette);

/// What the formula of contrast adds to both luminances for the light that falls on the screen:
/// 0.05, and less where a palette is of one of the darker steps of the night.
double strayLight(const QPalette& palette);

/// Relative luminance of a colour of the screen, 0 black to 1 white. Source: IEC 61966-2-1 (sRGB).
double relativeLuminance(const QColor& colour);

/// A colour of the same hue with another relative luminance; the brightest there is of that hue
/// where it cannot be had.
QColor atLuminance(const QColor& hue, double luminance);

} // namespace korvel
