// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace korvel
{

/// The start-up window: a title picture, centred on the screen, until the main window is there.
class frmKORVELstart : public QWidget
{
public:
    frmKORVELstart();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace korvel
