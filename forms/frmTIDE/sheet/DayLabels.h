// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/ResultLabel.h"

namespace korvel
{

/// A high or low water, "High 05:12   1.88 m", in columns: what it is small, time and figure in the
/// letters of the label, the unit small and quiet.
class WaterLabel : public ResultLabel
{
public:
    explicit WaterLabel(QWidget* parent);

    /// @param weight Answer for the waters that are asked for, otherwise Figure
    /// @param waters that stand in the room of four answers: more of them are written smaller
    void dress(Weight weight, std::size_t waters);
    /// The room of a day's waters, in pixels, however many there are.
    static int roomOfDay();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int nameWidth() const;

    bool m_hasRowOfAnswer = true; ///< whatever its letters are
};

/// What the water does at this moment, "Now 2005/03/14 00:00   0.60 m falling   all constituents
/// 0.61 m falling": the figure as an answer, when it is and the other way of working it out small
/// above and below.
class NowLabel : public ResultLabel
{
public:
    explicit NowLabel(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace korvel
