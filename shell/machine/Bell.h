// SPDX-License-Identifier: MIT
#pragma once

namespace korvel
{

/// What makes alarms and time signals heard.
class Bell
{
public:
    virtual ~Bell() = default;

    /// Rings until stop() is called; while it rings already, nothing changes.
    virtual void start() = 0;
    virtual void stop() = 0;

    /// Rings one tone; nothing while it rings already.
    virtual void ringOnce() = 0;
};

} // namespace korvel
