// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "shell/program/PlanExchange.h"

namespace korvel
{

class Program;

/// The menus of a calculator window: its own, those of the memories, the links to other windows.
/// Indices of entries count from 0 in the order of the calls.
class WindowMenus
{
public:
    WindowMenus(Program& program, QMainWindow& window);

    QMenu* add(const QString& caption, const QString& name);
    QAction* addEntry(QMenu* menu, const QString& array, int index, const QString& caption,
                      std::function<void()> action);

    using Text = std::function<std::string()>;
    QAction* addStoreSingle(const QString& caption, Text value);
    QAction* addStorePosition(const QString& caption, Text latitude, Text longitude);
    void addRecallSingle(const QString& caption, QLineEdit* box);
    void addRecallPosition(const QString& caption, QLineEdit* latitude, QLineEdit* longitude);

    /// The same for boxes that are chosen when the entry is: those of the row with the focus.
    using PositionBoxes = std::function<std::pair<QLineEdit*, QLineEdit*>()>;
    void addRecallPosition(const QString& caption, PositionBoxes boxes);

    /// Offers a figure of the ship now for a box, behind the memories; her position is offered for
    /// every pair of boxes that takes the Position Memo.
    enum class ShipFigure { Course, Speed, Zone };
    void addShipNow(ShipFigure figure, const QString& caption, QLineEdit* box);
    /// Offers the leg in hand of the passage plan.
    void addPlanLeg(const QString& caption, std::function<void(const PlanExchange::Leg&)> take);

    /// What the recall entries do: ask and fill the boxes on Yes.
    void recallSingle(QLineEdit* box);
    void recallPosition(QLineEdit* latitude, QLineEdit* longitude);

    /// A menu array that opens the other windows of the program.
    void addLinks(const QString& array);

    /// The last menu of every window: what it has in common with all others, and the links where
    /// the window has no menu of them.
    void addView();

private:
    /// A figure of the ship now, where it goes, and its entry.
    struct ShipEntry {
        QString caption;
        std::function<QString()> figure; ///< empty while it is not known
        std::function<void()> take;
        QAction* entry = nullptr;
        const char* from = "Ship now, ";
    };
    void addShipEntries();
    void showShipFigures();
    void fillWithLinks(QMenu* menu, const QString& array);
    QAction* addMemoEntry(QMenu*& menu, const QString& title, const QString& array,
                          const QString& caption, std::function<void()> action);

    Program& m_program;
    QMainWindow& m_window;
    bool m_hasLinks = false;
    QMenu* m_mnuMemo = nullptr;
    QMenu* m_mnuRem = nullptr;
    std::vector<ShipEntry> m_ship;
};

} // namespace korvel
