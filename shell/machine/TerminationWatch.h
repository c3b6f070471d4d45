// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

namespace korvel
{

/// Notices that the system asks the program to end (SIGTERM, a closed terminal, Ctrl-C) and says so
/// from the event loop, where windows can be closed.
class TerminationWatch : public QObject
{
    Q_OBJECT

public:
    TerminationWatch();

signals:
    void requested();

private:
    QTimer m_timer;
};

} // namespace korvel
