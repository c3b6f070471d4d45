// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/PrintRecord.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QStringList>
#include <QTextDocument>

#include <algorithm>

namespace korvel
{

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
    return "<h3>Position record</h3><p>Ship ______________________ &nbsp; Voyage ____________ "
           "&nbsp; Printed " +
           printed.toHtmlEscaped() +
           "</p><table border='1' cellspacing='0' cellpadding='2' width='100%'>" + rows +
           "</table><p>Rhumb lines; hours by UTC. Signature ______________________</p>";
}

void printRecord(QPainter& painter, const QRect& room, const QString& record,
                 const QString& printed)
{
    QTextDocument page;
    QFont font = page.defaultFont();
    font.setPointSizeF(font.pointSizeF() * 0.75); // twelve columns side by side
    page.setDefaultFont(font);
    page.documentLayout()->setPaintDevice(painter.device());
    page.setHtml(recordAsPage(record, printed));
    page.setTextWidth(room.width());
    // All 29 rows on one sheet: a record that is a little too high is drawn smaller.
    const double scale = std::min(1.0, room.height() / page.size().height());
    painter.scale(scale, scale);
    page.drawContents(&painter);
}

} // namespace korvel
