// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/fix/SightFix.h"

#include <QWidget>

#include <optional>

class QPushButton;

namespace korvel
{

class SightLines;

/// The recorded sights, a line each, and what can be done with the chosen one.
class SightListPanel : public QWidget
{
    Q_OBJECT

public:
    explicit SightListPanel(QWidget* parent);

    /// The sights, each with its line as far as the fix has made one of it.
    void showSights(const SightList& list, const SightFixResult& fix);

    /// What is still to be taken, a line each, below the sights.
    void showPlanned(const std::vector<std::string>& lines);

    /// The row in hand: a sight, or behind the sights one of those that are to be taken.
    std::optional<std::size_t> chosen() const;
    /// Makes a sight the one in hand.
    void choose(std::size_t index);
    /// Lets the button offer to take back what was deleted.
    void setUndo(bool canUndo);

signals:
    void switched(std::size_t index, bool on);
    void editAsked();
    void deleteAsked();
    void undoAsked();

private:
    void writePlanned();

    SightLines* m_lstSunSight;
    std::vector<std::string> m_planned;
    int m_recorded{}; ///< rows
    QPushButton* m_cmdUndo;
};

} // namespace korvel
