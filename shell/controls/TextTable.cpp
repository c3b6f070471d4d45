// SPDX-License-Identifier: MIT
#include "shell/controls/TextTable.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <utility>

namespace korvel
{
namespace
{

/// Draws a cell with a hairline at its foot.
class CellOverHairline : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem cell = option;
        cell.state &= ~QStyle::State_HasFocus; // the whole row is chosen, and quietly
        cell.palette.setColor(QPalette::Highlight, tint(option.palette));
        cell.palette.setColor(QPalette::HighlightedText, option.palette.color(QPalette::Text));
        QStyledItemDelegate::paint(painter, cell, index);
        painter->setPen(option.palette.color(QPalette::AlternateBase));
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }

private:
    /// Of the ground, with a sixth of the colour that chosen things have elsewhere.
    static QColor tint(const QPalette& palette)
    {
        const QColor ground = palette.color(QPalette::Base);
        const QColor chosen = palette.color(QPalette::Highlight);
        const auto mixed = [](float a, float b) { return a + (b - a) / 6; };
        return QColor::fromRgbF(mixed(ground.redF(), chosen.redF()),
                                mixed(ground.greenF(), chosen.greenF()),
                                mixed(ground.blueF(), chosen.blueF()));
    }
};

} // namespace

class TextTable::Rows : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(std::span<const Column> columns, std::size_t rows, Text text)
    {
        beginResetModel();
        m_columns = columns;
        m_count = rows;
        m_text = std::move(text);
        endResetModel();
    }
    std::span<const Column> columns() const { return m_columns; }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_count);
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }
    QVariant data(const QModelIndex& at, int role) const override
    {
        const auto column = static_cast<std::size_t>(at.column());
        if (role == Qt::TextAlignmentRole) return sideOf(m_columns[column]);
        if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
        const QString text = m_text(static_cast<std::size_t>(at.row()), column);
        return role == Qt::DisplayRole && !m_columns[column].isFigure ? beginning + text : text;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation == Qt::Vertical) return {};
        const Column& column = m_columns[static_cast<std::size_t>(section)];
        if (role == Qt::TextAlignmentRole) return sideOf(column);
        if (role != Qt::DisplayRole) return {};
        return column.isFigure ? QString(column.heading) : beginning + QString(column.heading);
    }

private:
    static QVariant sideOf(const Column& column)
    {
        return static_cast<int>((column.isFigure ? Qt::AlignRight : Qt::AlignLeft) |
                                Qt::AlignVCenter);
    }

    /// Keeps words apart from the figures before them.
    static inline const QString beginning = "  ";

    std::span<const Column> m_columns;
    std::size_t m_count = 0;
    Text m_text;
};

TextTable::TextTable(QWidget* parent, const QString& name, const QString& words)
    : QTableView(parent), m_rows(new Rows(this))
{
    setObjectName(name);
    setAccessibleName(words);
    setModel(m_rows);
    setItemDelegate(new CellOverHairline(this));
    setShowGrid(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setMinimumSectionSize(1);
    giveWidths();
}

void TextTable::showRows(std::span<const Column> columns, std::size_t rows, Text text)
{
    // Figures keep to the figures beside them.
    horizontalHeader()->setStretchLastSection(!columns.empty() && !columns.back().isFigure);
    m_rows->show(columns, rows, std::move(text));
    giveWidths();
}

std::size_t TextTable::rows() const
{
    return static_cast<std::size_t>(m_rows->rowCount());
}

std::optional<std::size_t> TextTable::chosenRow() const
{
    const QModelIndex at = currentIndex();
    if (!at.isValid()) return std::nullopt;
    return static_cast<std::size_t>(at.row());
}

void TextTable::chooseRow(std::size_t row)
{
    const QModelIndex at = m_rows->index(static_cast<int>(row), 0);
    setCurrentIndex(at);
    scrollTo(at);
}

int TextTable::widthOf(const Column& column) const
{
    const QFontMetrics metrics = fontMetrics();
    return metrics.height() + std::max(metrics.horizontalAdvance(column.heading),
                                       metrics.horizontalAdvance(column.widest));
}

void TextTable::giveWidths()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    for (int column = 0; const Column& each : m_rows->columns())
        setColumnWidth(column++, widthOf(each));
}

int TextTable::widthOfColumns() const
{
    int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (const Column& each : m_rows->columns())
        width += widthOf(each);
    return width;
}

QSize TextTable::sizeHint() const
{
    constexpr int linesWanted = 16;
    return {horizontalHeader()->length() + 2 * fontMetrics().height(),
            linesWanted * verticalHeader()->defaultSectionSize()};
}

QSize TextTable::minimumSizeHint() const
{
    constexpr int linesInSight = 6;
    return {16 * fontMetrics().height(), linesInSight * verticalHeader()->defaultSectionSize()};
}

void TextTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) giveWidths();
}

void TextTable::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else
        QTableView::keyPressEvent(event);
}

void TextTable::contextMenuEvent(QContextMenuEvent* event)
{
    openCellMenu(*this, *event, *this);
}

void TextTable::copy() const
{
    QString text;
    for (const QModelIndex& row : selectionModel()->selectedRows())
        text += rowToCopy(*this, row.row()) + '\n';
    if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

} // namespace korvel
