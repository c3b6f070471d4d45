// SPDX-License-Identifier: MIT
#include "shell/window/CalculationRunner.h"

#include "navlib/arithmetic_error.h"

#include <QAccessible>

#include <algorithm>
#include <utility>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

constexpr auto handsAtRest = 700ms;

} // namespace

CalculationRunner::CalculationRunner(NoticeLine& notices, Dim dim, QObject* parent)
    : QObject(parent), m_notices(notices), m_dim(std::move(dim))
{
    m_announcement.setSingleShot(true);
    connect(&m_announcement, &QTimer::timeout, this, &CalculationRunner::announce);
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
    runNow(each);
    if (!QAccessible::isActive()) return;
    m_changed = number;
    m_announcement.start(handsAtRest);
}

/// Tells the answer to those who do not see it change: when the hands rest, not at every key.
void CalculationRunner::announce()
{
    const Entered& each = m_calculations.at(static_cast<std::size_t>(m_changed));
    for (ResultLabel* label : each.calculation.results) {
        if (label->text().isEmpty() || label->accessibleName().isEmpty()) continue;
        QAccessibleEvent told(label, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
        return;
    }
}

void CalculationRunner::runAll()
{
    for (Entered& each : m_calculations)
        if (each.touched || each.calculation.claimsUnasked) runNow(each);
}

void CalculationRunner::release(bool wasEntered)
{
    m_held = false;
    if (!wasEntered) return;
    for (Entered& each : m_calculations)
        each.touched |= std::ranges::any_of(
            each.calculation.inputs, [](const EntryBox* box) { return !box->text().isEmpty(); });
}

void CalculationRunner::runNow(Entered& entered)
{
    const Calculation& calculation = entered.calculation;
    m_dim(std::exchange(entered.doubtful, {}), false);
    try {
        calculation.run();
        m_notices.say(calculation.title, {});
    } catch (const NavFunc113::ArithmeticError& error) {
        for (ResultLabel* label : calculation.results)
            label->setText({});
        m_notices.say(calculation.title,
                      QString("%1 cannot be calculated from these figures (%2).")
                          .arg(calculation.title, error.what()),
                      NoticeLevel::Fault);
    }
    tellHalfRead(entered);
}

void CalculationRunner::tellHalfRead(const std::vector<EntryBox*>& inputs,
                                     const std::vector<ResultLabel*>& results)
{
    bool isHalfRead = false;
    for (const EntryBox* box : inputs) {
        const auto& reading = box->halfRead();
        m_notices.sayHalfRead(*box, reading);
        isHalfRead = isHalfRead || reading;
    }
    m_dim({results.begin(), results.end()}, isHalfRead);
}

void CalculationRunner::tellHalfRead(Entered& entered)
{
    const Calculation& calculation = entered.calculation;
    for (const EntryBox* box : calculation.inputs) {
        const auto& halfRead = box->halfRead();
        m_notices.sayHalfRead(*box, halfRead);
        if (!halfRead) continue;
        const auto resting =
            calculation.restingOn ? calculation.restingOn(*box) : calculation.results;
        entered.doubtful.insert(entered.doubtful.end(), resting.begin(), resting.end());
    }
    m_dim(entered.doubtful, true);
}

} // namespace korvel
