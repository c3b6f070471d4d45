// SPDX-License-Identifier: MIT
#include "shell/controls/Panels.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QStyle>

namespace korvel
{
namespace
{

constexpr int denseGap = 4;
constexpr int framelessGap = 18;
constexpr QMargins denseMargins(6, 1, 6, 1);

int gapOf(const QLayout& layout, QStyle::PixelMetric which)
{
    const QWidget* widget = layout.parentWidget();
    return widget ? std::max(0, widget->style()->pixelMetric(which)) : 0;
}

} // namespace

void layOutBody(QLayout& layout, Spacing spacing)
{
    layout.setContentsMargins(0, 0, 0, 0);
    if (spacing == Spacing::Frameless) layout.setSpacing(framelessGap);
    if (spacing != Spacing::Dense) return;
    if (auto* grid = qobject_cast<QGridLayout*>(&layout))
        grid->setVerticalSpacing(denseGap);
    else
        layout.setSpacing(denseGap);
}

QGridLayout* gridOf(QGroupBox* group, Spacing spacing)
{
    auto* grid = new QGridLayout(group);
    if (spacing == Spacing::Dense) {
        grid->setVerticalSpacing(0);
        grid->setContentsMargins(denseMargins);
    }
    return grid;
}

void layOutLines(QGridLayout& grid)
{
    grid.setContentsMargins(0, 0, 0, 0);
    grid.setVerticalSpacing(0);
}

QLabel* panelTitle(const QString& text)
{
    auto* title = new QLabel(text);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    return title;
}

QLabel* columnHead(const QString& text, Qt::Alignment side)
{
    auto* head = new QLabel(text);
    head->setAlignment(side | Qt::AlignBottom);
    return head;
}

int levelGap(const QLayout& layout)
{
    return gapOf(layout, QStyle::PM_LayoutHorizontalSpacing);
}

int uprightGap(const QLayout& layout)
{
    return gapOf(layout, QStyle::PM_LayoutVerticalSpacing);
}

} // namespace korvel
