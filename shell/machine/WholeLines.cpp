// SPDX-License-Identifier: MIT
#include "shell/machine/WholeLines.h"

#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>

namespace korvel
{

void keepLinesWhole(QMessageBox& box)
{
    if (auto* text = box.findChild<QLabel*>("qt_msgbox_label")) {
        const QFontMetrics metrics = text->fontMetrics();
        const int wanted = metrics.size(0, box.text()).width() + metrics.averageCharWidth();
        text->setMinimumWidth(std::min(wanted, box.screen()->availableSize().width() * 2 / 3));
    }
}

} // namespace korvel
