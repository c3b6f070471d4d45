// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/FixPanel.h"

#include "forms/frmSunSight/fix/FixResults.h"
#include "forms/frmSunSight/panels/PanelParts.h"
#include "forms/frmSunSight/panels/SeriesPicture.h"
#include "forms/frmSunSight/panels/SightPicture.h"
#include "shell/controls/AnswerStrip.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr int leastSentences = 4; // lines that are seen

} // namespace

FixPanel::FixPanel(QWidget* parent)
    : QWidget(parent), m_fixPart(new QGroupBox("Fix", parent)), m_seriesPart(new QWidget(parent)),
      m_picSeries(new SeriesPicture(m_seriesPart)), m_picSunSight(new SightPicture(this)),
      m_lblSunFix(fixResults, this), m_lblSunCursor(cursorResults, this)
{
    layOutPlot();
    layOutFix();
    layOutSeries();
    copyFixWhole();
}

/// Half a position is of use to no other box and to no memory.
void FixPanel::copyFixWhole()
{
    for (const std::size_t half : {0U, 1U})
        m_lblSunFix[half]->copyText = [latitude = m_lblSunFix[0], longitude = m_lblSunFix[1]] {
            return plainFigure(latitude->text() + ' ' + longitude->text());
        };
}

void FixPanel::layOutPlot()
{
    auto* grid = new QGridLayout(this);
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
}

void FixPanel::layOutFix()
{
    auto* column = new QVBoxLayout(m_fixPart);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(sentences(), 1);
}

void FixPanel::addAnswers(AnswerStrip& strip) const
{
    m_lblSunFix.addAnswer(&strip, 0, "00-.00'0N ");
    m_lblSunFix.addAnswer(&strip, 1, "000-.00'0W");
}

void FixPanel::layOutSeries()
{
    auto* row = new QHBoxLayout(m_seriesPart);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_picSeries, 1);
    makeSentence(m_lblSunFix[7], 6);
    row->addWidget(m_lblSunFix[7], 1);
    m_seriesPart->hide();
}

/// How good the fix is, each sentence in as many lines as it takes. More of them than there is room
/// for scroll, and nothing around them moves.
QWidget* FixPanel::sentences()
{
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    layOutBody(*column);
    column->setSpacing(0);
    ResultLabel *time = m_lblSunFix[2], *ellipse = m_lblSunFix[3], *sigma = m_lblSunFix[4],
                *without = m_lblSunFix[5], *equal = m_lblSunFix[6];
    for (ResultLabel* sentence : {time, ellipse, without, equal, sigma}) {
        makeSentence(sentence, 1);
        column->addWidget(sentence);
        sentence->setWordWrap(true);
        sentence->setRoomByText();
        sentence->setMinimumWidth(1); // a long word does not widen it
        sentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    }
    column->addStretch(1);
    auto* area = m_sentences = new QScrollArea;
    area->setObjectName("areaSunFix");
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(part);
    // Kept free for the bar: no words lie below it, and none wrap anew when it comes.
    column->setContentsMargins(0, 0, area->verticalScrollBar()->sizeHint().width(), 0);
    area->setMinimumHeight(leastSentences * fontMetrics().lineSpacing());
    return area;
}

std::string FixPanel::showFix(const SightFixResult& fix)
{
    m_fix = fix;
    const SightPlot plot = DrawLOP(fix, m_view);
    m_lblSunFix.show(fix);
    const auto isSaid = [](const ResultLabel* sentence) { return !sentence->text().isEmpty(); };
    m_sentences->setVerticalScrollBarPolicy(std::ranges::any_of(m_lblSunFix.all(), isSaid)
                                                ? Qt::ScrollBarAsNeeded
                                                : Qt::ScrollBarAlwaysOff);
    m_picSunSight->showPlot(plot);
    m_picSeries->showSeries(fix.series);
    m_picSeries->setAccessibleDescription(asQString(fix.seriesText));
    m_seriesPart->setVisible(!fix.series.empty());
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
    std::vector<PaperPicture> pictures = {
        makePaperPicture("Lines of position, 40 miles each way around the DR position",
                         QSize(side * 10 / 9, side), [this](QPainter& painter, const QSize& size) {
                             m_picSunSight->drawOn(painter, size, ColourScheme::day());
                         })};
    if (!m_fix.series.empty())
        pictures.push_back(makePaperPicture(
            "Residuals of the shots in minutes, over the minutes from the mean of each series",
            QSize(side * 10 / 9, side / 3), [this](QPainter& painter, const QSize& size) {
                m_picSeries->drawOn(painter, size, ColourScheme::day());
            }));
    return pictures;
}

void FixPanel::showCursor(QPointF user)
{
    m_lblSunCursor.show(cursorTexts(m_picSunSight->plot(), {user.x(), user.y()}));
}

} // namespace korvel
