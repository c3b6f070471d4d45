// SPDX-License-Identifier: MIT
#include "app/clock/makeComputerClock.h"

#include "navlib/datetime.h"

#include <ctime>

namespace korvel
{
namespace
{

/// Shows the machine's local time and refuses to set it.
class TrialClock : public ComputerClock
{
public:
    NavFunc113::DateTime now() const override
    {
        const std::time_t instant = std::time(nullptr);
        std::tm civil{};
        localtime_r(&instant, &civil);
        return NavFunc113::MakeDateTime({civil.tm_year + 1900, civil.tm_mon + 1, civil.tm_mday},
                                        civil.tm_hour * 3600 + civil.tm_min * 60 + civil.tm_sec);
    }

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
