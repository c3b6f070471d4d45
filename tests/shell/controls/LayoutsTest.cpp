// SPDX-License-Identifier: MIT
#include "shell/layout/CellLayout.h"
#include "shell/layout/ColumnFold.h"
#include "shell/layout/DetailsFold.h"
#include "shell/layout/FigureText.h"
#include "shell/layout/FollowingScrollArea.h"
#include "shell/layout/Legend.h"
#include "shell/layout/Panels.h"
#include "shell/layout/PlotLettering.h"
#include "shell/layout/WrappingRow.h"
#include "shell/screen/ColourScheme.h"
#include "shell/screen/ZoomSizes.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <array>
#include <memory>
#include <sstream>

namespace korvel
{
namespace
{

using namespace korvel::testing;

/// A control of 40 pixels that is 20 high, or as its word says: a wide one takes what there is, one
/// with an end 60 pixels of it, a calm one nothing.
QWidget* controlOf(const std::string& word, QWidget* parent)
{
    auto* made = new QWidget(parent);
    made->setFixedHeight(word == "high" ? 30 : 20);
    made->setMinimumWidth(40);
    if (word == "wide" || word == "end")
        made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    made->setMaximumWidth(word == "end" ? 100 : word == "wide" || word == "calm" ? 1000 : 40);
    return made;
}

/// "a close b | c stretch hidden": what is added to a row.
void fill(WrappingRow& row, const std::string& controls, std::vector<QWidget*>& made)
{
    std::istringstream words(controls);
    std::vector<QWidget*> hidden;
    for (std::string word; words >> word;)
        if (word == "|")
            row.startGroup();
        else if (word == "close")
            row.stayClose();
        else if (word == "stretch")
            row.addStretch();
        else {
            made.push_back(controlOf(word, row.parentWidget()));
            row.addWidget(made.back());
            if (word == "hidden") hidden.push_back(made.back());
        }
    row.parentWidget()->show();
    for (QWidget* each : hidden)
        each->hide();
}

std::string placesOf(const std::vector<QWidget*>& controls)
{
    std::ostringstream places;
    for (const QWidget* each : controls)
        if (each->isVisible())
            places << each->x() << "," << each->y() << "," << each->width() << " ";
    return places.str().substr(0, places.str().size() - (places.str().empty() ? 0 : 1));
}

TEST(WrappingRow, placesItsControls)
{
    for (const Golden& row : golden("wrapping_rows")) {
        QWidget parent;
        auto* layout = new WrappingRow(&parent);
        layout->setGap(9);
        std::vector<QWidget*> controls;
        fill(*layout, row.text("controls"), controls);
        const int width = static_cast<int>(row.integer("width"));
        layout->setGeometry(QRect(0, 0, width, 100));
        EXPECT_EQ(placesOf(controls), row.text("places")) << row;
        EXPECT_EQ(layout->heightForWidth(width), row.integer("height")) << row;
        EXPECT_EQ(layout->sizeHint().width(), row.integer("all")) << row;
        EXPECT_EQ(layout->minimumSize().width(), 40) << row;
    }
}

TEST(WrappingRow, givesBackWhatIsTakenOut)
{
    QWidget parent;
    WrappingRow row(&parent);
    std::vector<QWidget*> controls;
    fill(row, "a b c", controls);
    EXPECT_EQ(row.takeAt(3), nullptr);
    EXPECT_EQ(row.takeAt(-1), nullptr);
    const std::unique_ptr<QLayoutItem> taken(row.takeAt(1));
    EXPECT_EQ(taken->widget(), controls[1]);
    EXPECT_EQ(row.count(), 2);
    EXPECT_EQ(row.itemAt(0)->widget(), controls[0]);
    EXPECT_EQ(row.itemAt(1)->widget(), controls[2]);
}

/// Four cells of a caption of 30 and a box of 50 pixels.
std::string placesOfCells(Qt::Orientation reading, bool oneColumn)
{
    QWidget parent;
    CellLayout cells(&parent, 2, reading);
    const int level = levelGap(cells), upright = uprightGap(cells);
    std::vector<QWidget*> boxes;
    for (int i = 0; i < 4; ++i) {
        auto* caption = new QWidget(&parent);
        caption->setFixedSize(30, 20);
        boxes.push_back(new QWidget(&parent));
        boxes.back()->setFixedSize(50, 20);
        cells.addCell({caption, boxes.back()});
    }
    parent.show();
    const int cell = 30 + level + 50;
    const int two = 2 * cell + 2 * level;
    EXPECT_EQ(cells.sizeHint(), QSize(two, 2 * 20 + upright));
    EXPECT_EQ(cells.minimumSize(), QSize(cell, 0));
    EXPECT_EQ(cells.takeAt(8), nullptr);
    EXPECT_EQ(cells.heightForWidth(two - 1), 4 * 20 + 3 * upright);
    cells.setGeometry(QRect(7, 3, oneColumn ? two - 1 : two, 200));
    std::string places;
    for (const QWidget* each : boxes) {
        const int x = each->x() - 7 - 30 - level;
        const int y = each->y() - 3;
        EXPECT_EQ(x % (cell + 2 * level), 0);
        EXPECT_EQ(y % (20 + upright), 0);
        places +=
            std::to_string(x / (cell + 2 * level)) + "," + std::to_string(y / (20 + upright)) + " ";
    }
    for (int item : {7, 6})
        delete cells.takeAt(item);
    EXPECT_EQ(cells.count(), 6);
    return places;
}

TEST(CellLayout, readsAsItIsTold)
{
    EXPECT_EQ(placesOfCells(Qt::Horizontal, false), "0,0 1,0 0,1 1,1 ");
    EXPECT_EQ(placesOfCells(Qt::Vertical, false), "0,0 0,1 1,0 1,1 ");
    for (const auto reading : {Qt::Horizontal, Qt::Vertical})
        EXPECT_EQ(placesOfCells(reading, true), "0,0 0,1 0,2 0,3 ");
}

TEST(ColumnFold, aRowGoesBelowEachOtherAndBackAndAColumnStays)
{
    for (const auto direction : {QBoxLayout::LeftToRight, QBoxLayout::TopToBottom}) {
        QWidget body;
        auto* groups = new QBoxLayout(direction, &body);
        groups->addWidget(new QLabel("entries"));
        groups->addWidget(new QLabel("answers"));
        ColumnFold columns(*groups);
        columns.fold(true);
        EXPECT_EQ(groups->direction(), QBoxLayout::TopToBottom);
        columns.fold(false);
        EXPECT_EQ(groups->direction(), direction);
    }
}

TEST(Legend, itsWidthHoldsWhatItDraws)
{
    QImage image(100, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    const QFontMetrics metrics(painter.font());
    FigureText figures;
    Legend legend(painter, figures, {0, 0}, Qt::black);
    legend.line(QPen(), "course");
    double last = 0;
    for (const char* words : {"departure", "waypoint", "arrival"})
        legend.mark([&](QPointF at) { last = at.x() + metrics.horizontalAdvance(words); }, words);
    const int wide = Legend::width(metrics, "coursedeparturewaypointarrival", 1, 3);
    EXPECT_LT(last, wide);
    // A gap of a line's height behind the last words, as behind the others.
    QImage drawn(wide + 100, 40, QImage::Format_Grayscale8);
    drawn.fill(Qt::white);
    QPainter again(&drawn);
    Legend whole(again, figures, {0, 20}, Qt::black);
    whole.line(QPen(Qt::white), "course");
    for (const char* words : {"departure", "waypoint", "arrival"})
        whole.mark([](QPointF) {}, words);
    again.end();
    int edge = 0;
    for (int x = 0; x < drawn.width(); ++x)
        for (int y = 0; y < drawn.height(); ++y)
            if (qGray(drawn.pixel(x, y)) < 128) edge = x;
    const double unit = QFontMetricsF(painter.font()).height();
    const double rounded = 10 * (metrics.height() - unit); // of the symbols and gaps of all words
    EXPECT_NEAR(wide - edge, unit + rounded, 0.3 * unit);
}

TEST(DetailsFold, isClosedUntilItIsOpened)
{
    QWidget window;
    auto* folded = new QWidget(&window);
    const DetailsFold closed(folded, &window);
    EXPECT_TRUE(folded->isHidden());
}

/// Groups of boxes 20 pixels high with a result below them, in an area of 120.
TEST(FollowingScrollArea, whatStandsTogetherIsSeenTogetherWhereItFits)
{
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins({});
    std::vector<QWidget*> groups;
    for (int boxes : {4, 4, 9}) {
        groups.push_back(new QWidget(content));
        auto* rows = new QVBoxLayout(groups.back());
        rows->setContentsMargins({});
        rows->setSpacing(0);
        for (int i = 0; i <= boxes; ++i) {
            QWidget* part = i < boxes ? new QLineEdit : new QWidget;
            part->setFixedHeight(20);
            rows->addWidget(part);
        }
        column->addWidget(groups.back());
    }
    FollowingScrollArea area(content);
    area.resize(200, 120);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    const auto isSeen = [&](const QWidget* part) {
        return area.viewport()->rect().contains(
            QRect(part->mapTo(area.viewport(), QPoint()), part->size()));
    };
    const auto boxOf = [&](std::size_t group, int box) {
        return groups[group]->findChildren<QLineEdit*>().at(box);
    };
    for (int box : {0, 3}) {
        boxOf(1, box)->setFocus();
        EXPECT_TRUE(isSeen(groups[1])) << box;
        boxOf(0, box)->setFocus();
        EXPECT_TRUE(isSeen(groups[0])) << box;
    }
    for (int box : {0, 4, 8}) {
        boxOf(2, box)->setFocus();
        EXPECT_TRUE(isSeen(boxOf(2, box))) << box << " of a group that does not fit";
    }
}

TEST(FollowingScrollArea, groupsGoBelowEachOtherWhereTheyHaveNoRoom)
{
    auto* content = new QWidget;
    auto* groups = new QHBoxLayout(content);
    groups->setContentsMargins({});
    groups->setSpacing(0);
    for (int i = 0; i < 2; ++i) {
        groups->addWidget(new QWidget);
        groups->itemAt(i)->widget()->setFixedSize(100, 30);
    }
    FollowingScrollArea area(content);
    area.foldColumns();
    const int bar = area.verticalScrollBar()->sizeHint().width();
    const auto isFoldedAt = [&](int width) {
        area.resize(width, 120);
        return groups->direction() == QBoxLayout::TopToBottom;
    };
    area.resize(400, 120);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    EXPECT_TRUE(isFoldedAt(199 + bar));
    EXPECT_FALSE(isFoldedAt(200 + bar));
    EXPECT_EQ(area.sizeHint(), QSize(200 + bar, 30)) << "nothing for a heading that is not there";
    // While a window measures itself what it has set stays, whatever the area is given.
    area.foldByHand(true);
    EXPECT_FALSE(isFoldedAt(150));
    area.hide();
    area.show();
    EXPECT_EQ(groups->direction(), QBoxLayout::LeftToRight);
    area.foldByHand(false);
    EXPECT_TRUE(isFoldedAt(151));
}

/// A line that points at the best place, and goes round it, is not in the way; one across it is.
TEST(PlotLettering, standsClearOfWhatCrossesIt)
{
    const auto placed = [](const QPolygonF& line) {
        PlotLettering places(QRectF(0, 0, 200, 200), 5);
        places.keepOff(line);
        return places.place(QSizeF(20, 10), {QPointF(100, 100)});
    };
    const QRectF best = placed({});
    const QPointF middle = best.center(), wide(40, 0), high(0, 40);
    EXPECT_EQ(
        placed({middle - wide, middle - wide / 2, middle - wide / 2 + high, middle + high + wide}),
        best);
    const QPointF corner = best.topLeft();
    EXPECT_EQ(placed({corner + QPointF(-10, 5), corner + QPointF(5, -10)}), best) << "past it";
    const QRectF other = placed({middle - wide, middle + wide});
    EXPECT_FALSE(other.contains(middle));
    EXPECT_TRUE(QRectF(0, 0, 200, 200).contains(other));
}

TEST(ZoomSizes, everythingGrowsWithTheLettersAndComesBackToThePixel)
{
    QWidget window;
    auto* grid = new QGridLayout(&window);
    auto* line = new QHBoxLayout;
    auto* gap = new QSpacerItem(31, 11, QSizePolicy::Fixed, QSizePolicy::Expanding);
    line->addSpacerItem(gap);
    grid->addLayout(line, 0, 0); // the first of its items
    auto* box = new QWidget;
    box->setMinimumSize(53, 23);
    box->setMaximumWidth(211);
    grid->addWidget(box, 1, 1);
    for (int i = 0; i < 2; ++i) {
        grid->setColumnMinimumWidth(i, 41 + 30 * i);
        grid->setRowMinimumHeight(i, 29 + 40 * i);
    }
    const auto sizes = [&] {
        return std::vector{
            box->minimumWidth(),         box->minimumHeight(),        box->maximumWidth(),
            grid->columnMinimumWidth(0), grid->columnMinimumWidth(1), grid->rowMinimumHeight(0),
            grid->rowMinimumHeight(1),   gap->sizeHint().width(),     gap->sizeHint().height()};
    };
    const std::vector<int> normal = sizes();
    ZoomSizes zoomed(100);
    const double letters = window.font().pointSizeF();
    const auto zoomTo = [&](int zoom) {
        QFont font = window.font();
        font.setPointSizeF(letters * zoom / 100);
        window.setFont(font);
        zoomed.follow(window, zoom);
        return sizes();
    };
    for (const int zoom : {200, 130, 300}) {
        const std::vector<int> grown = zoomTo(zoom);
        for (std::size_t i = 0; i < normal.size(); ++i)
            EXPECT_NEAR(grown[i], normal[i] * zoom / 100.0, 1 + normal[i] * zoom / 2500.0)
                << i << " at " << zoom;
        EXPECT_EQ(box->maximumHeight(), QWIDGETSIZE_MAX);
        EXPECT_EQ(gap->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        EXPECT_EQ(gap->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }
    EXPECT_EQ(zoomTo(100), normal);
    zoomTo(200);
    box->setMinimumWidth(160); // by somebody else, meanwhile
    EXPECT_NEAR(zoomTo(100)[0], 80, 3);
}

} // namespace
} // namespace korvel
