// SPDX-License-Identifier: MIT
#include "app/watch/clock/LocalTime.h"
#include "app/watch/clock/MakeComputerClock.h"

#include "navlib/datetime.h"

#include <cerrno>
#include <ctime>
#include <string_view>
#include <system_error>

#ifdef _WIN32
#include <array>
#include <windows.h>
#endif

namespace korvel
{
namespace
{

using NavFunc113::DateTime;

#ifdef _WIN32
using NavFunc113::CivilDate;
using NavFunc113::TimeOfDay;

/// Why the system refused, in its own language. The library's message is English or, where the
/// system has no English texts, none at all.
std::string reasonOf(DWORD error)
{
    std::array<wchar_t, 512> wide{};
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
        nullptr, error, 0, wide.data(), static_cast<DWORD>(wide.size()), nullptr);
    std::array<char, 3 * 512> text{};
    const int bytes =
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(length), text.data(),
                            static_cast<int>(text.size()), nullptr, nullptr);
    std::string reason(text.data(), static_cast<std::size_t>(bytes));
    // What is said of it ends in a stop of its own.
    reason.erase(reason.find_last_not_of(" .") + 1);
    if (reason.ends_with("。")) reason.resize(reason.size() - std::string_view("。").size());
    return reason.empty() ? "error " + std::to_string(error) : reason;
}
#endif

class SystemClock : public ComputerClock
{
public:
    DateTime now() const override { return localTime().time; }
    double hoursAheadOfUTC() const override { return localTime().hoursAheadOfUTC; }

    // Both systems take time of day and date in one call, so no midnight can fall between them.
#ifdef _WIN32
    std::optional<std::string> set(DateTime value) override
    {
        const CivilDate date = NavFunc113::DateOf(value);
        const TimeOfDay time = NavFunc113::TimeOf(value);
        SYSTEMTIME local{};
        local.wYear = static_cast<WORD>(date.year);
        local.wMonth = static_cast<WORD>(date.month);
        local.wDay = static_cast<WORD>(date.day);
        local.wHour = static_cast<WORD>(time.hour);
        local.wMinute = static_cast<WORD>(time.minute);
        local.wSecond = static_cast<WORD>(time.second);
        // Not SetLocalTime: it takes summer time from the clock as it stands, not as it will stand.
        SYSTEMTIME utc{};
        if (TzSpecificLocalTimeToSystemTime(nullptr, &local, &utc) && SetSystemTime(&utc))
            return std::nullopt;
        return reasonOf(GetLastError());
    }
#else
    std::optional<std::string> set(DateTime value) override
    {
        const std::timespec instant{.tv_sec = instantOfLocalTime(value), .tv_nsec = {}};
        if (clock_settime(CLOCK_REALTIME, &instant) == 0) return std::nullopt;
        return std::generic_category().message(errno);
    }
#endif
};

} // namespace

std::unique_ptr<ComputerClock> makeComputerClock()
{
    return std::make_unique<SystemClock>();
}

} // namespace korvel
