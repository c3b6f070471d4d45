// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/DeviationCard.h"

#include "shell/machine/AsQString.h"
#include "shell/paper/PictureObjects.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr double letterPoints = 9;

/// A text of the card, as wide as its room. @return how high it is
double drawText(QPainter& painter, const QRectF& room, const QString& html)
{
    QTextDocument text;
    text.setDocumentMargin(0);
    text.documentLayout()->setPaintDevice(painter.device());
    QFont letters = text.defaultFont();
    letters.setPointSizeF(letterPoints);
    text.setDefaultFont(letters);
    text.setHtml(html);
    text.setTextWidth(room.width());
    painter.save();
    painter.translate(room.topLeft());
    text.drawContents(&painter);
    painter.restore();
    return text.size().height();
}

QString row(const QString& name, const QString& text)
{
    return "<tr><td>" + name + "&nbsp;&nbsp;&nbsp;</td><td>" + text.toHtmlEscaped() + "</td></tr>";
}

QString headOf(const DeviationCard& card, const DeviationCurve& curve, const CompassBook& book)
{
    Instant first = Instant::max(), last = Instant::min();
    int used = 0;
    for (const DeviationCurve::Point& point : curve.points) {
        if (point.isBlunder) continue;
        first = std::min(first, book[point.line].UTC);
        last = std::max(last, book[point.line].UTC);
        ++used;
    }
    const auto leftOut = curve.points.size() - static_cast<std::size_t>(used);
    QStringList coefficients;
    for (const std::string& each : curve.coefficients)
        coefficients << asQString(each);
    return "<h2>Deviation card, " + card.compass.toLower() + " compass</h2><table>" +
           row("Ship", card.ship.isEmpty() ? QString(30, '_') : card.ship) +
           row("Observations", QString("%1 lines of the compass book, %2 to %3 UTC%4")
                                   .arg(used)
                                   .arg(asQString(minuteText(first)), asQString(minuteText(last)),
                                        leftOut ? QString("; %1 left out").arg(leftOut) : "")) +
           row("Coefficients", coefficients.join(", ")) +
           row("Scatter", asQString(curve.scatter) + " of one line about the curve") +
           row("Card of", card.printed) + "</table>";
}

QString tableOf(const DeviationCurve& curve)
{
    QString rows = "<tr><th align='right'>Compass head</th><th align='right'>Deviation</th>"
                   "<th align='right'>Magnetic head</th></tr>";
    for (const auto& line : deviationCard(curve)) {
        rows += "<tr>";
        for (const std::string& cell : line)
            rows += "<td align='right'>" + asQString(cell) + "</td>";
        rows += "</tr>";
    }
    return "<table border='1' cellspacing='0' cellpadding='2' width='100%'>" + rows + "</table>";
}

} // namespace

void drawDeviationCard(QPainter& painter, const QRect& room, const DeviationCard& card,
                       const DeviationCurve& curve, const CompassBook& book)
{
    const double gap = room.width() / 40.0;
    const double head = drawText(painter, room, headOf(card, curve, book)) + gap;
    const QRectF left(room.left(), room.top() + head, (room.width() - gap) * 0.44, 0);
    const double table = drawText(painter, left, tableOf(curve));
    const double scale = (room.width() - gap) * 0.56 / card.picture.size.width();
    painter.save();
    painter.translate(left.right() + gap, left.top());
    // A recorded picture grows with the dots of its device by itself.
    const double dots = painter.device()->logicalDpiX() / screenDots;
    painter.scale(scale / dots, scale / dots);
    QPicture(card.picture.drawing).play(&painter);
    painter.restore();
    const double below = left.top() + std::max(table, scale * card.picture.size.height()) + 2 * gap;
    drawText(painter, {double(room.left()), below, double(room.width()), 0},
             "<p>Deviation by the heading of the compass itself, E when the compass reads too low. "
             "Magnetic head = compass head + deviation.</p>"
             "<p>Date ____________________ Signature ______________________________</p>");
}

} // namespace korvel
