// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/ResultLabel.h"
#include "shell/screen/ZoomSizes.h"

#include <vector>

namespace korvel
{

class WrappingRow;

/// The answers of a window side by side: each with its caption small above and its unit small
/// beside it. Where the room ends the next one stands below.
class AnswerStrip : public QWidget, public SizedByLetters
{
public:
    explicit AnswerStrip(QWidget* parent = nullptr);

    /// @param answer has room for whatever it shows, for nothing moves when it shows it
    /// @param below  what is said of it in a line of its own; nullptr: nothing
    void add(const QString& caption, ResultLabel* answer, const QString& unit,
             QWidget* below = nullptr);

    void sizeByLetters() final;

private:
    struct Unit {
        QLabel* words;
        const ResultLabel* answer;
    };
    WrappingRow* m_row;
    std::vector<Unit> m_units;
};

} // namespace korvel
