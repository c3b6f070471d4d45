// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

#include <functional>

namespace korvel
{

/// Tells its owner where the focus goes, for as long as the owner stands whole: as a member it ends
/// before the owner's controls do, whose end moves the focus once more.
class FocusFollower
{
public:
    /// @param moved called with the control that has the focus, nullptr for none of the program's
    explicit FocusFollower(std::function<void(QWidget*)> moved)
        : m_connection(
              QObject::connect(qApp, &QApplication::focusChanged,
                               [moved = std::move(moved)](QWidget*, QWidget* now) { moved(now); }))
    {
    }
    ~FocusFollower() { QObject::disconnect(m_connection); }
    FocusFollower(const FocusFollower&) = delete;
    FocusFollower& operator=(const FocusFollower&) = delete;

private:
    QMetaObject::Connection m_connection;
};

} // namespace korvel
