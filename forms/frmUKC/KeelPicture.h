// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmUKC/CalculateUKC.h"
#include "shell/controls/PictureBox.h"

#include <QPolygonF>

#include <vector>

namespace korvel
{

/// The tide of seven days with the hours when the minimum is kept, the tide that it takes and the
/// time that was chosen.
class KeelPicture : public PictureBox
{
public:
    KeelPicture();

    void show(const TideWeek& week, const UKCResult& result);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    void drawHours(QPainter& painter) const;
    void drawGrid(QPainter& painter) const;
    void drawDays(QPainter& painter) const;
    void drawLevels(QPainter& painter) const;
    void drawCurve(QPainter& painter) const;
    void drawLeastTide(QPainter& painter) const;
    QPen pen(const QColor& colour, double weight) const;

    struct Band {
        double from; ///< hours from the first midnight
        double to;
    };
    std::vector<Band> m_bands;
    QPolygonF m_curve; ///< hours, metres
    std::vector<QString> m_days;
    std::optional<double> m_level;
    std::optional<QPointF> m_chosen;
};

} // namespace korvel
