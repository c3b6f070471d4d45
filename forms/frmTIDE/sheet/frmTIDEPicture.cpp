// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/frmTIDEPicture.h"

#include "forms/frmTIDE/sheet/CurvePainter.h"
#include "shell/controls/Boxes.h"
#include "shell/machine/AsQString.h"

#include <QFontInfo>
#include <QKeyEvent>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr double readingStep = 1.0 / 6; // hours a key
constexpr std::string_view emptyHint = "Choose a place and a date";

} // namespace

frmTIDEPicture::frmTIDEPicture(QWidget* parent) : PictureBox(parent), m_lblReading(new QLabel(this))
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
                                    const std::optional<NavFunc113::TideValues>& all,
                                    const std::string& mark)
{
    m_prediction = prediction;
    m_mark = mark;
    m_all = all;
    m_picture = DrawCurve(prediction);
    const CurveScale& scale = m_picture.scale;
    setUserScale({scale.left, scale.top, scale.right, scale.bottom});
    for (std::size_t i = 0; i < m_lblHeight.size(); ++i)
        m_lblHeight[i]->setText(asQString(m_picture.lblHeight[i].caption));
    for (std::size_t i = 0; i < m_lblTime.size(); ++i)
        m_lblTime[i]->setText(asQString(m_picture.lblTime[i].caption));
    placeLabels();
    readAt(m_hour);
}

void frmTIDEPicture::mark(const std::vector<NavFunc113::Hours>& times, std::optional<double> level)
{
    m_markedTimes = times;
    m_markedLevel = level;
    update();
}

CurvePlace frmTIDEPicture::place() const
{
    return {[this](double hour, double value) { return toPixel(hour, value); }, plotArea(),
            letterMetrics()};
}

void frmTIDEPicture::placeLabels()
{
    if (!m_prediction) return;
    const CurvePlace here = place();
    const int gap = fontMetrics().horizontalAdvance(' ');
    for (std::size_t i = 0; i < m_lblHeight.size(); ++i) {
        QLabel* label = m_lblHeight[i];
        label->adjustSize();
        const QPointF at = toPixel(0, m_picture.lblHeight[i].top);
        label->move(static_cast<int>(at.x()) - gap - label->width(), qRound(at.y()));
        label->setVisible(isLevelLabelled(m_picture.lblHeight[i].top, m_picture, here));
    }
    for (std::size_t i = 0; i < m_lblTime.size(); ++i) {
        m_lblTime[i]->adjustSize();
        m_lblTime[i]->move(toPixel(m_picture.lblTime[i].left, m_picture.lblTime[i].top).toPoint());
        m_lblTime[i]->show();
    }
}

void frmTIDEPicture::readAt(std::optional<double> hour)
{
    m_hour = hour;
    m_reading = m_prediction && hour ? readCurve(*m_prediction, *hour, m_mark) : std::nullopt;
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
    m_lblReading->setText(asQString(m_reading->text));
    m_lblReading->adjustSize();
    // At the top, where the scale leaves room above the curve, and beside the line of the hour.
    const int gap = fontMetrics().height() / 2;
    const int x = qRound(toPixel(m_reading->point.x, 0).x());
    const bool fits = x + gap + m_lblReading->width() <= width();
    m_lblReading->move(fits ? x + gap : x - gap - m_lblReading->width(), gap);
}

void frmTIDEPicture::setColours(const ColourScheme& colours)
{
    PictureBox::setColours(colours);
    QPalette palette = m_lblReading->palette();
    palette.setColor(QPalette::WindowText, colours.ink);
    palette.setColor(QPalette::Window, colours.paper);
    m_lblReading->setPalette(palette);
    for (QLabel* label : m_lblHeight)
        label->setPalette(palette);
    for (QLabel* label : m_lblTime)
        label->setPalette(palette);
}

QSize frmTIDEPicture::sizeHint() const
{
    return {fontMetrics().horizontalAdvance('0') * 90, fontMetrics().lineSpacing() * 22};
}

QSize frmTIDEPicture::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance('0') * 28, fontMetrics().lineSpacing() * 15 / 2};
}

void frmTIDEPicture::placeMargins()
{
    const QFontMetrics metrics = letterMetrics();
    const int space = metrics.horizontalAdvance(' ');
    setPlotMargins(
        {metrics.horizontalAdvance("-10 kn.") + 2 * space, 0, 2 * space, metrics.height()});
    if (isOnPaper()) return; // the labels stand on the screen
    placeLabels();
    placeReading();
}

/// Escape takes a reading away; without one it closes the window, as everywhere.
bool frmTIDEPicture::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && m_reading &&
        static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    return PictureBox::event(event);
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

void frmTIDEPicture::drawForPaper(QPainter& painter, const QSize& size)
{
    drawOn(painter, size, ColourScheme::day());
}

void frmTIDEPicture::draw(QPainter& painter)
{
    if (!isOnPaper()) {
        drawScreen(painter);
        return;
    }
    const CurvePlace there = place();
    const CurvePainter curve(painter, m_picture, colours(), there);
    curve.drawGrid();
    curve.drawFurtherLevels();
    curve.drawAxisTexts();
    if (m_all) curve.drawAllConstituents(*m_all);
    curve.drawCurve();
    curve.drawMarks(marks(), m_markedLevel);
}

void frmTIDEPicture::drawScreen(QPainter& painter)
{
    painter.fillRect(rect(), colours().paper);
    if (!m_prediction) {
        painter.setPen(colours().echo);
        painter.drawText(rect(), Qt::AlignCenter,
                         QString::fromUtf8(emptyHint.data(), qsizetype(emptyHint.size())));
    } else {
        const CurvePlace here = place();
        const CurvePainter curve(painter, m_picture, colours(), here);
        painter.setClipRegion(QRegion(rect()) - labelsOnGrid());
        curve.drawGrid();
        painter.setClipping(false);
        curve.drawFurtherLevels();
        if (m_all) curve.drawAllConstituents(*m_all);
        curve.drawCurve();
        curve.drawMarks(marks(), m_markedLevel);
    }
    if (m_reading) {
        const QPointF at = toPixel(m_reading->point.x, m_reading->point.y);
        painter.setPen(QPen(colours().marker, 1));
        painter.drawLine(QPointF(at.x(), 0), QPointF(at.x(), plotArea().bottom()));
        painter.setBrush(colours().marker);
        const double radius = fontMetrics().height() / 4.0;
        painter.drawEllipse(at, radius, radius);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colours().palette.color(QPalette::Highlight), 2));
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

std::vector<CurvePoint> frmTIDEPicture::marks() const
{
    std::vector<CurvePoint> points;
    for (const NavFunc113::Hours time : m_markedTimes)
        points.push_back({time.value(), m_prediction->at(time)});
    return points;
}

} // namespace korvel
