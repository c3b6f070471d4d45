// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/Boxes.h"
#include "shell/controls/NoticeLine.h"

#include <QTimer>

#include <vector>

namespace korvel
{

/// A calculation of a window: what makes it run and what it fills.
struct Calculation {
    QString title;                 ///< how the notice line calls it
    std::vector<EntryBox*> inputs; ///< every change of one of these runs it, in a KeyUpBox every
                                   ///< key released
    std::vector<ResultLabel*> results; ///< blanked when it ends in an arithmetic error
    std::function<void()> run;
    /// Runs also while nothing was entered: it shows something that belongs to no entry.
    bool claimsUnasked = false;
    /// The results that rest on a box, where that is not all of them.
    std::function<std::vector<ResultLabel*>(const EntryBox& input)> restingOn = nullptr;
};

/// Runs the calculations of a window at every change. Results that rest on a figure of which only
/// the beginning was read are dimmed, and the notice line says so. Where nothing was entered yet it
/// claims nothing: a calculation runs from the first change of its inputs on, or when the record
/// had texts for them.
class CalculationRunner : public QObject
{
public:
    using Dim = std::function<void(const std::vector<QLabel*>& labels, bool dimmed)>;
    CalculationRunner(NoticeLine& notices, Dim dim, QObject* parent);

    /// @return the number of the calculation
    int add(Calculation calculation);
    /// Runs a calculation because the officer changed something.
    void run(int number);
    /// The same for a calculation that runs when the window asks for it: what rests on these boxes
    /// is dimmed while one of them was read in part.
    void tellHalfRead(const std::vector<EntryBox*>& inputs,
                      const std::vector<ResultLabel*>& results);

    /// Runs all that have anything to show.
    void runAll();

    /// Keeps changes of the inputs from running anything, while the record fills them.
    void hold() { m_held = true; }
    /// Ends that.
    /// @param wasEntered whatever has texts counts as entered
    void release(bool wasEntered);
    bool isHeld() const { return m_held; }

private:
    struct Entered {
        Calculation calculation;
        bool touched = false;
        std::vector<QLabel*> doubtful = {}; ///< results of a figure that was read in part
    };
    void runNow(Entered& entered);
    void tellHalfRead(Entered& entered);
    void announce();

    NoticeLine& m_notices;
    Dim m_dim;
    QTimer m_announcement; ///< of the answer, to assistive tools
    int m_changed{};       ///< the calculation that it is about
    std::vector<Entered> m_calculations;
    bool m_held = false;
};

} // namespace korvel
