// SPDX-License-Identifier: MIT
#include "app/clock/makeComputerClock.h"
#include "app/shell/MessageQuestions.h"
#include "app/shell/ProgramFolder.h"
#include "app/shell/frmKORVEL2000.h"
#include "app/shell/frmKORVELstart.h"
#include "forms/conversion/ConversionWindow.h"
#include "forms/frmCDDR/frmCDDR.h"
#include "forms/frmCRUDE/frmCRUDE.h"
#include "forms/frmETA/frmETA.h"
#include "forms/frmGC2000/frmGC2000.h"
#include "forms/frmPositionRecord/frmPositionRecord.h"
#include "forms/frmSunMoon/frmSunMoon.h"
#include "forms/frmSunSight/frmSunSight.h"
#include "forms/frmTIDE/frmTIDE.h"
#include "forms/frmWeather/frmWeather.h"
#include "forms/frmWind/frmWind.h"

#include <QApplication>

#include <memory>

namespace
{

template <typename Window>
korvel::WindowFactory window(const char* name)
{
    return {name, [](korvel::Program& program) { return new Window(program); }};
}

std::vector<korvel::WindowFactory> calculatorWindows()
{
    // clang-format off
    return {
        window<korvel::frmCDDR>("frmCDDR"),
        window<korvel::frmGC2000>("frmGC2000"),
        window<korvel::frmSunMoon>("frmSunMoon"),
        window<korvel::frmPositionRecord>("frmPositionRecord"),
        window<korvel::frmSunSight>("frmSunSight"),
        window<korvel::frmETA>("frmETA"),
        window<korvel::frmWind>("frmWind"),
        window<korvel::frmWeather>("frmWeather"),
        window<korvel::frmCRUDE>("frmCRUDE"),
        window<korvel::frmLength>("frmLength"),
        window<korvel::frmVolume>("frmVolume"),
        window<korvel::frmArea>("frmArea"),
        window<korvel::frmWeight>("frmWeight"),
        window<korvel::frmPressure>("frmPressure"),
        window<korvel::frmTIDE>("frmTIDE"),
    };
    // clang-format on
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

    auto startWindow = std::make_unique<korvel::frmKORVELstart>();
    startWindow->show();
    questions.beep();
    QApplication::processEvents();

    korvel::frmKORVEL2000 mainWindow({questions, *clock, folder, bell}, calculatorWindows());
    QObject::connect(&mainWindow, &korvel::frmKORVEL2000::ended, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    mainWindow.start();
    startWindow.reset();
    return QApplication::exec();
}
