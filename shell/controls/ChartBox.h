// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/PictureBox.h"

#include <QPointF>

#include <optional>

namespace korvel
{

/// A picture of a part of something larger: wheel, plus and minus zoom it, dragging and the arrow
/// keys move it, Home shows what it showed at first. What is seen is the business of the picture.
class ChartBox : public PictureBox
{
    Q_OBJECT

public:
    explicit ChartBox(QWidget* parent = nullptr);

protected:
    /// Shows more (factor above 1) or less around a place that stays where it is.
    virtual void zoomBy(double factor, QPointF around) = 0;
    /// Moves what is seen, in units of the user scale.
    virtual void moveBy(QPointF by) = 0;
    virtual void showHome() = 0;
    /// A press on the picture. @return whether it takes hold of the chart
    virtual bool takesHold(QPointF) { return true; }

    /// The rim that tells that the keys are for the picture, or the quiet one.
    QPen rim(const QPen& quiet) const;

    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void press(QPointF user, Qt::MouseButtons buttons);
    void drag(QPointF user, Qt::MouseButtons buttons);

    std::optional<QPointF> m_held; ///< what the pointer drags, in units of the user scale
};

} // namespace korvel
