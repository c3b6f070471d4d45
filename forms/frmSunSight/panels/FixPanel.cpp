// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/FixPanel.h"

#include "forms/frmSunSight/fix/FixResults.h"
#include "forms/frmSunSight/panels/PanelParts.h"
#include "forms/frmSunSight/panels/SightPicture.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace korvel
{

FixPanel::FixPanel(QWidget* parent)
    : QWidget(parent), m_picSunSight(new SightPicture(this)), m_lblSunFix(fixResults, this),
      m_lblSunCursor(cursorResults, this)
{
    auto* column = new QVBoxLayout(this);
    layOutBody(*column, Spacing::Dense);
    column->addWidget(layOutPlot(), 1);
    column->addWidget(layOutFix());
}

QWidget* FixPanel::layOutPlot()
{
    auto* part = new QWidget;
    auto* grid = new QGridLayout(part);
    layOutLines(*grid);
    grid->addWidget(m_picSunSight, 0, 0, 1, 4);
    grid->addWidget(new QLabel("At the pointer"), 1, 0);
    grid->addWidget(m_lblSunCursor[0], 1, 1);
    grid->addWidget(m_lblSunCursor[1], 1, 2);
    m_lblSunCursor[0]->setRoom("  00.-00'0N");
    m_lblSunCursor[1]->setRoom("000.-00'0E");
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(0, 1);
    connect(m_picSunSight, &PictureBox::pointed, this,
            [this](QPointF user, Qt::MouseButtons) { showCursor(user); });
    connect(m_picSunSight, &SightPicture::viewWanted, this, &FixPanel::showView);
    connect(m_picSunSight, &SightPicture::allWanted, this,
            [this] { showView(viewOfAll(m_picSunSight->plot())); });
    connect(m_picSunSight, &PictureBox::left, this, [this] { m_lblSunCursor.show({}); });
    return part;
}

QGroupBox* FixPanel::layOutFix()
{
    auto* group = new QGroupBox("Fix");
    auto* grid = gridOf(group, Spacing::Dense);
    auto* position = new QHBoxLayout;
    m_lblSunFix[0]->setRoom("00-.00'0N ");
    m_lblSunFix[1]->setRoom("000-.00'0W");
    position->addWidget(m_lblSunFix[0]);
    position->addWidget(m_lblSunFix[1]);
    position->addStretch(1);
    grid->addLayout(position, 0, 0);
    const std::array<int, 4> lines = {1, 2, 2, 3};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        makeSentence(m_lblSunFix[i + 2], lines[i]);
        grid->addWidget(m_lblSunFix[i + 2], static_cast<int>(i) + 1, 0);
    }
    return group;
}

std::string FixPanel::showFix(const SightFixResult& fix)
{
    m_fix = fix;
    const SightPlot plot = DrawLOP(fix, m_view);
    m_lblSunFix.show(fix);
    tellSentencesInTips(m_lblSunFix.all());
    m_picSunSight->showPlot(plot);
    m_picSunSight->setAccessibleDescription(
        asQString(fix.time + " " + fix.latitude + " " + fix.longitude + " " + fix.ellipseText));
    return plot.notice;
}

void FixPanel::showView(const PlotView& view)
{
    m_view = view;
    const SightPlot plot = DrawLOP(m_fix, m_view);
    m_picSunSight->showPlot(plot);
    if (onView) onView(plot.notice);
}

std::vector<PaperPicture> FixPanel::paperPictures()
{
    constexpr int side = 540; // pixels of a screen: the plot stays square
    if (!m_picSunSight->plot().middle) return {};
    return {makePaperPicture("Lines of position, 40 miles each way around the DR position",
                             QSize(side * 10 / 9, side),
                             [this](QPainter& painter, const QSize& size) {
                                 m_picSunSight->drawOn(painter, size, ColourScheme::day());
                             })};
}

void FixPanel::showCursor(QPointF user)
{
    m_lblSunCursor.show(cursorTexts(m_picSunSight->plot(), {user.x(), user.y()}));
}

} // namespace korvel
