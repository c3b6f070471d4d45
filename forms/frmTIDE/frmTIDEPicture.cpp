// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/frmTIDEPicture.h"

#include "app/shell/Boxes.h"

#include <QFontInfo>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

constexpr double readingStep = 1.0 / 6; // hours a key
constexpr std::string_view emptyHint = "Choose a place and a date";

} // namespace

frmTIDEPicture::frmTIDEPicture(Program& program, QWidget* parent)
    : PictureBox(parent), m_program(program), m_lblReading(new QLabel(this))
{
    setObjectName("picTIDE");
    setAccessibleName("Curve of the day; Left and Right read it");
    setFocusPolicy(Qt::StrongFocus);
    addAxisLabels();
    m_lblReading->setObjectName("lblReading");
    m_lblReading->setAccessibleName("Reading of the curve");
    m_lblReading->setAutoFillBackground(true);
    m_lblReading->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_lblReading->setMargin(fontMetrics().descent());
    m_lblReading->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_lblReading->hide();

    const int space = fontMetrics().horizontalAdvance(' ');
    setPlotMargins({fontMetrics().horizontalAdvance("-10 kn.") + 2 * space, 0, 2 * space,
                    fontMetrics().height()});
    connect(this, &PictureBox::pointed, this, [this](QPointF user) { readAt(user.x()); });
    connect(this, &PictureBox::left, this, [this] { readAt(std::nullopt); });
}

void frmTIDEPicture::addAxisLabels()
{
    const auto add = [this](const char* array, std::size_t index) {
        auto* label = new QLabel(this);
        label->setObjectName(memberName(array, static_cast<int>(index)));
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->hide();
        return label;
    };
    for (std::size_t i = 0; i < m_lblHeight.size(); ++i)
        m_lblHeight[i] = add("lblHeight", i);
    for (std::size_t i = 0; i < m_lblTime.size(); ++i)
        m_lblTime[i] = add("lblTime", i);
}

void frmTIDEPicture::showPrediction(const TidePrediction& prediction,
                                    const std::optional<NavFunc113::TideValues>& all)
{
    m_prediction = prediction;
    m_all = all;
    m_picture = DrawCurve(prediction);
    const CurveScale& scale = m_picture.scale;
    setUserScale({scale.left, scale.top, scale.right, scale.bottom});
    for (std::size_t i = 0; i < m_lblHeight.size(); ++i)
        m_lblHeight[i]->setText(QString::fromStdString(m_picture.lblHeight[i].caption));
    for (std::size_t i = 0; i < m_lblTime.size(); ++i)
        m_lblTime[i]->setText(QString::fromStdString(m_picture.lblTime[i].caption));
    placeLabels();
    readAt(m_hour);
}

void frmTIDEPicture::mark(const std::vector<NavFunc113::Hours>& times, std::optional<double> level)
{
    m_markedTimes = times;
    m_markedLevel = level;
    update();
}

void frmTIDEPicture::placeLabels()
{
    if (!m_prediction) return;
    const int gap = fontMetrics().horizontalAdvance(' ');
    for (std::size_t i = 0; i < m_lblHeight.size(); ++i) {
        QLabel* label = m_lblHeight[i];
        label->adjustSize();
        const QPointF at = toPixel(0, m_picture.lblHeight[i].top);
        label->move(static_cast<int>(at.x()) - gap - label->width(), qRound(at.y()));
        label->setVisible(isLabelled(m_picture.lblHeight[i].top));
    }
    for (std::size_t i = 0; i < m_lblTime.size(); ++i) {
        m_lblTime[i]->adjustSize();
        m_lblTime[i]->move(toPixel(m_picture.lblTime[i].left, m_picture.lblTime[i].top).toPoint());
        m_lblTime[i]->show();
    }
}

/// Levels outside the scale lie outside the picture; where great tides meet a small window only
/// every second or third one is written.
bool frmTIDEPicture::isLabelled(double level) const
{
    if (level > m_picture.scale.top) return false;
    const double unit = toPixel(0, 0).y() - toPixel(0, 1).y();
    const double every = std::ceil(fontMetrics().height() / std::max(unit, 1.0));
    return std::fmod(level, every) == 0;
}

void frmTIDEPicture::readAt(std::optional<double> hour)
{
    m_hour = hour;
    m_reading = m_prediction && hour ? readCurve(*m_prediction, *hour) : std::nullopt;
    placeReading();
    update();
}

