// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/SheetInHand.h"
#include "shell/controls/Boxes.h"

#include <QObject>

#include <functional>
#include <vector>

namespace korvel
{

/// Boxes that each hold a text of the sheet: what is typed goes into it, and what it holds is
/// shown.
class SheetBinding : public QObject
{
    Q_OBJECT

public:
    /// @param work outlives this object
    SheetBinding(SheetInHand& work, QObject* parent) : QObject(parent), m_work(work) {}

    using Text = std::function<std::string&(TankSheet&)>;
    void bind(EntryBox* box, Text text);

    /// Fills all boxes from the sheet; that is no typing.
    void fill();
    bool isFilling() const { return m_isFilling; }
    std::vector<EntryBox*> boxes() const;

signals:
    void undoWanted();
    void redoWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Bound {
        EntryBox* box;
        Text text;
    };
    SheetInHand& m_work;
    std::vector<Bound> m_bound;
    bool m_isFilling = false;
};

} // namespace korvel
