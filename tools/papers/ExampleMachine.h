// SPDX-License-Identifier: MIT
#pragma once

#include "shell/machine/RecordsFolder.h"
#include "shell/main/frmKORVEL2000.h"
#include "tools/unattended/Unattended.h"

#include <QTemporaryDir>

namespace korvel
{

/// The clock of an example stands still, and its computer keeps UTC.
class ExampleClock : public ComputerClock
{
public:
    NavFunc113::DateTime now() const override { return UTC; }
    double hoursAheadOfUTC() const override { return 0; }
    std::optional<std::string> set(NavFunc113::DateTime) override { return "it stands still"; }

    NavFunc113::DateTime UTC = 38425; ///< 2005-03-14
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