void frmTIDEPicture::placeReading()
{
    m_lblReading->setVisible(m_reading.has_value());
    if (!m_reading) {
        m_lblReading->clear();
        return;
    }
    m_lblReading->setText(QString::fromStdString(m_reading->text));
    m_lblReading->adjustSize();
    // At the top, where the scale leaves room above the curve, and beside the line of the hour.
    const int gap = fontMetrics().height() / 2;
    const int x = qRound(toPixel(m_reading->point.x, 0).x());
    const bool fits = x + gap + m_lblReading->width() <= width();
    m_lblReading->move(fits ? x + gap : x - gap - m_lblReading->width(), gap);
}

void frmTIDEPicture::applyColours()
{
    const ColourScheme& colours = m_program.colours();
    QPalette palette = m_lblReading->palette();
    palette.setColor(QPalette::WindowText, colours.ink);
    palette.setColor(QPalette::Window, colours.paper);
    m_lblReading->setPalette(palette);
    for (QLabel* label : m_lblHeight)
        label->setPalette(palette);
    for (QLabel* label : m_lblTime)
        label->setPalette(palette);
    update();
}

QSize frmTIDEPicture::sizeHint() const
{
    return {fontMetrics().horizontalAdvance('0') * 100, fontMetrics().lineSpacing() * 22};
}

QSize frmTIDEPicture::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance('0') * 40, fontMetrics().lineSpacing() * 6};
}

void frmTIDEPicture::resizeEvent(QResizeEvent* event)
{
    PictureBox::resizeEvent(event);
    placeLabels();
    placeReading();
}

void frmTIDEPicture::keyPressEvent(QKeyEvent* event)
{
    const double hour = m_reading ? m_reading->point.x : 12;
    switch (event->key()) {
    case Qt::Key_Left:
        return readAt(std::max(0.0, hour - readingStep));
    case Qt::Key_Right:
        return readAt(std::min(24.0, hour + readingStep));
    case Qt::Key_Home:
        return readAt(0);
    case Qt::Key_End:
        return readAt(24);
    case Qt::Key_Escape:
        return readAt(std::nullopt);
    default:
        PictureBox::keyPressEvent(event);
    }
}

void frmTIDEPicture::focusInEvent(QFocusEvent* event)
{
    PictureBox::focusInEvent(event);
    update();
}

void frmTIDEPicture::focusOutEvent(QFocusEvent* event)
{
    PictureBox::focusOutEvent(event);
    update();
}

void frmTIDEPicture::drawForPaper(QPainter& painter, const QSize& size)
{
    drawOn(painter, size);
}

void frmTIDEPicture::draw(QPainter& painter)
{
    if (!isOnPaper()) {
        drawScreen(painter);
        return;
    }
    const ColourScheme colours = ColourScheme::day();
    painter.setFont(axisFont());
    drawGrid(painter, colours);
    drawFurtherLevels(painter, colours);
    drawAxisTexts(painter, colours);
    drawAll(painter, colours);
    drawCurve(painter, colours);
}

