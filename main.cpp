// SPDX-License-Identifier: MIT
#include "app/clock/makeComputerClock.h"
#include "app/shell/MessageQuestions.h"
#include "app/shell/ProgramFolder.h"
#include "app/shell/frmKORVEL2000.h"
#include "app/shell/frmKORVELstart.h"
#include "forms/frmCDDR/frmCDDR.h"
#include "forms/frmSunMoon/frmSunMoon.h"
#include "forms/frmSunSight/frmSunSight.h"

#include <QApplication>

namespace
{

template <typename Window>
korvel::WindowFactory window(const char* name)
{
    return {name, [](korvel::Program& program) { return new Window(program); }};
}

std::vector<korvel::WindowFactory> calculatorWindows()
{
    return {
        window<korvel::frmCDDR>("frmCDDR"),
        window<korvel::frmSunMoon>("frmSunMoon"),
        window<korvel::frmSunSight>("frmSunSight"),
    };
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QApplication::setApplicationName(korvel::programTitle);
    QApplication::setQuitOnLastWindowClosed(false);

    const auto clock = korvel::makeComputerClock();
    korvel::MessageQuestions questions;
    korvel::SystemBell bell;
    korvel::ProgramFolder folder(QApplication::applicationDirPath());

    korvel::frmKORVELstart startWindow;
    startWindow.show();
    questions.beep();
    QApplication::processEvents();

    korvel::frmKORVEL2000 mainWindow({questions, *clock, folder, bell}, calculatorWindows());
    QObject::connect(&mainWindow, &korvel::frmKORVEL2000::ended, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    mainWindow.start();
    startWindow.close();
    return QApplication::exec();
}
