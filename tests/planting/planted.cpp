// SPDX-License-Identifier: MIT
// Linked into every program of a sweep: tells a place whether its fault is the one to be made.
#include <array>
#include <atomic>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <unistd.h>

bool planted(int site) noexcept;

namespace
{

constexpr int mostSites = 100000;
std::array<std::atomic<bool>, mostSites> reached;

int chosenSite() noexcept
{
    const char* text = std::getenv("PLANTED_FAULT");
    return text ? std::atoi(text) : -1;
}

int openRecord() noexcept
{
    const char* name = std::getenv("PLANTED_RECORD");
    return name ? open(name, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600) : -1;
}

} // namespace

bool planted(int site) noexcept
{
    // Constants of other files ask before anything of this one is made.
    static const int chosen = chosenSite(), record = openRecord();
    if (record >= 0 && !reached[static_cast<std::size_t>(site)].exchange(true)) {
        const std::string line = std::to_string(site) + "\n";
        if (write(record, line.data(), line.size()) < 0) std::abort();
    }
    return site == chosen;
}
