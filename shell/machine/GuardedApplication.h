// SPDX-License-Identifier: MIT
#pragma once

#include "shell/machine/FaultGuard.h"
#include "shell/machine/VectorRegisters.h"

#include <QApplication>

namespace korvel
{

/// The application with a guard around every event, which finds the processor at its full speed.
class GuardedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    FaultGuard guard;

    bool notify(QObject* receiver, QEvent* event) override
    {
        releaseVectorRegisters();
        return guard.run([&] { return QApplication::notify(receiver, event); });
    }
};

} // namespace korvel
