// SPDX-License-Identifier: MIT
#include "shell/main/RunProgram.h"

#include "shell/machine/DocumentsFolder.h"
#include "shell/machine/EarlierRecords.h"
#include "shell/machine/ExecOwned.h"
#include "shell/machine/FolderLock.h"
#include "shell/machine/GuardedApplication.h"
#include "shell/machine/MessageQuestions.h"
#include "shell/machine/Platform.h"
#include "shell/machine/RecordsFolder.h"
#include "shell/machine/SessionQuestions.h"
#include "shell/machine/SystemBell.h"
#include "shell/machine/TerminationWatch.h"
#include "shell/machine/ToolkitSettings.h"
#include "shell/main/Attend.h"
#include "shell/main/frmKORVEL2000.h"
#include "shell/main/frmKORVELstart.h"
#include "shell/screen/Looks.h"
#include "shell/screen/OwnFonts.h"
#include "shell/screen/ScreenStyle.h"

#include <QDir>
#include <QFileDialog>
#include <QIcon>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

void tellAboutTheOther(Questions& questions, const QString& folder, bool isInFront)
{
    std::string text = programTitle;
    text += " runs already with the records in\r" + QDir::toNativeSeparators(folder).toStdString();
    text += isInFront ? "\r\rIts window has been brought to the front."
                      : "\r\rIt does not answer. It has to end before another can start here.";
    questions.ask({text, programTitle, Buttons::Ok});
}

/// Drawn for each size: one picture made smaller blurs at 16 pixels.
QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icon/korvel2000-%1.png").arg(size));
    return icon;
}

void introduceToDesktop()
{
    QApplication::setApplicationName(programTitle);
    // A desktop whose windows bring no icon takes the one of the menu entry.
    QApplication::setDesktopFileName("korvel2000");
}

bool isAnythingShown()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* each) {
        return each->isVisible() && each->windowType() != Qt::SplashScreen;
    });
}

void tellAboutFault(Questions& questions, const std::string& fault)
{
    questions.ask({"The program met a fault that it was not made for: " + fault +
                       ".\rWhat the windows hold has been saved.",
                   programTitle, Buttons::Ok});
    if (!isAnythingShown()) QApplication::exit(1); // it came before there was a window
}

/// The folder of an earlier program, chosen by the officer.
QString earlierFolder()
{
    auto* const dialog = new QFileDialog(nullptr, "The earlier portable folder", documentsFolder());
    dialog->setFileMode(QFileDialog::Directory);
    QString chosen;
    QObject::connect(dialog, &QFileDialog::fileSelected, qApp,
                     [&chosen](const QString& folder) { chosen = folder; });
    execOwned(dialog);
    return chosen;
}

/// What comes before the main window, which is who ends the session otherwise.
/// @return false when the session ended under a question
bool settleBeforeTheEnd(const Places& places, Questions& questions, TerminationWatch& termination)
{
    SessionQuestions asked(questions);
    QObject session;
    bool goesOn = true;
    QObject::connect(&termination, &TerminationWatch::requested, &session, [&] {
        goesOn = false;
        asked.endSession();
        if (QWidget* box = QApplication::activeModalWidget()) box->close();
    });
    settleRecords(places, QApplication::arguments(), asked, earlierFolder);
    return goesOn;
}

} // namespace

int runProgram(int argc, char* argv[], const ClockMaker& makeClock, const WindowCatalogue& windows)
{
    useOwnFonts();
    choosePlatform();
    const ToolkitSettings toolkitSettings;
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // those know nothing of the night
    QApplication::setStyle(new ScreenStyle);
    GuardedApplication application(argc, argv);
    introduceToDesktop();
    QApplication::setQuitOnLastWindowClosed(false);

    MessageQuestions questions;
    const Places places = choosePlaces(QApplication::applicationDirPath(), officersFolder());
    ProgramFolder asFound(places.records, ProgramFolder::Remnants::Left);
    const Looks looks = looksOfLastRun(asFound);
    applyLooks(looks, looks.colours());
    // The officer sees that the program starts before it waits for the disk and makes its icons.
    auto startWindow = std::make_unique<frmKORVELstart>();
    startWindow->show();
    QApplication::processEvents();
    QApplication::setWindowIcon(programIcon());
    FolderLock lock(places.records);
    if (lock.isHeldByAnother()) {
        tellAboutTheOther(questions, places.records, lock.callTheOther(3s));
        return 0;
    }
    if (!lock.fault().empty()) questions.ask({lock.fault(), programTitle, Buttons::Ok});
    questions.beep();
    const auto clock = makeClock();
    SystemBell bell;
    RecordsFolder folder(places);

    std::unique_ptr<frmKORVEL2000> mainWindow;
    TerminationWatch termination;
    application.guard.tell = [&](const std::string& fault) { tellAboutFault(questions, fault); };
    // From within the event loop, so that whatever goes wrong in it ends where all faults do.
    QTimer::singleShot(0, &application, [&] {
        if (!settleBeforeTheEnd(places, questions, termination)) {
            QApplication::exit();
            return;
        }
        mainWindow =
            std::make_unique<frmKORVEL2000>(Machine{questions, *clock, folder, bell}, windows);
        attend({application.guard, lock, termination}, *mainWindow, [] { QApplication::exit(); });
        mainWindow->start();
        startWindow.reset();
    });
    return QApplication::exec();
}

} // namespace korvel
