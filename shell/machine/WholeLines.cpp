// SPDX-License-Identifier: MIT
#include "shell/machine/WholeLines.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

namespace korvel
{

void keepLinesWhole(QMessageBox& box)
{
    auto* text = box.findChild<QLabel*>("qt_msgbox_label");
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    const int place = text && grid ? grid->indexOf(text) : -1;
    if (place < 0) return;
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(place, &row, &column, &rows, &columns);
    const QFontMetrics metrics = text->fontMetrics();
    const int wanted = metrics.size(0, box.text()).width() + metrics.averageCharWidth();
    grid->setColumnMinimumWidth(column,
                                std::min(wanted, box.screen()->availableSize().width() * 2 / 3));
}

} // namespace korvel
