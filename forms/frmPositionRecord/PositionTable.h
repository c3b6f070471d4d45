// SPDX-License-Identifier: MIT
#pragma once

#include "app/shell/PositionBox.h"
#include "forms/frmPositionRecord/PositionRecord.h"

#include <optional>

namespace korvel
{

/// The 29 rows of boxes and labels. Everything in them has a fixed size: a keystroke repaints the
/// labels that change and never lays the table out anew.
class PositionTable : public QWidget
{
public:
    PositionTable();

    struct Row {
        QLabel* number;
        EntryBox* satelliteSMT;
        EntryBox* satelliteTD;
        PositionBox* latitude;
        PositionBox* longitude;
        ResultLabel* utc;
        ResultLabel* course;
        ResultLabel* distance;
        ResultLabel* hours;
        ResultLabel* speed;
        ResultLabel* dayRun;

        std::array<EntryBox*, 4> boxes() const
        {
            return {satelliteSMT, satelliteTD, latitude, longitude};
        }
        std::array<ResultLabel*, 6> labels() const
        {
            return {utc, course, distance, hours, speed, dayRun};
        }
    };
    const Row& row(std::size_t index) const { return m_rows.at(index); }

    /// A line with the names of the columns and their units.
    QWidget* makeHeading() const;

    PositionRows texts() const;
    void fill(const PositionRows& rows);
    void show(const PositionRecordResult& result);

    /// Row of a box; nothing when it is none of the table's.
    std::optional<std::size_t> rowOf(const QWidget* box) const;
    /// Sets the row that the menus speak of apart.
    void markRow(std::size_t index);
    /// Colour of the number of a row with a remark.
    void setWarningColour(const QColor& colour);

private:
    Row makeRow(int index);
    QWidget* makeLine(const Row& row) const;
    std::vector<QWidget*> controls(const Row& row) const;

    std::array<Row, positionRowCount> m_rows;
    std::array<bool, positionRowCount> m_warned{};
    std::vector<int> m_widths; ///< of the columns
    int m_height;              ///< of a row
    int m_spacing;             ///< between columns
    QColor m_warning;
};

} // namespace korvel
