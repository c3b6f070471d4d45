// SPDX-License-Identifier: MIT
#include "bench/ui/main.h"
#include "shell/paper/PaperWindow.h"
#include "tools/papers/ExamplePaper.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QTextBrowser>

namespace
{

using namespace korvel;
using namespace korvel::bench;

const QString source = KORVEL_SOURCE_DIR;

WorkedExample worked(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error(path.toStdString());
    return {file.readAll().toStdString(), source + "/data"};
}

void close(QWidget& window)
{
    window.close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

/// Waits until a text is on the screen.
class Painted : public QObject
{
public:
    explicit Painted(QTextBrowser& text) { text.viewport()->installEventFilter(this); }
    void wait() const
    {
        while (!m_painted)
            QApplication::processEvents();
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted = false;
};

/// F2 until the paper can be read, or until all of it is there.
void openPaper(const QString& example, bool whole, const Rounds& round)
{
    const WorkedExample window = worked(example);
    round([&] {
        PaperWindow& paper = window.openPaper();
        auto& text = *paper.findChild<QTextBrowser*>();
        Painted(text).wait();
        if (whole) {
            paper.finish();
            text.document()->pageCount(); // wants all of it laid out
        }
        close(paper);
    });
}

/// The baseline: a window with a bare text document of the same length.
void openBareText(const QString& example, bool whole, const Rounds& round)
{
    QString text;
    {
        const WorkedExample window = worked(example);
        PaperWindow& paper = window.openPaper();
        paper.finish();
        text = paper.findChild<QTextBrowser*>()->toPlainText();
        close(paper);
    }
    round([&] {
        auto* window = new QMainWindow;
        window->setAttribute(Qt::WA_DeleteOnClose);
        auto* browser = new QTextBrowser;
        browser->setPlainText(text);
        window->setCentralWidget(browser);
        window->resize(820, 900);
        window->show();
        Painted(*browser).wait();
        if (whole) browser->document()->pageCount();
        close(*window);
    });
}

} // namespace

/// Windows of each kind, and the long papers of the tests, these also until their end.
int main(int argc, char* argv[])
{
    std::vector<std::pair<std::string, Work>> works;
    const auto add = [&](const char* what, const QFileInfo& example, const char* mark, bool whole) {
        const QString path = example.filePath();
        const std::string name = what + example.baseName().toStdString() + mark;
        works.emplace_back("ours/" + name,
                           [=](const Rounds& round) { openPaper(path, whole, round); });
        works.emplace_back("peer/" + name,
                           [=](const Rounds& round) { openBareText(path, whole, round); });
    };
    for (const char* window : {"frmCDDR", "frmETA", "frmSunMoon", "frmWind"})
        add("paper open/", QFileInfo(source + "/docs/manual/examples/" + window + ".example"), "",
            false);
    for (const QFileInfo& each : QDir(source + "/tests/papers").entryInfoList({"*.example"})) {
        add("paper open/", each, " long", false);
        add("paper whole/", each, " long", true);
    }
    return runUiBench(argc, argv, works);
}
