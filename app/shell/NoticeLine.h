// SPDX-License-Identifier: MIT
#pragma once

#include "app/shell/ResultLabel.h"

#include <map>

namespace korvel
{

/// The line at the foot of a window that says what is wrong with the figures above it, quiet when
/// empty. It keeps its two lines of room whatever it says, so that a notice never moves the boxes
/// under the officer's hand; what does not fit is in the tool tip.
class NoticeLine : public ResultLabel
{
public:
    NoticeLine();

    /// Says something under a key of the caller's; an empty text takes it back. What stands there
    /// is in the order of the keys.
    void say(const QString& key, const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int) const override { return sizeHint().height(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::map<QString, QString> m_said;
};

} // namespace korvel
