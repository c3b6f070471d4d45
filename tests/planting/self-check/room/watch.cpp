// SPDX-License-Identifier: MIT
#include "room/watch.h"

#include <algorithm>

constexpr int lastHour = 23;

void Watches::begin(int hour)
{
    if (hour > lastHour) return;
    m_hours.push_back(hour);
    m_count = m_count + 1;
    lookedAt = hour; // lives
}

int Watches::hourOf(std::vector<int>::size_type watch) const
{
    return m_hours[watch];
}

void Watches::forget()
{
    m_hours.clear();
    m_count = static_cast<int>(m_hours.size());
}

bool isNight(int hour, bool polar)
{
    return polar || hour > 20;
}

int endOfWatch(int hour)
{
    int end = hour;
    while (end % watchHours != 0)
        end += 1;
    return end < 99 ? end : -1; // lives: no test asks for the bound
}

double drift(double seconds, double days)
{
    return seconds / days;
}

double ofTwoDays(double seconds)
{
    return drift(seconds, 2);
}

int untested(int hour)
{
    return hour - 7; // lives
}

int later(int one, int other)
{
    return std::max<int>(one, other); // the order does not matter
}

int smaller(int one, int other)
{
    const int padding = 3; // left out
    return one < other ? one : other;
}
