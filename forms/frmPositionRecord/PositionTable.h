// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPositionRecord/PositionRecord.h"
#include "shell/controls/RowTable.h"

#include <array>

namespace korvel
{

/// The 29 rows of boxes and labels.
class PositionTable : public RowTable
{
public:
    PositionTable();

    struct Row {
        EntryBox* satelliteSMT;
        EntryBox* satelliteTD;
        PositionBox* latitude;
        PositionBox* longitude;
    };
    Row row(std::size_t index) const;

    PositionRows texts() const;
    void fill(const PositionRows& rows);
    void show(const PositionRecordResult& record);

    /// Colour of the number of a row with a remark.
    void setWarningColour(const QColor& colour);

private:
    std::array<PositionRowResult, positionRowCount> m_shown; ///< what stands in the labels
    std::array<bool, positionRowCount> m_warned{};
    QColor m_warning;
};

} // namespace korvel
