// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/FocusFollower.h"
#include "shell/controls/ResultLabel.h"

#include <map>

namespace korvel
{

/// The line at the foot of a window that says what is wrong with the figures above it, quiet when
/// empty. It keeps its two lines of room whatever it says, so that a notice never moves the boxes
/// under the officer's hand; what does not fit is in the tool tip. While there is nothing to say
/// the room tells what the box with the focus takes.
class NoticeLine : public ResultLabel
{
public:
    NoticeLine();

    /// Says something under a key of the caller's; an empty text takes it back. What stands there
    /// is in the order of the keys. A key with a '~' is of the work on the screen: no remark on the
    /// figures, so that it is on no paper.
    void say(const QString& key, const QString& text);

    /// The notice that stands first; empty when there is none.
    QString firstSaid() const { return m_said.empty() ? QString() : m_said.begin()->second; }

    /// What is to be said of the figures, a sentence or more for every key.
    QStringList onPaper() const;

    /// Tells of a control of the window, as of the one that comes to have the focus.
    void hintAt(const QWidget* control);

    /// What the box with the focus takes, as it stands here while there is nothing to say.
    const QString& hint() const { return m_hint; }
    void setHintColour(const QColor& colour) { m_hintColour = colour; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_hint; ///< two lines
    QColor m_hintColour;
    std::map<QString, QString> m_said;
    FocusFollower m_focus;
};

} // namespace korvel
