// SPDX-License-Identifier: MIT
#include "shell/paper/PageFrame.h"

#include "app/reading/Format.h"
#include "shell/machine/AsQString.h"

#include <QFontMetrics>
#include <QPainter>

namespace korvel
{
namespace
{

constexpr double frameLetters = 7.5; // points
constexpr const char* toBeWritten = "______________";
constexpr const char* minuteFormat = "yyyy-mm-dd hh:mm";

QString orLine(const std::string& text)
{
    return text.empty() ? QString(toBeWritten) : asQString(text);
}

QString timesText(const PaperHeading& heading)
{
    return asQString(Format(heading.SMT, minuteFormat) + " SMT, " +
                     Format(heading.UTC, minuteFormat) + " UTC");
}

} // namespace

QFont PageFrame::letters()
{
    QFont font;
    font.setPointSizeF(frameLetters);
    font.setStyleStrategy(QFont::PreferNoShaping); // a search for "fix" finds no ligature
    return font;
}

double PageFrame::headHeight(const QPainter& painter)
{
    return 2.0 * painter.fontMetrics().height();
}

double PageFrame::footHeight(const QPainter& painter)
{
    return 2.0 * painter.fontMetrics().height();
}

void PageFrame::drawHead(QPainter& painter, const QRectF& sheet) const
{
    painter.setFont(letters());
    painter.setPen(Qt::black);
    painter.drawText(sheet, Qt::AlignTop | Qt::AlignLeft,
                     "Ship " + orLine(heading.ship) + "    Voyage " + orLine(heading.voyage));
    painter.drawText(sheet, Qt::AlignTop | Qt::AlignRight, timesText(heading));
}

void PageFrame::drawFoot(QPainter& painter, const QRectF& sheet, int page, int of) const
{
    painter.setFont(letters());
    painter.setPen(Qt::black);
    painter.drawText(sheet, Qt::AlignBottom | Qt::AlignLeft,
                     title + "    " + asQString(heading.program));
    painter.drawText(sheet, Qt::AlignBottom | Qt::AlignRight,
                     QString("Page %1 of %2").arg(page).arg(of));
}

} // namespace korvel
