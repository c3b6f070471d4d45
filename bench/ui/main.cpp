// SPDX-License-Identifier: MIT
#include "bench/ui/main.h"

#include "bench/ui/Keystroke.h"
#include "shell/machine/GuardedApplication.h"
#include "shell/screen/ScreenStyle.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdlib>

namespace korvel::bench
{

namespace
{

/// Keeps away what runs on a clock (a record that is saved after a while, a blinking cursor): how
/// much of it falls into a count is a matter of chance.
class WithoutClock : public QObject
{
protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        return event->type() == QEvent::Timer && !watched->isWindowType();
    }
};

} // namespace

Work bareTextBox(const char* text)
{
    return [text](const Rounds& round) {
        BareWindow window;
        window.box.setText(text);
        prepare(window, window.box);
        round([&] { digitAndBack(window.box); });
    };
}

int runUiBench(int argc, char* argv[], const std::vector<std::pair<std::string, Work>>& works)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(new ScreenStyle);
    GuardedApplication application(argc, argv);

    if (argc == 4 && std::string(argv[1]) == "count") {
        WithoutClock still;
        application.installEventFilter(&still);
        const long rounds = std::strtol(argv[3], nullptr, 10);
        for (const auto& [name, work] : works)
            if (name == argv[2])
                work([&](const std::function<void()>& round) {
                    for (long i = 0; i < rounds; ++i)
                        round();
                });
        return 0;
    }
    for (const auto& [name, work] : works)
        benchmark::RegisterBenchmark(name.c_str(), [&work](benchmark::State& state) {
            work([&](const std::function<void()>& round) {
                for (auto each : state) {
                    (void)each;
                    round();
                }
            });
        });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace korvel::bench
