// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/PrintRecord.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QStringList>
#include <QTextDocument>

#include <algorithm>

namespace korvel
{
namespace
{

// Points. Twelve columns stand side by side; below the smallest a print is hard to read.
constexpr double largestLetters = 6.75;
constexpr double smallestLetters = 5.5;

} // namespace

QString recordAsPage(const QString& record, const QString& printed)
{
    QString rows;
    const QStringList lines = record.split('\n', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString cell = i == 0 ? "th" : "td";
        rows += "<tr>";
        for (const QString& text : lines[i].split('\t'))
            rows += "<" + cell + ">" + text.toHtmlEscaped() + "</" + cell + ">";
        rows += "</tr>";
    }
    return "<h3>Position record</h3><p>Printed " + printed.toHtmlEscaped() +
           "</p><table border='1' cellspacing='0' cellpadding='2' width='100%'>" + rows +
           "</table><p>Rhumb lines; hours by UTC. Signature ______________________</p>";
}

void printRecord(QPainter& painter, const QRect& room, const QString& record,
                 const QString& printed)
{
    QTextDocument page;
    page.setDocumentMargin(0); // the paper has margins of its own
    page.documentLayout()->setPaintDevice(painter.device());
    // All 29 rows on one sheet: a record that is too high is set in smaller letters over the whole
    // width, where its remarks take fewer lines, before it is drawn smaller.
    for (double points = largestLetters; points >= smallestLetters; points -= 0.25) {
        QFont font = page.defaultFont();
        font.setPointSizeF(points);
        page.setDefaultFont(font);
        page.setHtml(recordAsPage(record, printed));
        page.setTextWidth(room.width());
        if (page.size().height() <= room.height()) break;
    }
    const double scale = std::min(1.0, room.height() / page.size().height());
    painter.scale(scale, scale);
    page.drawContents(&painter);
}

} // namespace korvel
