// SPDX-License-Identifier: MIT
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "forms/frmTIDE/frmTIDE.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QScrollBar>

namespace
{

using namespace korvel;
using namespace korvel::bench;

/// A program with the shipped data beside it.
struct TideProgram : BenchProgram {
    TideProgram()
    {
        const QString shipped = QStringLiteral(KORVEL_SOURCE_DIR "/data/");
        for (const char* name : {"AF2005.txt", "stations.txt", "Harmonic Constants"})
            QFile::link(shipped + name, folder.filePath(name));
        files.save("KV_Tide.ini", "#TRUE#\r\n\"Yokohama\"\r\n\"2003/07/15\"\r\n");
    }
};

void prepare(QWidget& window)
{
    window.show();
    window.activateWindow();
    QApplication::processEvents();
}

/// Two stations in turn: reading both files and the notes, predicting, storing the choice and
/// painting figures and curve.
void chooseStation(const Rounds& round)
{
    TideProgram program;
    auto* window = new frmTIDE(program.program());
    prepare(*window);
    QAction* const stations[] = {window->findChild<QAction*>("mnuSpore(3)"),
                                 window->findChild<QAction*>("mnuJapan(10)")};
    int turn = 0;
    round([&] {
        stations[turn++ % 2]->trigger();
        QApplication::processEvents();
    });
    delete window;
}

/// A day on and a day back: predicting, the lists below the picture, painting.
void stepDate(const Rounds& round)
{
    TideProgram program;
    auto* window = new frmTIDE(program.program());
    prepare(*window);
    auto& dates = *window->findChild<QScrollBar*>("scrDate");
    int turn = 0;
    round([&] {
        dates.setValue(dates.value() + (turn++ % 2 ? -1 : 1));
        QApplication::processEvents();
    });
    delete window;
}

/// The same picture with nothing on it.
void emptyRepaint(const Rounds& round)
{
    BenchProgram program;
    auto* window = new frmTIDE(program.program());
    prepare(*window);
    auto& picture = find<QWidget>(*window, "picTIDE");
    round([&] {
        picture.update();
        QApplication::processEvents();
    });
    delete window;
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(argc, argv,
                      {{"ours/frmTIDE station", chooseStation},
                       {"peer/frmTIDE station", emptyRepaint},
                       {"ours/frmTIDE date", stepDate},
                       {"peer/frmTIDE date", emptyRepaint}});
}
