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
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
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

/// Words of 40 x 10 pixels for a point at 100, 100 of a plot that is 200 x 200; 5 pixels away.
TEST(PlotLettering, wordsStandClearAndBesideTheirPoint)
{
    const struct {
        const char* fault;
        QPolygonF line;
        QRectF mark;
        QPointF corner;
    } rows[] = {
        {"another place than the first that is free", {}, {}, {105, 85}},
        {"words on a line", {{120, 0}, {120, 97}}, {}, {105, 105}},
        {"a line seen at its ends alone", {{120, 0}, {120, 200}}, {}, {55, 85}},
        {"a line that passes the corner", {{100, 92}, {108, 99}}, {}, {105, 85}},
        {"a line that only lies beside", {{104, 0}, {104, 200}}, {}, {105, 85}},
        {"a later piece of a long line",
         {{0, 150},
          {10, 150},
          {20, 150},
          {30, 150},
          {40, 150},
          {50, 150},
          {60, 150},
          {70, 150},
          {80, 150},
          {120, 150},
          {120, 50},
          {120, 40}},
         {},
         {55, 85}},
        {"words nearer to another mark", {}, {130, 86, 4, 4}, {55, 85}},
        {"the mark of the point itself", {}, {97, 97, 6, 6}, {105, 85}},
    };
    const QRectF area(0, 0, 200, 200);
    for (const auto& [fault, line, mark, corner] : rows) {
        PlotLettering plot(area, 5);
        plot.keepOff(line);
        if (!mark.isNull()) plot.keepOff(mark);
        EXPECT_EQ(plot.place({40, 10}, {{100, 100}}).topLeft(), corner) << fault;
    }
    PlotLettering plot(area, 5);
    std::vector<QRectF> all;
    for (int i = 0; i < 12; ++i)
        all.push_back(plot.place({40, 10}, {{100, 100}}));
    for (const QPointF& point : {QPointF(199, 1), QPointF(0, 199), QPointF(1, 1)})
        all.push_back(plot.place({40, 10}, {point}));
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_TRUE(area.contains(all[i])) << i;
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_FALSE(all[i].intersects(all[k])) << i << " on " << k;
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

/// Columns of a grid that stay side by side, or come back to other places.
TEST(ColumnFold, aGridGoesBelowEachOtherAndBack)
{
    QWidget body;
    auto* grid = new QGridLayout(&body);
    QLabel *entries = new QLabel("entries"), *picture = new QLabel("picture"),
           *answers = new QLabel("answers");
    grid->addWidget(picture, 0, 1, 2, 1);
    grid->addWidget(entries, 0, 0);
    auto* line = new QHBoxLayout;
    line->addWidget(answers);
    grid->addLayout(line, 1, 0);
    ColumnFold columns(*grid);
    const auto places = [&] {
        std::ostringstream all;
        for (int i = 0; i < grid->count(); ++i) {
            int row = 0, column = 0, rows = 0, across = 0;
            grid->getItemPosition(i, &row, &column, &rows, &across);
            const auto* label = qobject_cast<QLabel*>(grid->itemAt(i)->widget());
            all << (label ? label->text().toStdString() : "answers") << " " << row << "," << column
                << " " << rows << "x" << across << "; ";
        }
        return all.str();
    };
    const int wide = columns.widthUnfolded();
    struct Requests : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            seen += event->type() == QEvent::LayoutRequest;
            return false;
        }
        int seen = 0;
    } requests;
    body.show();
    QCoreApplication::sendPostedEvents();
    body.installEventFilter(&requests);
    columns.fold(false);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(requests.seen, 0) << "at every size of the window";
    columns.fold(true);
    QCoreApplication::sendPostedEvents();
    EXPECT_GT(requests.seen, 0);
    EXPECT_EQ(places(), "entries 0,0 1x2; picture 1,0 1x2; answers 2,0 1x2; ");
    EXPECT_EQ(columns.widthUnfolded(), wide) << "what they would need side by side";
    columns.fold(false);
    EXPECT_EQ(places(), "entries 0,0 1x1; picture 0,1 2x1; answers 1,0 1x1; ");
}

