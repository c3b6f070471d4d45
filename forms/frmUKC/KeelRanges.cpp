// SPDX-License-Identifier: MIT
#include "forms/frmUKC/KeelRanges.h"

#include "app/reading/Format.h"

namespace korvel
{
namespace
{

using NavFunc113::Metres;

void tellChannel(const KeelModel& model, Metres tide, Remarks& remarks)
{
    const double blockage = NavFunc113::Blockage(model.midship(), model.section(tide));
    if (blockage < 0.1 || blockage > 0.266)
        remarks.warn("squat: the ship fills " + Format(blockage, "0.000") +
                     " of the channel, the formula is meant for 0.100 to 0.266");
    if (model.channel.section) return;
    const Metres atHalfDepth = model.channel.bottom + model.depth(tide) * model.channel.slope;
    const Metres influence = NavFunc113::WidthOfInfluence(model.block, model.breadth);
    if (atHalfDepth > influence)
        remarks.warn("squat: wider than " + Format(influence, "0") +
                     " m a channel is open water for her");
}

} // namespace

void tellRanges(const KeelModel& model, NavFunc113::Knots speed, Metres tide, Remarks& remarks)
{
    constexpr double nearCritical = 0.7;
    const Metres depth = model.depth(tide);
    const double ratio = depth / model.draught;
    if (model.block < 0.5 || model.block > 0.9)
        remarks.warn("squat: block coefficient " + Format(model.block, "0.00") +
                     " is outside 0.5 to 0.9, for which the formulas hold");
    const std::string draughts = "squat: the depth is " + Format(ratio, "0.00") +
                                 " draughts, the formulas hold for 1.1 to 1.4: ";
    if (ratio > 1.4) remarks.warn(draughts + "deeper water has less");
    if (ratio < 1.1) remarks.warn(draughts + "it may be more");
    if (speed > NavFunc113::Knots(20)) remarks.warn("squat: the formulas hold to 20 knots");
    if (NavFunc113::DepthFroudeNumber(speed, depth) > nearCritical)
        remarks.warn("squat: the speed is near the greatest that this depth lets a ship have");
    if (model.water == Water::Channel) tellChannel(model, tide, remarks);
}

} // namespace korvel
