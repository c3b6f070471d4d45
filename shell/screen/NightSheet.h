// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsEffect>

namespace korvel
{

/// Shows a widget that is black on white whatever the colours of the screen, as a sheet of paper
/// is, in the colours of the night while they hold: what is dark on it shines, the ground is dark.
class NightSheet : public QGraphicsEffect
{
    Q_OBJECT

public:
    using QGraphicsEffect::QGraphicsEffect;

protected:
    void draw(QPainter* painter) override;
};

} // namespace korvel
