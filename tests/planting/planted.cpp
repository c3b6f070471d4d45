// SPDX-License-Identifier: MIT
// Linked into every program of a sweep: tells a place whether its fault is the one to be made, and
// records which test reaches which place.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <mutex>
#include <string>

#include <fcntl.h>
#include <unistd.h>

bool planted(int site) noexcept;

// testing::UnitTest::GetInstance() and current_test_info(), which programs that are no tests lack.
extern "C" const void* unitTest() __asm__("_ZN7testing8UnitTest11GetInstanceEv")
    __attribute__((weak));
extern "C" const testing::TestInfo*
testOf(const void* unitTest) __asm__("_ZNK7testing8UnitTest17current_test_infoEv")
    __attribute__((weak));

namespace
{

constexpr int mostSites = 100000;

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

/// Writes a line "Suite.test 17" when a test comes to a place for the first time; without a test
/// what every program does before it runs one. While a test has the disk full the lines wait.
void note(int record, int site)
{
    static std::mutex mutex;
    static std::string unwritten;
    static std::array<bool, mostSites> reached;
    static const testing::TestInfo* before = nullptr;
    const std::lock_guard lock(mutex);
    const testing::TestInfo* test = unitTest ? testOf(unitTest()) : nullptr;
    if (test != before) reached.fill(false);
    before = test;
    if (std::exchange(reached[static_cast<std::size_t>(site)], true)) return;
    const std::string name =
        test ? std::string(test->test_suite_name()) + "." + test->name() : std::string("-");
    unwritten += name + " " + std::to_string(site) + "\n";
    const auto written = write(record, unwritten.data(), unwritten.size());
    if (written > 0) unwritten.erase(0, static_cast<std::size_t>(written));
}

} // namespace

bool planted(int site) noexcept
{
    // Constants of other files ask before anything of this one is made.
    static const int chosen = chosenSite(), record = openRecord();
    if (record >= 0) note(record, site);
    return site == chosen;
}
