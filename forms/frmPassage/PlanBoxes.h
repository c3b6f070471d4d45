// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanInHand.h"
#include "shell/controls/FieldBoxes.h"

#include <QObject>

#include <array>

class QRadioButton;

namespace korvel
{

class WrappingRow;

/// The boxes of a plan: those above its rows, and those of the row in hand. What is typed goes into
/// the plan key by key.
class PlanBoxes : public QObject
{
    Q_OBJECT

public:
    /// @param work outlives this object
    PlanBoxes(PlanInHand& work, const FieldBoxes& head, const FieldBoxes& row, QObject* parent);

    QWidget* layOutHead() const;
    QWidget* layOutRow() const;

    /// Fills all boxes from the plan; that is no typing.
    void fill();
    bool isFilling() const { return m_isFilling; }

    std::vector<EntryBox*> all() const;
    EntryBox* box(std::size_t field) const { return m_row[field]; }
    /// Gives the keyboard to the box of a column of the table, and types into it.
    void typeInto(int column, const QString& text);

signals:
    /// A choice was made, which no box tells.
    void chosen();
    /// A key in a box goes to another row. @param by rows down
    void rowWanted(int by);
    /// Enter in the last box of a row.
    void rowEnded();
    void undoWanted();
    void redoWanted();
    /// Several lines were pasted into a box of the row.
    void pasteWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Switch = std::vector<QRadioButton*>;
    Switch makeSwitch(const char* name, std::initializer_list<const char*> captions,
                      const char* accessibleName, void (PlanBoxes::*typed)(const QString&));
    void layOutWish(WrappingRow& row) const;
    static QWidget* layOutSwitch(const Switch& options);
    void connectBoxes();
    void typeHead(const QString& box);
    void typeRow(const QString& box);
    void showWhatCounts();
    bool isBoxOfRow(const QObject* watched) const;

    PlanInHand& m_work;
    FieldBoxes m_head;
    FieldBoxes m_row;
    Switch m_optGiven;
    Switch m_optClock;
    Switch m_optLeg;
    Switch m_optStepUnit;
    bool m_isFilling = false;
};

} // namespace korvel
