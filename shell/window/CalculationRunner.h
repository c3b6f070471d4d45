// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/Boxes.h"
#include "shell/controls/NoticeLine.h"

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
};

/// Runs the calculations of a window at every change. Where nothing was entered yet it claims
/// nothing: a calculation runs from the first change of its inputs on, or when the record had texts
/// for them.
class CalculationRunner : public QObject
{
public:
    CalculationRunner(NoticeLine& notices, QObject* parent);

    /// @return the number of the calculation
    int add(Calculation calculation);
    /// Runs a calculation because the officer changed something.
    void run(int number);
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
    };
    void runNow(const Calculation& calculation);

    NoticeLine& m_notices;
    std::vector<Entered> m_calculations;
    bool m_held = false;
};

} // namespace korvel
