// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "app/working/WorkingPaper.h"
#include "shell/controls/PositionBox.h"

#include <array>
#include <span>

class QGridLayout;

namespace korvel
{

/// What is accepted, in words: "-90 to 90", "from 0"; empty when everything is.
QString limitsInWords(double low, double high);

/// The boxes of a window's table of fields: named, paired to positions, in one Enter order, from
/// the last back to the first.
class FieldBoxes
{
public:
    /// @param table  outlives this object
    /// @param parent of the boxes; they have no place yet, put them into layouts
    FieldBoxes(std::span<const Field> table, QWidget* parent);

    std::size_t size() const { return m_boxes.size(); }
    EntryBox* operator[](std::size_t field) const { return m_boxes.at(field); }
    PositionBox* position(std::size_t field) const;

    /// A run of boxes, for a calculation or a record.
    std::vector<EntryBox*> all() const { return m_boxes; }
    std::vector<EntryBox*> part(std::size_t first, std::size_t count) const;

    /// The texts of Count boxes from First on.
    template <std::size_t First, std::size_t Count>
    std::array<std::string, Count> texts() const
    {
        std::array<std::string, Count> result;
        for (std::size_t i = 0; i < Count; ++i)
            result[i] = m_boxes.at(First + i)->value();
        return result;
    }

    /// Empties a run of boxes; Ctrl+Z in one of them brings all of it back, while nothing else was
    /// typed.
    void clear(std::size_t first, std::size_t count);

    /// A field as it goes into a working paper: what was understood, and what was typed where that
    /// is another text.
    PaperFigure paperFigure(std::size_t field) const;
    /// The unit of a field behind a figure of a paper.
    std::string unitOnPaper(std::size_t field) const;

    /// A row of a grid: caption, box, then the unit or what was understood of a position.
    void addRow(QGridLayout* grid, int row, std::size_t field) const;

private:
    std::span<const Field> m_table;
    std::vector<EntryBox*> m_boxes;
};

} // namespace korvel
