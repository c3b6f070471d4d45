// SPDX-License-Identifier: MIT
#include "shell/controls/NoticeLine.h"

#include "shell/controls/Boxes.h"
#include "shell/controls/WrappedText.h"

#include <QPaintEngine>

namespace korvel
{
namespace
{

constexpr int lineCount = 2;

} // namespace

NoticeLine::NoticeLine() : m_focus([this](const QWidget* now) { hintAt(now); })
{
    setObjectName("lblNotice");
    setAccessibleName("Notice");
    setFont(QFont()); // copied like a result, read like a caption
    setRoom({}, lineCount);
    setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void NoticeLine::hintAt(const QWidget* control)
{
    if (!control || control->window() != window() || control == this) return;
    QString what = control->accessibleName();
    if (auto* box = qobject_cast<const EntryBox*>(control); box && !box->limits().isEmpty())
        what += "; " + box->limits();
    const QString hint = what + "\nF1: the manual, at this place";
    if (what.isEmpty() || hint == m_hint) return;
    m_hint = hint;
    if (text().isEmpty()) update();
}

void NoticeLine::say(const QString& key, const QString& text)
{
    if (text.isEmpty())
        m_said.erase(key);
    else
        m_said[key] = text;
    QStringList all;
    for (const auto& [each, words] : m_said)
        all << words;
    const QString joined = all.join("  ");
    if (joined == this->text()) return;
    setText(joined);
    setToolTip(joined);
}

QStringList NoticeLine::onPaper() const
{
    QStringList said;
    for (const auto& [key, words] : m_said)
        if (!key.contains('~')) said << words;
    return said;
}

void NoticeLine::paintEvent(QPaintEvent* event)
{
    if (isBeingSelected()) {
        ResultLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    if (text().isEmpty()) {
        // A printed form has no box to type into.
        if (painter.paintEngine()->type() != QPaintEngine::Raster) return;
        painter.setPen(m_hintColour);
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignTop, m_hint);
        return;
    }
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), static_cast<int>(alignment()),
                     shownLines(text(), font(), size()).lines.join('\n'));
}

} // namespace korvel
