// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

constexpr int watchHours = 4;
static_assert(watchHours * 6 == 24); // no fault: does not compile

constexpr int endOfSecond(int begin)
{
    return begin + 8;
}

class Watches
{
public:
    void begin(int hour);
    int count() const { return m_count; }
    int hourOf(std::vector<int>::size_type watch) const;
    void forget();
    int lookedAt = 0; // lives

private:
    std::vector<int> m_hours;
    int m_count = 0;
};

bool isNight(int hour, bool polar);
int endOfWatch(int hour);
double drift(double seconds, double days);
double ofTwoDays(double seconds);
int untested(int hour);
int later(int one, int other);
int smaller(int one, int other);