void frmTIDEPicture::drawScreen(QPainter& painter)
{
    const ColourScheme& colours = m_program.colours();
    painter.fillRect(rect(), colours.paper);
    if (!m_prediction) {
        painter.setPen(colours.echo);
        painter.drawText(rect(), Qt::AlignCenter,
                         QString::fromUtf8(emptyHint.data(), qsizetype(emptyHint.size())));
    } else {
        painter.setClipRegion(QRegion(rect()) - labelsOnGrid());
        drawGrid(painter, colours);
        painter.setClipping(false);
        drawFurtherLevels(painter, colours);
        drawAll(painter, colours);
        drawCurve(painter, colours);
        drawMarks(painter, colours);
    }
    if (m_reading) {
        const QPointF at = toPixel(m_reading->point.x, m_reading->point.y);
        painter.setPen(QPen(colours.marker, 1));
        painter.drawLine(QPointF(at.x(), 0), QPointF(at.x(), plotArea().bottom()));
        painter.setBrush(colours.marker);
        const double radius = fontMetrics().height() / 4.0;
        painter.drawEllipse(at, radius, radius);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

/// The hour labels stand on the grid, which leaves them out.
QRegion frmTIDEPicture::labelsOnGrid() const
{
    QRegion region;
    for (const QLabel* label : m_lblTime)
        region += label->geometry();
    return region;
}

QLineF frmTIDEPicture::pixels(const CurveLine& line) const
{
    return {toPixel(line.from.x, line.from.y), toPixel(line.to.x, line.to.y)};
}

void frmTIDEPicture::drawGrid(QPainter& painter, const ColourScheme& colours) const
{
    // Level and upright lines are crisper without smoothing, and much quicker.
    painter.setRenderHint(QPainter::Antialiasing, false);
    const auto dotted = [&](const std::vector<CurveLine>& lines, const QColor& colour) {
        painter.setPen(QPen(colour, 1, Qt::DotLine));
        for (const CurveLine& line : lines)
            painter.drawLine(pixels(line));
    };
    QColor fine = colours.grid;
    fine.setAlphaF(0.4f);
    dotted(m_picture.fineLevelLines, fine);
    dotted(m_picture.levelLines, colours.grid);
    dotted(m_picture.hourLines, colours.grid);
    painter.setPen(QPen(colours.grid, 1));
    painter.drawLine(plotArea().topLeft(), plotArea().bottomLeft());
    painter.setPen(QPen(colours.datum, 1));
    painter.drawLine(pixels(m_picture.zeroLine));
    painter.setRenderHint(QPainter::Antialiasing);
}

void frmTIDEPicture::drawFurtherLevels(QPainter& painter, const ColourScheme& colours) const
{
    painter.setPen(colours.ink);
    const double gap = fontMetrics().horizontalAdvance(' ');
    for (const HeightLabel& level : m_picture.furtherLevels) {
        if (!isLabelled(level.top)) continue;
        const QPointF at = toPixel(0, level.top);
        painter.drawText(QRectF(0, at.y(), at.x() - gap, fontMetrics().height()),
                         Qt::AlignRight | Qt::AlignTop, QString::fromStdString(level.caption));
    }
}

void frmTIDEPicture::drawAxisTexts(QPainter& painter, const ColourScheme& colours) const
{
    painter.setPen(colours.ink);
    const double gap = fontMetrics().horizontalAdvance(' ');
    const double line = fontMetrics().height();
    for (const HeightLabel& label : m_picture.lblHeight) {
        if (!isLabelled(label.top)) continue;
        const QPointF at = toPixel(0, label.top);
        painter.drawText(QRectF(0, at.y(), at.x() - gap, line), Qt::AlignRight | Qt::AlignTop,
                         QString::fromStdString(label.caption));
    }
    for (const HourLabel& label : m_picture.lblTime)
        painter.drawText(QRectF(toPixel(label.left, label.top), QSizeF(4 * line, line)),
                         Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(label.caption));
}

void frmTIDEPicture::drawCurve(QPainter& painter, const ColourScheme& colours) const
{
    painter.save();
    painter.setClipRect(plotArea());
    painter.setPen(QPen(colours.curve, 1));
    for (const CurveLine& tick : m_picture.ticks)
        painter.drawLine(pixels(tick));
    QPolygonF curve;
    for (const CurvePoint& point : m_picture.curve)
        curve << toPixel(point.x, point.y);
    painter.setPen(QPen(colours.curve, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(curve);
    painter.restore();
}

/// Thin and with its name, so that nobody takes it for the curve of the labels.
void frmTIDEPicture::drawAll(QPainter& painter, const ColourScheme& colours) const
{
    if (!m_all) return;
    painter.save();
    painter.setClipRect(plotArea());
    QPolygonF curve;
    for (std::size_t i = 0; i < m_all->size(); ++i)
        curve << toPixel(static_cast<double>(i) / 2, (*m_all)[i]);
    painter.setPen(QPen(colours.marker, 1));
    painter.drawPolyline(curve);
    const QRectF corner = plotArea().adjusted(0, 0, -painter.fontMetrics().height() / 2.0, 0);
    painter.drawText(corner, Qt::AlignRight | Qt::AlignTop, "thin: all constituents");
    painter.restore();
}

void frmTIDEPicture::drawMarks(QPainter& painter, const ColourScheme& colours) const
{
    if (!m_prediction || !m_prediction->day) return;
    painter.setPen(QPen(colours.marker, 1, Qt::DashLine));
    if (m_markedLevel &&
        *m_markedLevel<m_picture.scale.top&& * m_markedLevel> m_picture.scale.bottom)
        painter.drawLine(pixels({{0, *m_markedLevel}, {24, *m_markedLevel}}));
    painter.setPen(QPen(colours.marker, 2));
    painter.setBrush(Qt::NoBrush);
    const double radius = fontMetrics().height() / 4.0;
    for (const NavFunc113::Hours time : m_markedTimes)
        painter.drawEllipse(toPixel(time.value(), m_prediction->at(time)), radius, radius);
}

/// In pixels, so that a scaled painter scales the letters too.
QFont frmTIDEPicture::axisFont() const
{
    QFont sized = font();
    sized.setPixelSize(QFontInfo(font()).pixelSize());
    return sized;
}

} // namespace korvel
