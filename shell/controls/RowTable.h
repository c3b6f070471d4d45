// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/NumberField.h"
#include "app/reading/Result.h"
#include "shell/controls/PositionBox.h"
#include "shell/layout/FocusFollower.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/ZoomSizes.h"

#include <array>
#include <optional>
#include <span>
#include <variant>

class QKeyEvent;

namespace korvel
{

/// A column of a table of rows.
struct TableColumn {
    /// A column without boxes.
    enum class Label {
        RowNumber,
        Echo,
        Result,
        Correction ///< of the result before it, in small letters
    };

    const char* name = ""; ///< of its controls, a control array; the echo takes the name of its box
    const char* heading = "";
    const char* widest = "";                                 ///< what has to fit
    std::variant<FieldKind, Label> holds = Label::RowNumber; ///< boxes for what is typed, or labels
    /// What a box or result is and how it is written, or its unit; for assistive tools, remarks and
    /// copies, with %1 for the number of the row.
    const char* words = "";
    const char* measure = "";
    Qt::Alignment side = Qt::AlignLeft;
    bool stretches = false; ///< takes the room that is left
    /// The columns from here on come in a line of their own where the row does not fit into one.
    bool startsGroup = false;
    const NumberField* limits = nullptr; ///< what the calculations accept in its boxes
    Weight weight = Weight::Figure;      ///< of its results
};

/// A column of a table whose rows show results of this type.
template <typename Row>
struct RowColumn {
    using Text = typename Result<Row>::Text;

    TableColumn column;
    std::optional<Text> text = {}; ///< of a column of results
};

template <typename Row, std::size_t N>
constexpr std::array<TableColumn, N> columnsOf(const std::array<RowColumn<Row>, N>& table)
{
    std::array<TableColumn, N> columns{};
    for (std::size_t i = 0; i < N; ++i)
        columns[i] = table[i].column;
    return columns;
}

/// Rows of boxes and results under one heading. Everything in them has a fixed size: a keystroke
/// repaints the labels that change and never lays the table out anew. The row in hand stands out:
/// it alone has frames around its boxes, a tinted ground and its answers in the colour of answers.
/// Enter goes through the boxes row by row, Tab through the results between them too; Up, Down,
/// Page Up and Down, Ctrl+Home and Ctrl+End go to another row in the same column.
class RowTable : public QWidget, public SizedByLetters
{
public:
    /// @param columns outlives the table. An echo stands behind its position box, a longitude box
    ///                behind the latitude box that it makes a position with.
    RowTable(std::span<const TableColumn> columns, std::size_t rows);

    /// A line with the names of the columns, for above the table.
    QWidget* makeHeading() const;

    void sizeByLetters() final;

    std::size_t rows() const { return m_lines.size(); }
    EntryBox* box(std::size_t row, std::size_t column) const;
    PositionBox* position(std::size_t row, std::size_t column) const;
    ResultLabel* result(std::size_t row, std::size_t column) const;
    QLabel* number(std::size_t row) const;
    /// Rows that have nothing to tell leave no room behind. Those of boxes stay.
    void setRowSeen(std::size_t row, bool isSeen);

    /// Has copies in full call a row by what a result of it says, for its number tells nobody.
    void nameRowsBy(std::size_t column);

    /// The boxes row by row, in their Enter order.
    std::vector<EntryBox*> boxes() const;
    std::vector<EntryBox*> boxesOfRow(std::size_t row) const;
    std::vector<ResultLabel*> results() const;
    std::vector<ResultLabel*> resultsOfRow(std::size_t row) const;

    /// Shows the texts of a row, by the table that the columns come from.
    template <typename Row, std::size_t N>
    void showRow(std::size_t row, const std::array<RowColumn<Row>, N>& table, const Row& shown)
    {
        showRows(row, table, std::span(&shown, 1));
    }

    /// The same for rows one below another. What changes in a column is painted as one piece: label
    /// by label they would be dozens of pieces of a screen to be kept apart.
    template <typename Row, std::size_t N>
    void showRows(std::size_t first, const std::array<RowColumn<Row>, N>& table,
                  std::span<const Row> shown)
    {
        for (std::size_t i = 0; i < N; ++i) {
            if (!table[i].text) continue;
            QRect changed;
            for (std::size_t k = 0; k < shown.size(); ++k)
                if (const std::string* text = Result<Row>::textOf(*table[i].text, shown[k]))
                    changed |= changeText(first + k, i, asQString(*text));
            update(changed);
        }
        for (std::size_t k = 0; k < shown.size(); ++k)
            showWhetherFilled(first + k);
    }

    /// Row of a control; nothing when it is none of the table's.
    std::optional<std::size_t> rowOf(const QWidget* control) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Heading;
    class Ground;
    using Line = std::vector<QWidget*>; ///< by column

    Ground* ground(std::size_t row) const;
    QRect changeText(std::size_t row, std::size_t column, const QString& text);
    void showWhetherFilled(std::size_t row);
    void setInHand(std::size_t row);
    void dress(std::size_t row, bool inHand);
    std::optional<std::size_t> rowByKey(const QKeyEvent& key, std::size_t from) const;
    QWidget* makeControl(const TableColumn& column, std::size_t row, const Line& before);
    void layOut(const Line& line, QWidget& widget) const;
    void giveWidths(const Line& line, QWidget& widget) const;
    int widthOf(const TableColumn& column) const;

    std::span<const TableColumn> m_columns;
    std::vector<Line> m_lines;
    std::size_t m_inHand{}; ///< the row that has the focus, or had it last
    FocusFollower m_focus;
};

} // namespace korvel
