// SPDX-License-Identifier: MIT
#include "forms/frmSky/pages/SkyDisc.h"

#include "navlib/angles.h"
#include "shell/layout/LineWeight.h"
#include "shell/layout/PlotLettering.h"
#include "shell/machine/AsQString.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using almanac::Body;
using almanac::BodyKind;
using almanac::Direction;
using NavFunc113::Degrees;

constexpr double edge = 1.14;   // of the horizon's ring, for the letters around it
constexpr double namedTo = 1.5; // stars brighter than this have their names

/// A point of the disc, 1 at the horizon; y up.
QPointF discPoint(Degrees altitude, Degrees bearing)
{
    const double radius = (NavFunc113::quarterTurn - altitude) / NavFunc113::quarterTurn;
    return {radius * sin(bearing), radius * cos(bearing)};
}

} // namespace

SkyDisc::SkyDisc(QWidget* parent) : PictureBox(parent)
{
    setObjectName("picSky");
    setAccessibleName("Disc of the sky, the zenith in the middle; left and right go from body to "
                      "body");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(false);
    const int side = fontMetrics().height() * 18;
    setMinimumSize(side, side);
    setUserScale({-edge, edge, edge, -edge});
    connect(this, &PictureBox::pressed, this, [this](QPointF user) {
        if (const auto index = bodyAt(toPixel(user.x(), user.y()))) emit picked(*index);
    });
}

QSize SkyDisc::sizeHint() const
{
    return minimumSize() * 7 / 5;
}

void SkyDisc::showSky(const SkyStars& stars, Degrees course)
{
    m_stars = &stars;
    m_course = course;
    m_picked.reset();
    update();
}

void SkyDisc::setHeadUp(bool isHeadUp)
{
    m_isHeadUp = isHeadUp;
    update();
}

void SkyDisc::pick(std::optional<std::size_t> index)
{
    m_picked = index;
    update();
}

Degrees SkyDisc::up() const
{
    return m_isHeadUp ? m_course : Degrees(0);
}

QPointF SkyDisc::pointOf(const Direction& seen) const
{
    const QPointF at = discPoint(seen.altitude, seen.azimuth - up());
    return toPixel(at.x(), at.y());
}

/// Brighter is larger: 0.34 of a line of text for Sirius, 0.12 for the third magnitude.
double SkyDisc::radiusOf(const SkyBody& body) const
{
    if (!body.magnitude) return 0.5 * lineHeight();
    return lineHeight() * std::clamp(0.27 - 0.05 * *body.magnitude, 0.1, 0.4);
}

std::optional<std::size_t> SkyDisc::bodyAt(QPointF pixel) const
{
    std::optional<std::size_t> nearest;
    double least = 1.5 * lineHeight();
    for (std::size_t i = 0; m_stars && i < m_stars->bodies.size(); ++i) {
        const double away = QLineF(pixel, pointOf(m_stars->bodies[i].seen)).length();
        if (away >= least) continue;
        least = away;
        nearest = i;
    }
    return nearest;
}

bool SkyDisc::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return PictureBox::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QString tip;
    if (const auto index = bodyAt(help->pos())) {
        const SkyBodyTexts texts = textsOf(m_stars->bodies[*index]);
        tip = asQString(texts.name + "  " + texts.altitude + "  " + texts.azimuth);
    }
    QToolTip::showText(help->globalPos(), tip, this);
    return true;
}

void SkyDisc::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Right || event->key() == Qt::Key_Down) return goAround(1);
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Up) return goAround(-1);
    PictureBox::keyPressEvent(event);
}

