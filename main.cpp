// SPDX-License-Identifier: MIT
#include "app/clock/makeComputerClock.h"
#include "app/shell/EarlierRecords.h"
#include "app/shell/MessageQuestions.h"
#include "app/shell/RecordsFolder.h"
#include "app/shell/frmKORVEL2000.h"
#include "app/shell/frmKORVELstart.h"
#include "calculator_windows.h"

#include <QApplication>
#include <QFileDialog>

#include <memory>

int main(int argc, char* argv[])
{
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QApplication::setApplicationName(korvel::programTitle);
    QApplication::setQuitOnLastWindowClosed(false);

    const auto clock = korvel::makeComputerClock();
    korvel::MessageQuestions questions;
    korvel::SystemBell bell;
    const korvel::Places places =
        korvel::choosePlaces(QApplication::applicationDirPath(), korvel::officersFolder());
    korvel::RecordsFolder folder(places);

    auto startWindow = std::make_unique<korvel::frmKORVELstart>();
    startWindow->show();
    questions.beep();
    QApplication::processEvents();

    korvel::settleRecords(places, QApplication::arguments(), questions, [] {
        return QFileDialog::getExistingDirectory(nullptr, "The earlier portable folder");
    });
    korvel::frmKORVEL2000 mainWindow({questions, *clock, folder, bell},
                                     korvel::calculatorWindows());
    QObject::connect(&mainWindow, &korvel::frmKORVEL2000::ended, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    mainWindow.start();
    startWindow.reset();
    return QApplication::exec();
}
