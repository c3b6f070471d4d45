// SPDX-License-Identifier: MIT
#include "shell/machine/TerminationWatch.h"

#include <atomic>
#include <chrono>
#include <csignal>

namespace korvel
{
namespace
{

// A signal's handler may touch nothing that could wait.
std::atomic_bool terminationRequested;
static_assert(std::atomic_bool::is_always_lock_free);

void request(int)
{
    terminationRequested = true;
}

} // namespace

TerminationWatch::TerminationWatch()
{
    std::signal(SIGTERM, request);
    std::signal(SIGINT, request);
#ifdef SIGHUP
    std::signal(SIGHUP, request);
#endif
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (terminationRequested.exchange(false)) emit requested();
    });
    m_timer.start(std::chrono::milliseconds(300));
}

} // namespace korvel
