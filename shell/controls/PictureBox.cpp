// SPDX-License-Identifier: MIT
#include "shell/controls/PictureBox.h"

#include "shell/controls/ResultLabel.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPaintEvent>

#include <algorithm>
#include <utility>

namespace korvel
{
namespace
{

/// A picture says nothing to those who do not see it; the results that it is drawn from do.
class AccessiblePicture : public QAccessibleWidget
{
public:
    explicit AccessiblePicture(QWidget* picture) : QAccessibleWidget(picture, QAccessible::Graphic)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        QString own = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Description || !own.isEmpty()) return own;
        auto labels = widget()->window()->findChildren<ResultLabel*>();
        std::ranges::stable_sort(labels, {}, &ResultLabel::weight); // the answers first
        QStringList results;
        for (const ResultLabel* label : labels) {
            const QString name = label->accessibleName();
            if (label->isVisible() && !name.isEmpty() && !label->text().isEmpty() &&
                results.size() < mostResults)
                results << name + ": " + label->text();
        }
        return results.join("; ");
    }

private:
    static constexpr qsizetype mostResults = 12; ///< nobody listens longer
};

QAccessibleInterface* accessiblePicture(const QString&, QObject* object)
{
    auto* picture = qobject_cast<PictureBox*>(object);
    return picture ? new AccessiblePicture(picture) : nullptr;
}

} // namespace

PictureBox::PictureBox(QWidget* parent)
    : QWidget(parent), m_lineHeight(QFontMetricsF(font()).height())
{
    QAccessible::installFactory(accessiblePicture); // asked for again it does nothing
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureBox::setUserScale(const UserScale& scale, const QRect& changing)
{
    m_scale = scale;
    update(changing);
}

bool PictureBox::isToBeDrawn(const QRectF& part) const
{
    return isOnPaper() || m_painted.intersects(part.toAlignedRect());
}

void PictureBox::setPlotMargins(const QMargins& margins)
{
    m_margins = margins;
    update();
}

QRectF PictureBox::plotArea() const
{
    return QRectF(QPointF(0, 0), QSizeF(pictureSize())).marginsRemoved(m_margins);
}

QPointF PictureBox::toPixel(double x, double y) const
{
    const QRectF area = plotArea();
    return {area.left() + (x - m_scale.left) / (m_scale.right - m_scale.left) * area.width(),
            area.top() + (y - m_scale.top) / (m_scale.bottom - m_scale.top) * area.height()};
}

QPointF PictureBox::toUser(QPointF pixel) const
{
    const QRectF area = plotArea();
    return {
        m_scale.left + (pixel.x() - area.left()) / area.width() * (m_scale.right - m_scale.left),
        m_scale.top + (pixel.y() - area.top()) / area.height() * (m_scale.bottom - m_scale.top)};
}

void PictureBox::setColours(const ColourScheme& colours)
{
    m_colours = colours;
    update();
}

void PictureBox::drawOn(QPainter& painter, const QSize& size, const ColourScheme& colours)
{
    m_drawnSize = size;
    m_drawnIn = &colours;
    m_paperLetters = painter.font();
    const double onScreen = std::exchange(m_lineHeight, QFontMetricsF(m_paperLetters).height());
    const QMargins margins = m_margins;
    placeMargins();
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    m_drawnSize = QSize();
    m_drawnIn = nullptr;
    m_lineHeight = onScreen;
    setPlotMargins(margins);
    placeMargins();
}

void PictureBox::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    m_lineHeight = QFontMetricsF(font()).height();
    placeMargins();
}

void PictureBox::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeMargins();
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    m_painted = event->region();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
}

void PictureBox::mousePressEvent(QMouseEvent* event)
{
    emit pressed(toUser(event->position()), event->buttons());
}

void PictureBox::mouseMoveEvent(QMouseEvent* event)
{
    emit pointed(toUser(event->position()), event->buttons());
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    emit released(toUser(event->position()));
}

void PictureBox::leaveEvent(QEvent*)
{
    emit left();
}

} // namespace korvel