/// To the next body clockwise, or the other way round.
void SkyDisc::goAround(int step)
{
    if (!m_stars || m_stars->bodies.empty()) return;
    const auto& bodies = m_stars->bodies;
    std::vector<std::size_t> order(bodies.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::ranges::sort(order, {}, [&](std::size_t i) { return bodies[i].seen.azimuth; });
    const auto at = std::ranges::find(order, m_picked.value_or(order.size()));
    const auto count = std::ssize(order);
    std::ptrdiff_t next = step > 0 ? 0 : count - 1;
    if (at != order.end()) next = (at - order.begin() + step + count) % count;
    emit picked(order[static_cast<std::size_t>(next)]);
}

void SkyDisc::placeMargins()
{
    // A degree is as long everywhere round the zenith: the plot is square.
    const int wide = pictureSize().width(), high = pictureSize().height();
    const int side = std::min(wide, high);
    const int left = (wide - side) / 2, top = (high - side) / 2;
    setPlotMargins({left, top, wide - side - left, high - side - top});
}

QPen SkyDisc::pen(const QColor& colour, double weight) const
{
    return {colour, LineWeight::inPixels(weight, lineHeight()), Qt::SolidLine, Qt::FlatCap,
            Qt::RoundJoin};
}

void SkyDisc::draw(QPainter& painter)
{
    painter.fillRect(plotArea(), colours().paper);
    if (hasFocus() && !isOnPaper()) {
        painter.setPen(pen(colours().accent, LineWeight::second));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(plotArea().adjusted(1, 1, -1, -1));
    }
    drawRings(painter);
    drawShipsHead(painter);
    if (!m_stars || !m_stars->utc) return;
    drawSun(painter);
    for (std::size_t i = m_stars->bodies.size(); i-- > 0;) // the round last: on top
        drawBody(painter, m_stars->bodies[i]);
    drawNames(painter);
}

/// Room of the words of a bearing, outside the horizon.
QRectF SkyDisc::rimRoom(int bearing) const
{
    const QPointF at = discPoint(Degrees(-6.5), Degrees(bearing) - up());
    QRectF room(0, 0, 2 * lineHeight(), lineHeight());
    room.moveCenter(toPixel(at.x(), at.y()));
    return room;
}

void SkyDisc::drawRings(QPainter& painter) const
{
    const QPointF centre = toPixel(0, 0);
    const double horizon = toPixel(1, 0).x() - centre.x();
    painter.setBrush(Qt::NoBrush);
    for (const double altitude : {0.0, 15.0, 30.0, 45.0, 65.0}) {
        const bool isHorizon = altitude == 0;
        painter.setPen(pen(isHorizon ? colours().ink : colours().grid,
                           isHorizon ? LineWeight::second : LineWeight::fine));
        const double radius = horizon * (1 - altitude / 90);
        painter.drawEllipse(centre, radius, radius);
    }
    for (int bearing = 0; bearing < 360; bearing += 10) {
        const Degrees on = Degrees(bearing) - up();
        const bool isLong = bearing % 30 == 0;
        const QPointF in = discPoint(Degrees(isLong ? 3 : 1.5), on), out = discPoint({}, on);
        painter.setPen(pen(colours().ink, LineWeight::fine));
        painter.drawLine(toPixel(in.x(), in.y()), toPixel(out.x(), out.y()));
        if (!isLong) continue;
        constexpr std::array points{"N", "E", "S", "W"};
        const QString text = bearing % 90 == 0
                                 ? QString(points[static_cast<std::size_t>(bearing / 90)])
                                 : QString("%1").arg(bearing, 3, 10, QChar('0'));
        painter.drawText(rimRoom(bearing), Qt::AlignCenter, text);
    }
    painter.setPen(pen(colours().grid, LineWeight::fine));
    const double arm = 0.3 * lineHeight();
    painter.drawLine(centre - QPointF(arm, 0), centre + QPointF(arm, 0));
    painter.drawLine(centre - QPointF(0, arm), centre + QPointF(0, arm));
}

/// A ship's bow on the rim, where she heads.
void SkyDisc::drawShipsHead(QPainter& painter) const
{
    const Degrees on = m_course - up();
    const auto point = [&](double altitude, double aside) {
        const QPointF at = discPoint(Degrees(altitude), on + Degrees(aside));
        return toPixel(at.x(), at.y());
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours().secondary);
    painter.drawPolygon(QPolygonF{point(0, 0), point(4.5, 2.2), point(4.5, -2.2)});
}

/// Above the horizon where it is; else on the rim over which it is, while it lights the sky.
void SkyDisc::drawSun(QPainter& painter) const
{
    Direction seen = m_stars->sun;
    constexpr Degrees darkness(-18);
    if (seen.altitude < darkness) return;
    seen.altitude = std::max(seen.altitude, Degrees(0));
    const QPointF at = pointOf(seen);
    const double radius = 0.4 * lineHeight();
    painter.setPen(pen(colours().equator, LineWeight::second));
    painter.setBrush(colours().paper);
    painter.drawEllipse(at, radius, radius);
    painter.setBrush(colours().equator);
    painter.drawEllipse(at, radius / 4, radius / 4);
}

/// The lit part as it is seen, its bright limb towards the Sun.
void SkyDisc::drawMoon(QPainter& painter, const QPointF& at) const
{
    const double radius = 0.5 * lineHeight();
    const QPointF centre = toPixel(0, 0);
    const double upwards = std::atan2(centre.y() - at.y(), centre.x() - at.x());
    // Right of the zenith's direction is clockwise round the disc, as bearings go.
    const double turn =
        upwards * 180 / NavFunc113::Pi() - m_stars->moonBrightLimb.value_or(Degrees(0)).value();
    painter.save();
    painter.translate(at);
    painter.rotate(turn);
    // What is lit is the lighter of the two, by day and by night.
    const bool isInkLight = isNight(colours().palette);
    painter.setPen(pen(colours().ink, LineWeight::fine));
    painter.setBrush(isInkLight ? colours().paper : colours().ink);
    painter.drawEllipse(QPointF(), radius, radius);
    // Half a circle towards the Sun, and half an ellipse that adds to it or takes from it.
    QPainterPath lit;
    const double half = radius * (2 * m_stars->moonLit - 1);
    lit.moveTo(0, -radius);
    lit.arcTo(-radius, -radius, 2 * radius, 2 * radius, 90, -180);
    constexpr int steps = 24;
    for (int i = 0; i <= steps; ++i) {
        const double angle = NavFunc113::Pi() * i / steps;
        lit.lineTo(-half * std::sin(angle), radius * std::cos(angle));
    }
    painter.setBrush(isInkLight ? colours().ink : colours().paper);
    painter.drawPath(lit);
    painter.restore();
}

void SkyDisc::drawBody(QPainter& painter, const SkyBody& body) const
{
    if (body.body == Body::Sun) return;
    const QPointF at = pointOf(body.seen);
    if (body.body == Body::Moon) return drawMoon(painter, at);
    const double radius = radiusOf(body);
    painter.setPen(Qt::NoPen);
    painter.setBrush(body.isInRound ? colours().route : colours().ink);
    if (almanac::entryOf(body.body).kind == BodyKind::Planet) {
        painter.drawPolygon(QPolygonF{at + QPointF(0, -1.3 * radius), at + QPointF(1.3 * radius, 0),
                                      at + QPointF(0, 1.3 * radius),
                                      at + QPointF(-1.3 * radius, 0)});
    } else {
        painter.drawEllipse(at, radius, radius);
    }
    if (!body.isInRound) return;
    painter.setPen(pen(colours().route, LineWeight::subject));
    painter.setBrush(Qt::NoBrush);
    const double ring = 0.55 * lineHeight();
    painter.drawEllipse(at, ring, ring);
}

bool SkyDisc::isNamed(std::size_t index) const
{
    const SkyBody& body = m_stars->bodies[index];
    return body.isInRound || index == m_picked || !body.magnitude || *body.magnitude <= namedTo ||
           almanac::entryOf(body.body).kind == BodyKind::Planet;
}

/// Names of the round first: they have the best places.
void SkyDisc::drawNames(QPainter& painter) const
{
    PlotLettering places(plotArea(), 0.35 * lineHeight());
    for (int bearing = 0; bearing < 360; bearing += 30)
        places.keepOff(rimRoom(bearing));
    for (const SkyBody& body : m_stars->bodies) {
        const double room = (body.isInRound ? 0.6 : 0.25) * lineHeight();
        const QPointF at = pointOf(body.seen);
        places.keepOff(QRectF(at - QPointF(room, room), QSizeF(2 * room, 2 * room)));
    }
    QFont strong = letters();
    strong.setWeight(QFont::DemiBold);
    for (std::size_t i = 0; i < m_stars->bodies.size(); ++i) {
        if (!isNamed(i)) continue;
        const SkyBody& body = m_stars->bodies[i];
        const bool isStrong = body.isInRound || i == m_picked;
        const QString name = asQString(textsOf(body).name);
        painter.setFont(isStrong ? strong : letters());
        const QSizeF size(QFontMetricsF(painter.font(), painter.device()).horizontalAdvance(name),
                          lineHeight());
        const QRectF room = places.place(size, {pointOf(body.seen)});
        painter.setPen(body.isInRound ? colours().route : colours().ink);
        painter.drawText(room, Qt::AlignCenter | Qt::TextDontClip, name);
        if (i != m_picked) continue;
        painter.setPen(pen(colours().equator, LineWeight::second));
        painter.setBrush(Qt::NoBrush);
        const double ring = 0.85 * lineHeight();
        painter.drawEllipse(pointOf(body.seen), ring, ring);
    }
    painter.setFont(letters());
}

} // namespace korvel
