// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/FigureMenu.h"
#include "shell/screen/ColourScheme.h"
#include "shell/screen/ZoomSizes.h"

#include <QTableView>

#include <functional>
#include <span>

namespace korvel
{

/// Rows of a list that may be long, two lines each, of which one is in hand. It shows them and
/// types nothing itself: a key in a column goes to the box of the row in hand.
class RowsView : public QTableView, public SizedByLetters, public StoresFigures
{
    Q_OBJECT

public:
    /// What a model tells beside the text of a cell.
    enum Role {
        SecondLine = secondLineRole,
        HasRemark /**< of a row, asked of its first column */
    };

    struct Look {
        std::span<const char* const>
            widest; ///< of each column what has to fit, first line or second
        static constexpr int nothing = -1;
        int stretched = nothing; ///< column that takes the room that is left
        int usualRows = 7;
        int leastPart = 2; ///< of its width: what is narrower scrolls sideways
        std::function<const ColourScheme&()> colours;
        std::function<std::size_t()> rowInHand;
    };
    /// @param model outlives this object
    RowsView(QAbstractItemModel& model, Look look, QWidget* parent = nullptr);

    /// Marks the row in hand and brings it in sight, after the model has followed.
    void showRowInHand();
    /// Says that what happens to the rows is the model following, nobody chooses.
    void follow(bool isFollowing) { m_isFollowing = isFollowing; }

    void sizeByLetters() final;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void rowChosen(std::size_t row);
    /// Keys were typed into a column, or Enter pressed (no text).
    void typed(int column, const QString& text);
    void deleteWanted();
    void pasteWanted();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    int widthOf(int column) const;
    int heightFor(int rows) const;

    Look m_look;
    bool m_isFollowing = false;
};

/// By how many rows a key pressed in a box of the row in hand wants to go, beyond the ends of any
/// list with Ctrl+Home and Ctrl+End; 0 for any other key.
int rowsWanted(const QKeyEvent& key);
/// Whether it pastes several lines, which belong to rows and into no box.
bool pastesRows(const QKeyEvent& key);

} // namespace korvel
