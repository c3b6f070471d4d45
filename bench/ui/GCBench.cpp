// SPDX-License-Identifier: MIT
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "forms/frmGC2000/frmGC2000.h"

namespace
{

using namespace korvel;
using namespace korvel::bench;

/// A key in a latitude box on the longest route that there is: nineteen waypoints after the
/// departure, the whole table and the chart are painted anew.
void nineteenWaypoints(const Rounds& round)
{
    BenchProgram program;
    auto* window = new frmGC2000(program.program());
    const char* const texts[] = {"10.2", "-179", "-20.5", "1.2"};
    for (int i = 0; i < 4; ++i)
        find<QLineEdit>(*window, memberName("txtGC", i).toUtf8().constData()).setText(texts[i]);
    if (find<QLabel>(*window, "lblWpNo(19)").text().isEmpty())
        throw std::runtime_error("not nineteen waypoints");
    auto& box = find<QLineEdit>(*window, "txtGC(0)");
    prepare(*window, box);
    round([&] { digitAndBack(box); });
    delete window;
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(
        argc, argv,
        {{"ours/frmGC2000 key", nineteenWaypoints}, {"peer/frmGC2000 key", bareTextBox("10.2")}});
}
