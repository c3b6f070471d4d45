// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/SightLines.h"

#include <QEvent>
#include <QScrollBar>
#include <QSignalBlocker>

namespace korvel
{
namespace
{

/// A round of sights is seen without scrolling.
constexpr int linesInSight = 8;

enum Part { Sight = Qt::UserRole, Outcome };

// The longest ones: that of a sight that does not fit is the one to be read.
constexpr const char* longestSight = "0000/00/00 00:00:00 UTC  Hs 00.-00'0  Ho 00.-00'0";
constexpr const char* longestResult = "000'.0 T  Zn 000.0  does not fit: -00.0 nm";

QString joined(const QString& sight, const QString& result, bool inTwo)
{
    if (result.isEmpty()) return sight;
    return sight + (inTwo ? "\n" : "  ") + result;
}

} // namespace

SightLines::SightLines(QWidget* parent) : QListWidget(parent)
{
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    measure();
}

void SightLines::measure()
{
    QListWidget sample;
    sample.setFont(font());
    const auto sizeOf = [&](bool inTwo) {
        sample.clear();
        auto* item = new QListWidgetItem(joined(longestSight, longestResult, inTwo), &sample);
        item->setCheckState(Qt::Checked);
        return QSize(sample.sizeHintForColumn(0), sample.sizeHintForRow(0)) +
               2 * QSize(frameWidth(), 0);
    };
    m_oneLine = sizeOf(false);
    m_twoLines = sizeOf(true);
    updateGeometry();
}

QSize SightLines::sizeHint() const
{
    return {m_oneLine.width(), minimumSizeHint().height()};
}

QSize SightLines::minimumSizeHint() const
{
    const int bar = verticalScrollBar()->sizeHint().width();
    return {m_twoLines.width() + bar, linesInSight * m_oneLine.height() + 2 * frameWidth()};
}

void SightLines::showSight(int row, const QString& sight, const QString& result, const QString& tip)
{
    QListWidgetItem& shown = *item(row);
    shown.setData(Sight, sight);
    shown.setData(Outcome, result);
    shown.setToolTip(tip);
    write(shown);
}

void SightLines::write(QListWidgetItem& item) const
{
    const QString text =
        joined(item.data(Sight).toString(), item.data(Outcome).toString(), m_inTwo);
    if (item.text() != text) item.setText(text);
}

void SightLines::changeEvent(QEvent* event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) measure();
}

void SightLines::resizeEvent(QResizeEvent* event)
{
    QListWidget::resizeEvent(event);
    const bool inTwo = width() < m_oneLine.width();
    if (inTwo == m_inTwo) return;
    m_inTwo = inTwo;
    const QSignalBlocker quiet(this);
    for (int row = 0; row < count(); ++row)
        write(*item(row));
    scheduleDelayedItemsLayout();
}

} // namespace korvel
