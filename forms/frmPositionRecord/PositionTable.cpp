// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/PositionTable.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace korvel
{
namespace
{

struct Column {
    const char* heading;
    const char* widest; ///< what has to fit
    enum Kind { Caption, Box, Result } kind;
};

constexpr Column columns[] = {
    {"No.", "29 !", Column::Caption},
    {"SMT of fix", "2000/00/00 00:00", Column::Box},
    {"TD h", "-00.0", Column::Box},
    {"Latitude", "-00.00000", Column::Box},
    {"", "00°00.000' N", Column::Caption},
    {"Longitude", "-000.00000", Column::Box},
    {"", "000°00.000' W", Column::Caption},
    {"UTC", "2000/00/00 00:00", Column::Result},
    {"Course", "<000.0>", Column::Result},
    {"Dist. nm", "00000.'0", Column::Result},
    {"Hours", "-0000.00", Column::Result},
    {"Knots", "000.00", Column::Result},
    {"Day's run", "0000.'0 in 000.0 h", Column::Result},
};

void showText(ResultLabel* label, const std::string& text)
{
    const QString shown = QString::fromStdString(text);
    if (label->text() != shown) label->setText(shown);
}

} // namespace

PositionTable::PositionTable()
{
    const QLineEdit box;
    const QFontMetrics metrics(font());
    const QFontMetrics resultMetrics(ResultLabel().font());
    for (const Column& column : columns) {
        const bool isResult = column.kind == Column::Result;
        const int text = (isResult ? resultMetrics : metrics).horizontalAdvance(column.widest);
        const int frame = column.kind == Column::Box ? metrics.horizontalAdvance('0') : 0;
        m_widths.push_back(text + frame);
    }
    m_height = box.sizeHint().height();
    m_spacing = metrics.horizontalAdvance("  ");

    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    std::vector<EntryBox*> order;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        m_rows[i] = makeRow(static_cast<int>(i));
        lines->addWidget(makeLine(m_rows[i]));
        for (EntryBox* each : m_rows[i].boxes())
            order.push_back(each);
    }
    setEntryOrder(order);
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    lines->addStretch();
}

PositionTable::Row PositionTable::makeRow(int index)
{
    const auto named = [&](auto* widget, const char* name, const QString& words) {
        widget->setObjectName(memberName(name, index));
        widget->setAccessibleName(QString("Row %1, ").arg(index + 1) + words);
        return widget;
    };
    Row row{};
    row.number = named(new QLabel(QString::number(index + 1), this), "lblRow", "number");
    row.satelliteSMT = named(new EntryBox(this), "txtSatelliteSMT",
                             "ship's mean time of the fix, 0930 or 14-0930 or 2024/5/14 0930");
    row.satelliteTD =
        named(new EntryBox(this), "txtSatelliteTD", "time difference, hours, east positive");
    row.latitude = named(new PositionBox(Axis::Latitude, this), "txtLat",
                         "latitude, degrees.minutes, north positive");
    row.longitude = named(new PositionBox(Axis::Longitude, this), "txtLong",
                          "longitude, degrees.minutes, east positive");
    PositionBox::pair(row.latitude, row.longitude);
    row.latitude->setBriefEcho();
    row.longitude->setBriefEcho();
    const auto label = [&](const char* name, const char* words) {
        return named(new ResultLabel(this), name, words);
    };
    row.utc = label("lblUTC", "UTC");
    row.course = label("lblCourse", "course to the next fix, degrees true");
    row.distance = label("lblDistance", "distance to the next fix, nautical miles");
    row.hours = label("lblHours", "hours to the next fix");
    row.speed = label("lblSpeed", "speed to the next fix, knots");
    row.dayRun = label("lblDayRun", "day's run, nautical miles");
    return row;
}

std::vector<QWidget*> PositionTable::controls(const Row& row) const
{
    return {row.number,
            row.satelliteSMT,
            row.satelliteTD,
            row.latitude,
            row.latitude->echo(),
            row.longitude,
            row.longitude->echo(),
            row.utc,
            row.course,
            row.distance,
            row.hours,
            row.speed,
            row.dayRun};
}

QWidget* PositionTable::makeLine(const Row& row) const
{
    // A widget a row: what is painted anew is looked up among the neighbours in the same widget.
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(m_spacing);
    std::size_t column = 0;
    for (QWidget* control : controls(row)) {
        control->setFixedSize(m_widths[column++], m_height);
        layout->addWidget(control);
    }
    layout->addStretch();
    for (QLabel* figure : {static_cast<QLabel*>(row.distance), static_cast<QLabel*>(row.hours),
                           static_cast<QLabel*>(row.speed), row.number})
        figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return line;
}

QWidget* PositionTable::makeHeading() const
{
    auto* heading = new QWidget;
    auto* line = new QHBoxLayout(heading);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(m_spacing);
    QFont smaller = font();
    smaller.setPointSizeF(smaller.pointSizeF() * 0.85);
    std::size_t at = 0;
    for (const Column& column : columns) {
        auto* label = new QLabel(column.heading);
        label->setFont(smaller);
        label->setFixedWidth(m_widths[at++]);
        line->addWidget(label);
    }
    line->addStretch();
    return heading;
}

PositionRows PositionTable::texts() const
{
    PositionRows rows;
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] = {m_rows[i].satelliteSMT->value(), m_rows[i].satelliteTD->value(),
                   m_rows[i].latitude->value(), m_rows[i].longitude->value()};
    return rows;
}

void PositionTable::fill(const PositionRows& rows)
{
    const auto put = [](EntryBox* box, const std::string& text) {
        const QString shown = QString::fromStdString(text);
        if (box->text() != shown) box->setText(shown);
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        put(m_rows[i].satelliteSMT, rows[i].satelliteSMT);
        put(m_rows[i].satelliteTD, rows[i].satelliteTD);
        put(m_rows[i].latitude, rows[i].latitude);
        put(m_rows[i].longitude, rows[i].longitude);
    }
}

void PositionTable::show(const PositionRecordResult& result)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const PositionRowResult& shown = result.rows[i];
        const Row& row = m_rows[i];
        showText(row.utc, shown.utc);
        showText(row.course, shown.course);
        showText(row.distance, shown.distance);
        showText(row.hours, shown.hours);
        showText(row.speed, shown.speed);
        showText(row.dayRun, shown.dayRun);
        const bool warned = !shown.remark.empty();
        row.number->setToolTip(QString::fromStdString(shown.remark));
        row.number->setAccessibleDescription(row.number->toolTip());
        if (warned == m_warned[i]) continue;
        m_warned[i] = warned;
        row.number->setText(QString::number(i + 1) + (warned ? " !" : ""));
        setWarningColour(m_warning);
    }
}

std::optional<std::size_t> PositionTable::rowOf(const QWidget* box) const
{
    for (std::size_t i = 0; box && i < m_rows.size(); ++i)
        if (std::ranges::count(m_rows[i].boxes(), box) > 0) return i;
    return std::nullopt;
}

void PositionTable::markRow(std::size_t index)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        QFont shown = font();
        shown.setBold(i == index);
        m_rows[i].number->setFont(shown);
    }
}

void PositionTable::setWarningColour(const QColor& colour)
{
    m_warning = colour;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        QPalette shown;
        if (m_warned[i]) shown.setColor(QPalette::WindowText, colour);
        m_rows[i].number->setPalette(shown);
    }
}

} // namespace korvel
