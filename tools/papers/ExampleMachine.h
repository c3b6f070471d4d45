// SPDX-License-Identifier: MIT
#pragma once

#include "app/shell/RecordsFolder.h"
#include "app/shell/frmKORVEL2000.h"

#include <QTemporaryDir>

#include <stdexcept>

namespace korvel
{

/// Nobody is there while examples are worked: whatever is asked is a fault of the example.
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

/// The clock of an example stands still, and its computer keeps UTC.
class ExampleClock : public ComputerClock
{
public:
    NavFunc113::DateTime now() const override { return UTC; }
    double hoursAheadOfUTC() const override { return 0; }
    std::optional<std::string> set(NavFunc113::DateTime) override { return "it stands still"; }

    NavFunc113::DateTime UTC = 38425; ///< 2005-03-14
};

class SilentBell : public Bell
{
public:
    void start() override {}
    void stop() override {}
    void ringOnce() override {}
};

/// A program with every window in a folder of its own, with the tide data as shipped.
struct ExampleMachine {
    explicit ExampleMachine(const QString& data) : files({data, folder.path()}) {}

    QTemporaryDir folder;
    NoOfficer officer;
    ExampleClock clock;
    SilentBell bell;
    RecordsFolder files;
};

} // namespace korvel
