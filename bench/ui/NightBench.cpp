// SPDX-License-Identifier: MIT
// Night on or off with every window open to the last painted pixel, against a bare repaint of the
// same windows.
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "calculator_windows.h"

#include <QApplication>
#include <QFile>

namespace
{

using namespace korvel;
using namespace korvel::bench;

/// The whole program with the shipped data and every window open.
struct OpenProgram {
    OpenProgram()
    {
        const QString shipped = QStringLiteral(KORVEL_SOURCE_DIR "/data/");
        for (const char* name : {"AF2005.txt", "stations.txt", "Harmonic Constants"})
            QFile::link(shipped + name, folder.filePath(name));
        main = std::make_unique<frmKORVEL2000>(Machine{questions, clock, files, bell},
                                               calculatorWindows());
        main->show();
        for (const CatalogueEntry& entry : calculatorWindows())
            main->openWindow(entry.name);
        QApplication::processEvents();
    }
    ~OpenProgram() { main->endSession(); }

    QTemporaryDir folder;
    NoOfficer questions;
    StoppedClock clock;
    SilentBell bell;
    ProgramFolder files{folder.path()};
    std::unique_ptr<frmKORVEL2000> main;
};

void switchNight(const Rounds& round)
{
    OpenProgram program;
    round([&] {
        program.main->program().screen().toggleNight();
        QApplication::processEvents();
    });
}

void repaint(const Rounds& round)
{
    const OpenProgram program;
    round([] {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->isVisible()) each->repaint();
        QApplication::processEvents();
    });
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(argc, argv, {{"ours/night", switchNight}, {"peer/night", repaint}});
}
