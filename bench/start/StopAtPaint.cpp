// SPDX-License-Identifier: MIT
// Linked into a program whose start is to be measured: ends it at the moment that the environment
// variable BENCH_STOP names, after the paint is done, and prints what was asked for.
//   paint     the first paint of any window
//   question  the first paint of a question
//   main      the first paint of the window with the name that BENCH_WINDOW says; a question on
//             the way is accepted; prints the memory of the process's own in kB, and the same
//             with the pages of files that no other process happens to map

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <charconv>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>

#include <unistd.h>

namespace
{

long sumOf(std::string_view field)
{
    std::ifstream maps("/proc/self/smaps_rollup");
    long total = 0;
    for (std::string line; std::getline(maps, line);) {
        if (!line.starts_with(field)) continue;
        const std::size_t digits = line.find_first_of("0123456789");
        long kilobytes = 0;
        std::from_chars(line.data() + digits, line.data() + line.size(), kilobytes);
        total += kilobytes;
    }
    return total;
}

class StopAtPaint : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget && widget->isWindow()) painted(*widget);
        return false;
    }

private:
    void painted(QWidget& window)
    {
        auto* question = qobject_cast<QDialog*>(&window);
        if (m_stop == "paint" || (m_stop == "question" && question))
            QTimer::singleShot(0, [] { ::_exit(0); });
        else if (m_stop == "main" && question)
            QTimer::singleShot(0, question, &QDialog::accept);
        else if (m_stop == "main" && window.objectName() == m_window)
            // By then whatever the start has left over is done.
            QTimer::singleShot(1000, [] {
                std::printf("%ld %ld\n", sumOf("Private_Dirty:"), sumOf("Private_"));
                std::fflush(stdout);
                ::_exit(0);
            });
    }

    const QByteArray m_stop = qgetenv("BENCH_STOP");
    const QString m_window = qEnvironmentVariable("BENCH_WINDOW");
};

void install()
{
    qApp->installEventFilter(new StopAtPaint);
}
Q_COREAPP_STARTUP_FUNCTION(install)

} // namespace
