// SPDX-License-Identifier: MIT
#include "shell/controls/RowsView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace korvel
{
namespace
{

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
    TwoLines(const RowsView::Look& look, QObject* parent)
        : QStyledItemDelegate(parent), m_look(look)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const ColourScheme& colours = m_look.colours();
        const QPalette& palette = option.palette;
        painter->setFont(option.font);
        if (static_cast<std::size_t>(index.row()) == m_look.rowInHand())
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
        const bool isMarked = index.column() == 0 && index.data(RowsView::HasRemark).toBool();
        line(index.data().toString() + (isMarked ? " !" : ""),
             isMarked ? colours.notice : palette.text().color());
        line(index.data(RowsView::SecondLine).toString(), colours.echo);
    }

private:
    const RowsView::Look& m_look;
};

/// Names of the columns, quiet, over a hairline.
class QuietHeading : public QHeaderView
{
public:
    QuietHeading(const RowsView::Look& look, QWidget* parent)
        : QHeaderView(Qt::Horizontal, parent), m_look(look)
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
        painter->setPen(m_look.colours().echo);
        painter->drawText(room.adjusted(gap, 0, -gap, -gap), told(Qt::TextAlignmentRole).toInt(),
                          told(Qt::DisplayRole).toString());
        painter->setPen(mixed(palette().window().color(), palette().text().color(), 0.4));
        painter->drawLine(room.bottomLeft(), room.bottomRight());
    }

private:
    const RowsView::Look& m_look;
};

} // namespace

RowsView::RowsView(QAbstractItemModel& model, Look look, QWidget* parent)
    : QTableView(parent), m_look(std::move(look))
{
    setHorizontalHeader(new QuietHeading(m_look, this));
    setModel(&model);
    setItemDelegate(new TwoLines(m_look, this));
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
    if (m_look.stretched != Look::nothing)
        horizontalHeader()->setSectionResizeMode(m_look.stretched, QHeaderView::Stretch);
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { emit typed(index.column(), {}); });
    sizeByLetters();
}

void RowsView::showRowInHand()
{
    const int column = std::max(0, currentIndex().column());
    const QModelIndex now = model()->index(static_cast<int>(m_look.rowInHand()), column);
    if (currentIndex() != now) setCurrentIndex(now);
}

void RowsView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (!m_isFollowing && current.isValid() && current.row() != previous.row())
        emit rowChosen(static_cast<std::size_t>(current.row()));
}

void RowsView::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    const QString text = event->text();
    if (event->matches(QKeySequence::Paste)) return emit pasteWanted();
    if (event->matches(QKeySequence::Copy) && currentIndex().isValid())
        return QApplication::clipboard()->setText(rowToCopy(*this, currentIndex().row()) + '\n');
    if (isPlain && event->key() == Qt::Key_Delete) return emit deleteWanted();
    if (isPlain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        return emit typed(currentIndex().column(), {});
    if (isPlain && !text.isEmpty() && text[0].isPrint())
        return emit typed(currentIndex().column(), text);
    QTableView::keyPressEvent(event);
}

void RowsView::contextMenuEvent(QContextMenuEvent* event)
{
    openCellMenu(*this, *event, *this);
}

void RowsView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) sizeByLetters();
}

int RowsView::widthOf(int column) const
{
    const QFontMetrics metrics(font());
    const QString heading = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int ofCells = metrics.horizontalAdvance(m_look.widest[static_cast<std::size_t>(column)]);
    return std::max(metrics.size(0, heading).width(), ofCells) + metrics.averageCharWidth() + 2;
}

void RowsView::sizeByLetters()
{
    const QFontMetrics metrics(font());
    for (int column = 0; column < model()->columnCount(); ++column)
        horizontalHeader()->resizeSection(column, widthOf(column));
    verticalHeader()->setDefaultSectionSize(2 * metrics.lineSpacing() + metrics.height() / 3);
    updateGeometry();
}

int RowsView::heightFor(int rows) const
{
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize();
}

QSize RowsView::sizeHint() const
{
    int wide = verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < model()->columnCount(); ++column)
        wide += widthOf(column);
    return {wide, heightFor(m_look.usualRows)};
}

QSize RowsView::minimumSizeHint() const
{
    return {sizeHint().width() / m_look.leastPart, heightFor(fewestRows)};
}

int rowsWanted(const QKeyEvent& key)
{
    constexpr int page = 5;
    constexpr int all = 100000; // more than any list has
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::ControlModifier)
        return key.key() == Qt::Key_Home ? -all : key.key() == Qt::Key_End ? all : 0;
    if (modifiers) return 0;
    switch (key.key()) {
    case Qt::Key_Up:
        return -1;
    case Qt::Key_Down:
        return 1;
    case Qt::Key_PageUp:
        return -page;
    case Qt::Key_PageDown:
        return page;
    default:
        return 0;
    }
}

bool pastesRows(const QKeyEvent& key)
{
    return key.matches(QKeySequence::Paste) &&
           QApplication::clipboard()->text().trimmed().contains('\n');
}

} // namespace korvel
