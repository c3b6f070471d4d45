// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

#include <functional>

namespace korvel
{

/// "Details" with a triangle: what an officer needs once a voyage stands behind it. A paper tells
/// all of it, open or not.
class DetailsFold : public QToolButton
{
public:
    /// @param folded what stands behind it; it is hidden until open() shows it
    DetailsFold(QWidget* folded, QWidget* parent);

    /// Called when the officer has opened or closed it, so that the window remembers that.
    std::function<void(bool isOpen)> onFold;

    void open(bool isOpen);
    bool isOpen() const { return isChecked(); }

private:
    void show(bool isOpen);

    QWidget* m_folded;
};

} // namespace korvel
