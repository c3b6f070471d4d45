// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/FigureMenu.h"

#include <QTableView>

#include <functional>
#include <optional>
#include <span>

namespace korvel
{

/// A table of texts, as a book or a list has them: whole rows are chosen, hairlines lie between
/// them, nothing is typed into, one stop of the Tab key. Ctrl+C copies the chosen rows, tabs
/// between columns.
class TextTable : public QTableView, public StoresFigures
{
    Q_OBJECT

public:
    struct Column {
        const char* heading;
        const char* widest; ///< of its texts, as a rule
        bool isFigure = true;
    };
    using Text = std::function<QString(std::size_t row, std::size_t column)>;

    TextTable(QWidget* parent, const QString& name, const QString& words);

    /// @param columns outlive the table
    /// @param text    is asked for what is in sight
    void showRows(std::span<const Column> columns, std::size_t rows, Text text);
    std::size_t rows() const;

    std::optional<std::size_t> chosenRow() const;
    void chooseRow(std::size_t row);

    /// What its columns take, with the bar beside them.
    int widthOfColumns() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    class Rows;
    int widthOf(const Column& column) const;
    void giveWidths();
    void copy() const;

    Rows* m_rows;
};

} // namespace korvel
