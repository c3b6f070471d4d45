// SPDX-License-Identifier: MIT
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "forms/frmCDDR/frmCDDR.h"

#include <QAction>
#include <QTextBrowser>

namespace
{

using namespace korvel;
using namespace korvel::bench;

/// The course window with everything filled, and its paper.
struct PaperOfCourse {
    PaperOfCourse() : window(new frmCDDR(program.program()))
    {
        const char* const texts[] = {"35.08", "139.4", "37.45", "-122.42",
                                     "35.08", "139.4", "88.1",  "600"};
        for (int i = 0; i < 8; ++i)
            find<QLineEdit>(*window, memberName("txtCDDR", i).toUtf8().constData())
                .setText(texts[i]);
        prepare(*window, find<QLineEdit>(*window, "txtCDDR(0)"));
    }
    ~PaperOfCourse() { delete window; }

    QWidget& open() const
    {
        find<QAction>(*window, "mnuPaper(0)").trigger();
        QApplication::processEvents();
        return find<QWidget>(*window, "frmPaper");
    }

    BenchProgram program;
    frmCDDR* window;
};

void close(QWidget& window)
{
    window.close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

/// F2 until the paper is painted.
void openPaper(const Rounds& round)
{
    const PaperOfCourse course;
    round([&] { close(course.open()); });
}

/// The baseline: a window with a bare text document of the same length.
void openBareText(const Rounds& round)
{
    QString text;
    {
        const PaperOfCourse course;
        QWidget& paper = course.open();
        text = find<QTextBrowser>(paper, "txtPaper").toPlainText();
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
        QApplication::processEvents();
        close(*window);
    });
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(argc, argv,
                      {{"ours/paper open", openPaper}, {"peer/paper open", openBareText}});
}
