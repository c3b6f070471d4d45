// SPDX-License-Identifier: MIT
#include "shell/machine/TerminationWatch.h"

#include <chrono>
#include <csignal>

namespace korvel
{
namespace
{

// All that a signal's handler may touch.
volatile std::sig_atomic_t terminationRequested = 0;

void request(int)
{
    terminationRequested = 1;
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
        if (!terminationRequested) return;
        terminationRequested = 0;
        emit requested();
    });
    m_timer.start(std::chrono::milliseconds(300));
}

} // namespace korvel
