// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/Questions.h"
#include "shell/machine/Bell.h"

#include <stdexcept>

/// What the program has of a machine that nobody sits at: for examples and benches.
namespace korvel
{

/// Nobody is there to answer: whatever is asked is a fault of who works the program.
class NoOfficer : public Questions
{
public:
    Answer ask(const Message& message) override { throw std::runtime_error(message.text); }
    std::optional<std::string> input(const std::string&, const std::string&,
                                     const std::string& offered) override
    {
        return offered;
    }
    std::optional<std::string> fileToWrite(const std::string&, const std::string&) override
    {
        return std::nullopt;
    }
    std::optional<std::string> fileToRead(const std::string&, const std::string&) override
    {
        return std::nullopt;
    }
    void beep() override {}
};

class SilentBell : public Bell
{
public:
    void start() override {}
    void stop() override {}
    void ringOnce() override {}
};

} // namespace korvel
