// SPDX-License-Identifier: MIT
#include "shell/controls/NoticeLine.h"

#include "shell/controls/Boxes.h"
#include "shell/controls/NoticeSign.h"
#include "shell/layout/WrappedText.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/WidgetColours.h"

#include <QPaintEngine>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr int lineCount = 2;

} // namespace

NoticeLine::NoticeLine() : m_focus([this](const QWidget* now) { hintAt(now); })
{
    setObjectName("lblNotice");
    declare("Notice", {}, Weight::Remark);
    setFont(QFont()); // copied like a result, read like a caption
    setRoom({}, lineCount);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void NoticeLine::hintAt(const QWidget* control)
{
    if (!control || control->window() != window() || control == this) return;
    QString what = control->accessibleName();
    if (auto* box = qobject_cast<const EntryBox*>(control); box && !box->limits().isEmpty())
        what += "; " + box->limits();
    if (what.isEmpty() || what == m_hint) return;
    m_hint = what;
    if (text().isEmpty()) update();
}

void NoticeLine::setColours(const Colours& colours)
{
    m_colours = colours;
    setTextColour(this, colour());
}

QColor NoticeLine::colour() const
{
    if (!m_level) return m_colours.hint;
    if (*m_level == NoticeLevel::Done) return m_colours.done;
    return *m_level == NoticeLevel::Remark ? m_colours.remark : m_colours.fault;
}

void NoticeLine::say(const QString& key, const QString& text, NoticeLevel level)
{
    put(key, {text, level});
}

void NoticeLine::sayHalfRead(const EntryBox& box, const std::optional<NumberReading>& reading)
{
    const bool wasSaid = m_halfReadBoxes.erase(&box) > 0;
    if (!wasSaid && !reading) return; // as of nearly all boxes, at each key
    const QString key = "half read " + box.objectName();
    if (!reading) return put(key, {});
    m_halfReadBoxes.insert(&box);
    const QString remark = asQString(reading->remark);
    put(key, {box.words() + ": " + remark, NoticeLevel::Fault, remark, !reading->meant.empty()});
}

void NoticeLine::put(const QString& key, const Said& said)
{
    if (said.text.isEmpty()) {
        if (m_said.erase(key) == 0) return;
    } else {
        Said& before = m_said[key];
        if (before == said) return; // said again at each key
        before = said;
    }
    join();
}

void NoticeLine::join()
{
    const auto isSaidElsewhere = [this](const Said& said) {
        return !said.essence.isEmpty() && std::ranges::any_of(m_said, [&](const auto& other) {
            return other.second.essence.isEmpty() && other.second.text.contains(said.essence);
        });
    };
    QStringList all;
    m_lasting.clear();
    m_level.reset();
    m_key.clear();
    QString meant; // what the key writes
    for (const NoticeLevel level : {NoticeLevel::Fault, NoticeLevel::Remark, NoticeLevel::Done})
        for (const auto& [key, said] : m_said) {
            if (said.level != level) continue;
            m_level = std::max(m_level.value_or(level), level);
            if (said.hasKey) {
                m_key = "  F4 writes it.";
                meant = said.essence;
            }
            if (isSaidElsewhere(said)) continue;
            all << said.text;
            if (!key.contains('~')) m_lasting << said.text;
        }
    m_first = all.value(0);
    setText(all.join("  "));
    m_shown = text().insert(text().indexOf(meant) + meant.size(), m_key);
    setToolTip(this->text());
    setAccessibleDescription(m_level ? noticeWord(*m_level) + m_key : QString());
    setTextColour(this, colour());
}

QRect NoticeLine::roomOfText() const
{
    return rect().adjusted(fontMetrics().height(), 0, 0, 0);
}

void NoticeLine::paintEvent(QPaintEvent* event)
{
    if (isBeingSelected()) {
        ResultLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QRect room = roomOfText();
    const int lineHeight = fontMetrics().lineSpacing(), inset = lineHeight / 5;
    const QRectF sign(inset, inset, lineHeight - 2 * inset, lineHeight - 2 * inset);
    painter.setPen(colour());
    if (text().isEmpty()) {
        // A printed form has no box to type into.
        if (painter.paintEngine()->type() != QPaintEngine::Raster) return;
        drawNoticeSign(painter, sign, {});
        painter.drawText(room, Qt::AlignLeft | Qt::AlignTop, m_hint);
        return;
    }
    drawNoticeSign(painter, sign, m_level);
    painter.drawText(room, static_cast<int>(alignment()),
                     shownLines(m_shown, font(), room.size()).lines.join('\n'));
}

} // namespace korvel
