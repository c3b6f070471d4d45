// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSky/CalculateStars.h"
#include "shell/controls/PictureBox.h"

#include <optional>

namespace korvel
{

class PlotLettering;

/// The sky over the ship as a bearing plot: zenith in the middle, horizon at the rim, east to the
/// right of north. The band between the rings of 15 and 65 degrees is where rounds are taken.
class SkyDisc : public PictureBox
{
    Q_OBJECT

public:
    explicit SkyDisc(QWidget* parent);

    /// @param stars  outlives the picture, or another one is shown before it goes
    /// @param course true; drawn at the rim
    void showSky(const SkyStars& stars, NavFunc113::Degrees course);
    void setHeadUp(bool isHeadUp);
    /// The body that stands out; a number of the list's.
    void pick(std::optional<std::size_t> index);

    QSize sizeHint() const override;

signals:
    /// The officer has chosen a body, by a press or by the arrow keys.
    void picked(std::size_t index);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    NavFunc113::Degrees up() const;
    QPointF pointOf(const almanac::Direction& seen) const;
    double radiusOf(const SkyBody& body) const;
    std::optional<std::size_t> bodyAt(QPointF pixel) const;
    void goAround(int step);
    QRectF rimRoom(int bearing) const;
    void drawRings(QPainter& painter) const;
    void drawShipsHead(QPainter& painter) const;
    void drawSun(QPainter& painter) const;
    void drawMoon(QPainter& painter, const QPointF& at) const;
    void drawBody(QPainter& painter, const SkyBody& body) const;
    void drawNames(QPainter& painter) const;
    bool isNamed(std::size_t index) const;
    QPen pen(const QColor& colour, double weight) const;

    const SkyStars* m_stars = nullptr;
    NavFunc113::Degrees m_course;
    bool m_isHeadUp = false;
    std::optional<std::size_t> m_picked;
};

} // namespace korvel
