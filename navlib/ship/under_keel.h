// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

/// What lies between keel and sea bed: squat, sinkage by density and list, the uncertainty of a
/// survey.
namespace NavFunc113
{

using TonsPerCubicMetre = Measure<struct TonsPerCubicMetreUnit>;
using SquareMetres = Measure<struct SquareMetresUnit>;

/// Block coefficient of the immersed hull: displacement / (density x length x breadth x draught).
/// @param displacement tons, more than 0
/// @param density      of the water in which she floats at that draught, more than 0
/// @param draught      mean, metres, more than 0
/// @return above 1 when the figures cannot belong together (the caller decides)
/// @throws ArithmeticError DivisionByZero where a divisor is 0
double BlockCoefficient(double displacement, TonsPerCubicMetre density, Metres length,
                        Metres breadth, Metres draught);

/// How the greatest squat of a ship that is on even keel when stopped is estimated.
enum class SquatFormula {
    Open,    ///< Cb V^2 / 100: open water
    Confined ///< Cb V^2 / 50: confined water of an unknown section
};

/// Greatest squat by a short formula of Barrass.
/// @param block block coefficient, 0.5 to 0.9 by the ranges usually quoted
/// @param speed through the water, 0 or more; to about 20 knots
/// @return metres; at the bow where block is above 0.7, at the stern where it is below
///
/// They hold for a depth of 1.1 to 1.4 draughts; in deeper water she squats less. Open and confined
/// water differ by the blockage of about 0.1 and less, or about 0.25.
/// Source: C. B. Barrass, Ship Design and Performance for Masters and Mates, 2004, "Ship squat in
/// open water and in confined channels".
Metres Squat(SquatFormula formula, double block, Knots speed);

/// Greatest squat in a channel of a known section:
/// Cb / 30 x (As / (Ac - As))^(2/3) x V^2.08.
/// @param midship immersed section of the ship, more than 0
/// @param channel section of the water, ship included
/// @return metres, where and in which range as Squat(); meant for As / Ac of 0.1 to 0.266
/// @throws ArithmeticError InvalidArgument unless channel > midship > 0
///
/// Without (As / (Ac - As))^(2/3) the rest is no formula of anything: some 4 times too much in open
/// water.
/// Source: C. B. Barrass, The phenomena of ship squat, International Shipbuilding Progress 26,
/// 1979; deslab.mit.edu/DesignLab/squat states the formula with the same symbols.
Metres SquatInChannel(double block, Knots speed, SquareMetres midship, SquareMetres channel);

/// The speed at which she squats that much, the formulas turned round.
/// @param squat 0 or more
/// @param block more than 0
/// @throws ArithmeticError InvalidArgument for a negative squat, DivisionByZero for block 0, and as
///         the formula itself
Knots SpeedOfSquat(SquatFormula formula, double block, Metres squat);
Knots SpeedOfSquatInChannel(double block, Metres squat, SquareMetres midship, SquareMetres channel);

/// Share of the channel's section that the ship fills: As / Ac.
/// @throws ArithmeticError DivisionByZero for an empty channel
double Blockage(SquareMetres midship, SquareMetres channel);

/// Width of water that a ship moves with her, 7.04 B / Cb^0.85: a wider channel is open water.
/// @param block more than 0
/// Source: Barrass 2004, "width of influence".
Metres WidthOfInfluence(double block, Metres breadth);

/// Section of a channel: (width of its bottom + slope x depth) x depth.
/// @param slope of both banks, run over rise; 0: upright walls
SquareMetres ChannelSection(Metres bottom, double slope, Metres depth);

/// Sinkage of the lower bilge by a list: B / 2 x sin list, whichever side she lists to.
Metres ListSinkage(Metres breadth, Degrees list);

/// Sinkage on the way into lighter water by the ship's fresh water allowance:
/// allowance x (of the draught - of the water) / 0.025, negative into denser water.
/// @param allowance by which she sinks from water of 1.025 t/m3 into that of 1.000
/// Source: the load line's dock water allowance.
Metres DensitySinkage(Metres allowance, TonsPerCubicMetre ofDraught, TonsPerCubicMetre ofWater);

/// The same where the allowance is not known: draught x (of the draught / of the water - 1), that
/// of a box. A ship sinks by Cb / Cw of it at most.
/// @throws ArithmeticError DivisionByZero for water of no density
Metres DensitySinkageOfBox(Metres draught, TonsPerCubicMetre ofDraught, TonsPerCubicMetre ofWater);

/// Quality of a survey, the zones of confidence of the chart.
enum class ZoneOfConfidence { A1, A2, B, C };

/// Uncertainty of a charted depth, at 95 %: a fixed part and a share of the depth.
struct DepthUncertainty {
    Metres fixed;
    double share{};

    Metres of(Metres charted) const { return fixed + fabs(charted) * share; }
};

/// A1: 0.5 m + 1 %; A2 and B: 1.0 m + 2 %; C: 2.0 m + 5 %. Zone D is worse than C and an unassessed
/// one unknown: neither has a figure.
/// Source: IHO S-57, appendix A, attribute CATZOC; S-67, Mariners' Guide to Accuracy of Depth
/// Information.
DepthUncertainty UncertaintyOf(ZoneOfConfidence zone);

/// Froude's number of the depth: V / sqrt(g h), 1 at the speed that no displacement ship passes.
/// @param depth more than 0
/// @throws ArithmeticError InvalidArgument or DivisionByZero without depth
double DepthFroudeNumber(Knots speed, Metres depth);

} // namespace NavFunc113
