// SPDX-License-Identifier: MIT
#include "shell/window/CalculationRunner.h"

#include "navlib/arithmetic_error.h"

#include <algorithm>

namespace korvel
{

CalculationRunner::CalculationRunner(NoticeLine& notices, QObject* parent)
    : QObject(parent), m_notices(notices)
{
}

int CalculationRunner::add(Calculation calculation)
{
    const int number = static_cast<int>(m_calculations.size());
    const auto changed = [this, number] {
        if (!m_held) run(number);
    };
    for (EntryBox* box : calculation.inputs) {
        if (auto* keyUp = dynamic_cast<KeyUpBox*>(box))
            keyUp->onKeyUp = changed;
        else
            connect(box, &QLineEdit::textChanged, this, changed);
    }
    m_calculations.push_back({std::move(calculation)});
    return number;
}

void CalculationRunner::run(int number)
{
    Entered& each = m_calculations.at(static_cast<std::size_t>(number));
    each.touched = true;
    runNow(each.calculation);
}

void CalculationRunner::runAll()
{
    for (const Entered& each : m_calculations)
        if (each.touched || each.calculation.claimsUnasked) runNow(each.calculation);
}

void CalculationRunner::release(bool wasEntered)
{
    m_held = false;
    if (!wasEntered) return;
    for (Entered& each : m_calculations)
        each.touched |= std::ranges::any_of(
            each.calculation.inputs, [](const EntryBox* box) { return !box->text().isEmpty(); });
}

void CalculationRunner::runNow(const Calculation& calculation)
{
    try {
        calculation.run();
        m_notices.say(calculation.title, {});
    } catch (const NavFunc113::ArithmeticError& error) {
        for (ResultLabel* label : calculation.results)
            label->setText({});
        m_notices.say(calculation.title, QString("%1 cannot be calculated from these figures (%2).")
                                             .arg(calculation.title, error.what()));
    }
}

} // namespace korvel
