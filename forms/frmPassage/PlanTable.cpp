// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanTable.h"

#include "forms/frmPassage/PlanModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace korvel
{
namespace
{

constexpr std::array widest{
    "000 !",   "Long Beach pilot", "000°00.0' W",          "composite ", "000.0",
    "00000.0", "00 d 00 h 00 m",   "Wed 2038/08/04 20:38", "17 h back"};
static_assert(widest.size() == PlanTable::Columns);

constexpr int usualRows = 7;
constexpr int fewestRows = 3;

QColor mixed(const QColor& one, const QColor& other, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()),
            mix(one.blue(), other.blue())};
}

/// Two lines of a cell, the second one quiet, over a hairline.
class TwoLines : public QStyledItemDelegate
{
public:
    TwoLines(Program& program, const PlanInHand& work, QObject* parent)
        : QStyledItemDelegate(parent), m_program(program), m_work(work)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const ColourScheme& colours = m_program.colours();
        const QPalette& palette = option.palette;
        painter->setFont(option.font);
        if (static_cast<std::size_t>(index.row()) == m_work.row())
            painter->fillRect(option.rect,
                              mixed(palette.base().color(), palette.highlight().color(), 0.16));
        painter->setPen(mixed(palette.base().color(), palette.text().color(), 0.2));
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        const int gap = option.fontMetrics.averageCharWidth() / 2;
        const int high = option.fontMetrics.lineSpacing();
        QRect room = option.rect.adjusted(gap, (option.rect.height() - 2 * high) / 2, -gap, 0);
        room.setHeight(high);
        const auto line = [&](const QString& text, const QColor& colour) {
            painter->setPen(colour);
            painter->drawText(room, index.data(Qt::TextAlignmentRole).toInt() | Qt::AlignVCenter,
                              option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
            room.translate(0, high);
        };
        const bool isMarked = index.column() == 0 && index.data(PlanModel::HasRemark).toBool();
        line(index.data().toString() + (isMarked ? " !" : ""),
             isMarked ? colours.notice : palette.text().color());
        line(index.data(PlanModel::SecondLine).toString(), colours.echo);
    }

private:
    Program& m_program;
    const PlanInHand& m_work;
};

/// Names of the columns, quiet, over a hairline.
class QuietHeading : public QHeaderView
{
public:
    QuietHeading(Program& program, QWidget* parent)
        : QHeaderView(Qt::Horizontal, parent), m_program(program)
    {
    }

protected:
    void paintSection(QPainter* painter, const QRect& room, int section) const override
    {
        const auto told = [&](int role) {
            return model()->headerData(section, Qt::Horizontal, role);
        };
        const int gap = fontMetrics().averageCharWidth() / 2;
        painter->fillRect(room, palette().window());
        painter->setPen(m_program.colours().echo);
        painter->drawText(room.adjusted(gap, 0, -gap, -gap), told(Qt::TextAlignmentRole).toInt(),
                          told(Qt::DisplayRole).toString());
        painter->setPen(mixed(palette().window().color(), palette().text().color(), 0.4));
        painter->drawLine(room.bottomLeft(), room.bottomRight());
    }

private:
    Program& m_program;
};

} // namespace

PlanTable::PlanTable(Program& program, const PlanInHand& work, QWidget* parent)
    : QTableView(parent), m_work(work), m_model(new PlanModel(work, this))
{
    setObjectName("tblPlan");
    setAccessibleName("Rows of the plan; a key goes to the box of its column");
    setHorizontalHeader(new QuietHeading(program, this));
    setModel(m_model);
    setItemDelegate(new TwoLines(program, work, this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setFrameShape(NoFrame);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    verticalHeader()->hide();
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(1);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()})
        header->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(Waypoint, QHeaderView::Stretch);
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { emit typed(index.column(), {}); });
    sizeByLetters();
}

void PlanTable::showPlan()
{
    m_isFollowing = true;
    m_model->follow();
    const int column = std::max(0, currentIndex().column());
    const QModelIndex now = m_model->index(static_cast<int>(m_work.row()), column);
    if (currentIndex() != now) setCurrentIndex(now);
    m_isFollowing = false;
}

void PlanTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (!m_isFollowing && current.isValid() && current.row() != previous.row())
        emit rowChosen(static_cast<std::size_t>(current.row()));
}

void PlanTable::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    const QString text = event->text();
    if (event->matches(QKeySequence::Paste)) return emit pasteWanted();
    if (isPlain && event->key() == Qt::Key_Delete) return emit deleteWanted();
    if (isPlain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        return emit typed(currentIndex().column(), {});
    if (isPlain && !text.isEmpty() && text[0].isPrint())
        return emit typed(currentIndex().column(), text);
    QTableView::keyPressEvent(event);
}

void PlanTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) sizeByLetters();
}

void PlanTable::sizeByLetters()
{
    const QFontMetrics metrics(font());
    const int gap = metrics.averageCharWidth();
    for (int column = 0; column < Columns; ++column) {
        const QString heading =
            m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int ofHeading = metrics.size(0, heading).width();
        const int ofCells = metrics.horizontalAdvance(widest[static_cast<std::size_t>(column)]);
        horizontalHeader()->resizeSection(column, std::max(ofHeading, ofCells) + gap + 2);
    }
    verticalHeader()->setDefaultSectionSize(2 * metrics.lineSpacing() + metrics.height() / 3);
    updateGeometry();
}

int PlanTable::heightFor(int rows) const
{
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize();
}

QSize PlanTable::sizeHint() const
{
    int wide = verticalScrollBar()->sizeHint().width();
    const QFontMetrics metrics(font());
    for (int column = 0; column < Columns; ++column)
        wide += column == Waypoint
                    ? metrics.horizontalAdvance(widest[Waypoint]) + metrics.averageCharWidth() + 2
                    : horizontalHeader()->sectionSize(column);
    return {wide, heightFor(usualRows)};
}

QSize PlanTable::minimumSizeHint() const
{
    return {sizeHint().width() / 2, heightFor(fewestRows)};
}

} // namespace korvel
