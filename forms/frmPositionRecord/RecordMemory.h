// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPositionRecord/PositionRecord.h"

#include <limits>

namespace korvel
{

/// The text of a figure as it was shown last: most figures are the same after a key.
class ShownFigure
{
public:
    /// @param write makes the text of a value that is another than before
    template <typename Write>
    const std::string& text(double value, Write write)
    {
        if (value != m_value) {
            m_text = write(value);
            m_value = value;
        }
        return m_text;
    }

private:
    double m_value = std::numeric_limits<double>::quiet_NaN(); // is no value, not even itself
    std::string m_text;
};

/// What the calculation of a record found last. A key changes one row of 29: the others are neither
/// read nor written out again.
struct RecordMemory {
    /// A row as it was read, and what that rests on.
    struct ReadBefore {
        PositionRow typed;
        double tdAbove{};
        bool isTypingTime = false;

        std::optional<RecordedFix> fix;
        PositionRowResult result;
        double tdBelow{};
    };
    struct Figures {
        ShownFigure course;
        ShownFigure distance;
        ShownFigure hours;
        ShownFigure speed;
        ShownFigure dayRun;
        ShownFigure dayHours;
    };
    std::array<std::optional<ReadBefore>, positionRowCount> rows;
    std::array<Figures, positionRowCount> figures;
};

} // namespace korvel