TEST(DetailsFold, opensByTheOfficerAndByTheRecord)
{
    QWidget window;
    auto* details = new QWidget(&window);
    DetailsFold fold(details, &window);
    std::vector<bool> said;
    fold.onFold = [&](bool isOpen) { said.push_back(isOpen); };
    window.show();
    EXPECT_FALSE(details->isVisible());
    EXPECT_EQ(fold.arrowType(), Qt::RightArrow);
    fold.click();
    EXPECT_TRUE(details->isVisible());
    EXPECT_EQ(fold.arrowType(), Qt::DownArrow);
    fold.click();
    EXPECT_FALSE(details->isVisible());
    fold.open(true);
    EXPECT_TRUE(details->isVisible() && fold.isOpen());
    EXPECT_THAT(said, ::testing::ElementsAre(true, false)) << "the record is not told of itself";
}

/// Rows that lie apart in a dense window, or groups that run into each other.
TEST(Panels, gapsTellWhatBelongsTogether)
{
    const auto gapsOf = [](Spacing spacing) {
        QWidget body;
        QGridLayout grid(&body);
        QVBoxLayout column;
        layOutBody(grid, spacing);
        layOutBody(column, spacing);
        return std::array{grid.horizontalSpacing(), grid.verticalSpacing(), column.spacing()};
    };
    const auto dense = gapsOf(Spacing::Dense), frameless = gapsOf(Spacing::Frameless),
               groups = gapsOf(Spacing::Groups);
    EXPECT_LT(dense[1], dense[0]);
    EXPECT_EQ(dense[2], dense[1]);
    EXPECT_LT(dense[1], frameless[1]);
    for (int i = 0; i < 3; ++i)
        EXPECT_LT(frameless[i], groups[i]);
    const std::unique_ptr<QLabel> head(sectionHead("Results"));
    head->resize(200, head->sizeHint().height());
    const QImage image = head->grab().toImage();
    for (const int x : {0, 100, 199}) {
        EXPECT_EQ(image.pixelColor(x, image.height() - 1), head->palette().color(hairRole));
        EXPECT_NE(image.pixelColor(x, image.height() - 2), head->palette().color(hairRole));
    }
    EXPECT_TRUE(head->font().bold());
}

/// A heading that stays behind when its table scrolls sideways; a box that is seen in part.
TEST(FollowingScrollArea, scrollsSidewaysWithItsHeading)
{
    auto* content = new QWidget;
    auto* row = new QHBoxLayout(content);
    row->setContentsMargins({});
    std::vector<QLineEdit*> boxes;
    for (int i = 0; i < 8; ++i) {
        boxes.push_back(new QLineEdit);
        boxes.back()->setFixedWidth(90);
        row->addWidget(boxes.back());
    }
    FollowingScrollArea area(content);
    auto* heading = new QLabel("names of columns");
    area.setHeading(heading);
    area.resize(260, 120);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    boxes[4]->setFixedWidth(area.viewport()->width() - 6); // there is hardly room beside it
    QCoreApplication::sendPostedEvents();
    EXPECT_GE(heading->y(), 0) << "above the area";
    for (const std::size_t i : {7u, 4u, 0u, 4u, 2u}) {
        boxes[i]->setFocus();
        const QRect seen(boxes[i]->mapTo(area.viewport(), QPoint()), boxes[i]->size());
        EXPECT_TRUE(area.viewport()->rect().contains(seen)) << i;
        EXPECT_EQ(heading->x() - area.viewport()->x(), content->x()) << i;
        EXPECT_EQ(heading->width(), content->width());
        EXPECT_EQ(heading->geometry().bottom() + 1, area.viewport()->y());
        EXPECT_EQ(heading->mask().boundingRect().width(), area.viewport()->width());
        EXPECT_EQ(heading->mask().boundingRect().left(), -content->x());
    }
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

} // namespace
} // namespace korvel
