// SPDX-License-Identifier: MIT
#include "shell/layout/Panels.h"

#include "shell/screen/ColourScheme.h"

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QPainter>
#include <QStyle>

namespace korvel
{
namespace
{

constexpr int denseGap = 4;
constexpr int underHeadGap = 4;
constexpr int framelessGap = 16;
constexpr int groupGap = 24;
constexpr int columnGap = 8;
constexpr QMargins roomyMargins(0, 8, 0, 0);
constexpr QMargins denseMargins(0, 4, 0, 0);

/// As the style draws the head of a group.
class SectionHead : public QLabel
{
public:
    explicit SectionHead(const QString& text) : QLabel(text)
    {
        QFont bold = font();
        bold.setBold(true);
        setFont(bold);
        setContentsMargins(0, 0, 0, underHeadGap);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QLabel::paintEvent(event);
        QPainter(this).fillRect(0, height() - 1, width(), 1, palette().color(hairRole));
    }
};

int gapOf(const QLayout& layout, QStyle::PixelMetric which)
{
    const QWidget* widget = layout.parentWidget();
    return std::max(0, (widget ? widget->style() : QApplication::style())->pixelMetric(which));
}

} // namespace

void layOutBody(QLayout& layout, Spacing spacing)
{
    layout.setContentsMargins(0, 0, 0, 0);
    if (spacing == Spacing::Frameless) layout.setSpacing(framelessGap);
    if (spacing == Spacing::Groups) layout.setSpacing(groupGap);
    if (spacing != Spacing::Dense) return;
    if (auto* grid = qobject_cast<QGridLayout*>(&layout))
        grid->setVerticalSpacing(denseGap);
    else
        layout.setSpacing(denseGap);
}

QGridLayout* gridOf(QGroupBox* group, Spacing spacing)
{
    auto* grid = new QGridLayout(group);
    grid->setHorizontalSpacing(columnGap);
    grid->setContentsMargins(spacing == Spacing::Dense ? denseMargins : roomyMargins);
    if (spacing == Spacing::Dense) grid->setVerticalSpacing(0);
    return grid;
}

void layOutLines(QGridLayout& grid)
{
    grid.setContentsMargins(0, 0, 0, 0);
    grid.setVerticalSpacing(0);
}

QLabel* sectionHead(const QString& text)
{
    return new SectionHead(text);
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
