// SPDX-License-Identifier: MIT
#include "app/watch/clock/LocalTime.h"
#include "app/watch/clock/MakeComputerClock.h"

namespace korvel
{
namespace
{

/// Shows the machine's local time and refuses to set it.
class TrialClock : public ComputerClock
{
public:
    NavFunc113::DateTime now() const override { return localTime().time; }
    double hoursAheadOfUTC() const override { return localTime().hoursAheadOfUTC; }

    std::optional<std::string> set(NavFunc113::DateTime) override
    {
        return "this is a trial, its clock cannot be set";
    }
};

} // namespace

std::unique_ptr<ComputerClock> makeComputerClock()
{
    return std::make_unique<TrialClock>();
}

} // namespace korvel
