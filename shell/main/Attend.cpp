// SPDX-License-Identifier: MIT
#include "shell/main/Attend.h"

#include "shell/machine/FaultGuard.h"
#include "shell/machine/FolderLock.h"
#include "shell/machine/TerminationWatch.h"
#include "shell/main/frmKORVEL2000.h"

#include <QApplication>

namespace korvel
{

void attend(const Callers& callers, frmKORVEL2000& window, const std::function<void()>& atEnd)
{
    callers.guard.saveEverything = [&window] { window.program().saveRecords(); };
    callers.lock.answerCalls([&window] { window.comeToFront(); });
    QObject::connect(&callers.termination, &TerminationWatch::requested, &window,
                     &frmKORVEL2000::endSession);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &window, &frmKORVEL2000::endSession,
                     Qt::DirectConnection);
    QObject::connect(&window, &frmKORVEL2000::ended, qApp, atEnd, Qt::QueuedConnection);
}

} // namespace korvel
