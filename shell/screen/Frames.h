// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace korvel
{

/// What stands around every window of the program: with the brightest title bars of a desktop no
/// window is dark, however dark it is itself.
class Frames : public QObject
{
    Q_OBJECT

public:
    explicit Frames(QObject* parent);

    /// @param dark the desktop is asked for dark frames
    /// @param own the windows do without its frames
    void apply(bool dark, bool own);

    /// Dresses a window before it is seen.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dress(QWidget& window) const;

    bool m_isDark = false;
    bool m_wereDark = false; ///< once at least: before that no desktop is asked for anything
    bool m_areOwn = false;
};

} // namespace korvel
