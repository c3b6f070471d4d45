// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/fix/SightFix.h"
#include "shell/controls/PictureBox.h"

#include <vector>

namespace korvel
{

/// picSunSeries: how far each shot of a series lies off the altitude that was fitted. Minutes of
/// arc upward over minutes of time from the mean of its series; a wild shot has a ring.
class SeriesPicture : public PictureBox
{
    Q_OBJECT

public:
    explicit SeriesPicture(QWidget* parent = nullptr);

    void showSeries(const std::vector<SightSeries>& series);

protected:
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    void paintGrid(QPainter& painter) const;
    void paintShots(QPainter& painter, const SightSeries& series) const;

    std::vector<SightSeries> m_series;
    double m_halfTime{}; ///< minutes shown each way
    double m_halfArc{};  ///< minutes of arc shown each way
};

} // namespace korvel
