// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanInHand.h"
#include "shell/program/Program.h"
#include "shell/screen/ZoomSizes.h"

#include <QTableView>

namespace korvel
{

class PlanModel;

/// The rows of a plan, two lines each. It shows them and types nothing itself: a key in a column
/// goes to the box of the row in hand.
class PlanTable : public QTableView, public SizedByLetters
{
    Q_OBJECT

public:
    enum Column {
        Number,
        Waypoint,
        Position,
        Leg,
        Course,
        Distance,
        Speed,
        Arrival,
        Zone,
        Columns
    };

    PlanTable(Program& program, const PlanInHand& work, QWidget* parent = nullptr);

    /// Shows everything anew, the row in hand marked and in sight.
    void showPlan();

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
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    int heightFor(int rows) const;

    const PlanInHand& m_work;
    PlanModel* m_model;
    bool m_isFollowing = false; ///< the row in hand is being shown, nobody chooses
};

} // namespace korvel
