// SPDX-License-Identifier: MIT
// Night on or off with every window open to the last painted pixel, against a bare repaint of the
// same windows. Both are first seen to paint every widget that shows anything.
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "calculator_windows.h"

#include <QApplication>
#include <QFile>

#include <set>

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

/// Notes what is painted while it lives.
class Painted : public QObject
{
public:
    Painted() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) m_widgets.insert(watched);
        return false;
    }
    /// @throws std::runtime_error naming a widget that shows something and was left out
    void expectAll() const
    {
        for (const QWidget* each : QApplication::allWidgets())
            if (each->isVisible() && !each->visibleRegion().isEmpty() && !m_widgets.count(each))
                throw std::runtime_error("not painted: " + each->objectName().toStdString() +
                                         " of " + each->window()->objectName().toStdString());
    }

private:
    std::set<const QObject*> m_widgets;
};

void measure(const Rounds& round, const std::function<void(OpenProgram&)>& work)
{
    OpenProgram program;
    const auto once = [&] {
        work(program);
        QApplication::processEvents();
    };
    {
        const Painted painted;
        once();
        painted.expectAll();
    }
    round(once);
}

void switchNight(const Rounds& round)
{
    measure(round, [](OpenProgram& open) { open.main->program().screen().toggleNight(); });
}

/// Every widget is asked: of a window alone the toolkit paints nothing that covers it, and that is
/// most of what stands in it.
void repaint(const Rounds& round)
{
    measure(round, [](OpenProgram&) {
        for (QWidget* each : QApplication::allWidgets())
            if (each->isVisible()) each->update();
    });
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(argc, argv, {{"ours/night", switchNight}, {"peer/night", repaint}});
}
