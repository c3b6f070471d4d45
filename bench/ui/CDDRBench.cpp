// SPDX-License-Identifier: MIT
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "forms/frmCDDR/frmCDDR.h"

namespace
{

using namespace korvel;
using namespace korvel::bench;

/// A key in a latitude box with everything filled: echo, course and distance are painted anew.
void courseAndDistance(const Rounds& round)
{
    BenchProgram program;
    auto* window = new frmCDDR(program.program());
    const char* const texts[] = {"35.08", "139.4", "37.45", "-122.42",
                                 "35.08", "139.4", "88.1",  "600"};
    for (int i = 0; i < 8; ++i)
        find<QLineEdit>(*window, memberName("txtCDDR", i).toUtf8().constData()).setText(texts[i]);
    auto& box = find<QLineEdit>(*window, "txtCDDR(0)");
    prepare(*window, box);
    round([&] { digitAndBack(box); });
    delete window;
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(
        argc, argv,
        {{"ours/frmCDDR key", courseAndDistance}, {"peer/frmCDDR key", bareTextBox("35.08")}});
}
