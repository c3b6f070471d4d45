// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/UserScale.h"
#include "shell/screen/ColourScheme.h"

#include <QPainter>
#include <QWidget>

namespace korvel
{

/// A picture with a user scale. It keeps no pixels: each picture draws itself afresh at any size
/// and resolution.
class PictureBox : public QWidget
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    void setUserScale(const UserScale& scale) { setUserScale(scale, rect()); }
    /// The same when only a part of the picture changes with it.
    void setUserScale(const UserScale& scale, const QRect& changing);
    const UserScale& userScale() const { return m_scale; }

    /// Room in pixels around the area that the user scale covers, for labels.
    void setPlotMargins(const QMargins& margins);
    QRectF plotArea() const;

    QPointF toPixel(double x, double y) const;
    QPointF toUser(QPointF pixel) const;

    /// False while a paint leaves this part as it is; for parts that cost more to draw than to ask.
    bool isToBeDrawn(const QRectF& part) const;

    /// The colours that it draws itself in on the screen.
    virtual void setColours(const ColourScheme& colours);

    /// Draws the picture at another size, for printing: in the letters of the painter, whatever
    /// the size of those on the screen is, and in colours of its own.
    void drawOn(QPainter& painter, const QSize& size, const ColourScheme& colours);

signals:
    /// The pointer moved over the picture, with the buttons held; coordinates of the user scale.
    void pointed(QPointF user, Qt::MouseButtons buttons);
    void pressed(QPointF user, Qt::MouseButtons buttons);
    void released(QPointF user);
    void left();

protected:
    /// Draws the picture; called with a painter in pixels, antialiasing on.
    virtual void draw(QPainter& painter) = 0;
    /// Sets the plot margins where they depend on the size of the picture or of its letters.
    virtual void placeMargins() {}
    /// The colours to draw in.
    const ColourScheme& colours() const { return m_drawnIn ? *m_drawnIn : m_colours; }
    /// Height of a line of text, which the sizes in a picture follow.
    double lineHeight() const { return m_lineHeight; }
    /// The letters that are being drawn with: the widget's, or those of the paper.
    QFont letters() const { return isOnPaper() ? m_paperLetters : font(); }
    QFontMetrics letterMetrics() const
    {
        return isOnPaper() ? QFontMetrics(m_paperLetters) : fontMetrics();
    }
    QSize pictureSize() const { return isOnPaper() ? m_drawnSize : size(); }
    /// True while it is drawn at another size than the widget's.
    bool isOnPaper() const { return m_drawnSize.isValid(); }

    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    UserScale m_scale;
    QMargins m_margins;
    double m_lineHeight;
    QRegion m_painted; ///< the part that is being painted
    QFont m_paperLetters;
    ColourScheme m_colours = ColourScheme::day(); ///< on the screen
    const ColourScheme* m_drawnIn = nullptr;      ///< set while it is drawn elsewhere
    QSize m_drawnSize; ///< set while the picture is drawn at another size than the widget's
};

} // namespace korvel
