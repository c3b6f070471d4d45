// SPDX-License-Identifier: MIT
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "forms/frmSunMoon/frmSunMoon.h"

#include <QScrollBar>

namespace
{

using namespace korvel;
using namespace korvel::bench;

/// Sixteen ports round the world.
const char* const ports[frmSunMoon::rows][4] = {
    {"Tokyo", "9", "35.393", "139.447"},     {"Busan", "9", "35.06", "129.02"},
    {"Hong Kong", "8", "22.17", "114.1"},    {"Singapore", "8", "1.16", "103.5"},
    {"Sydney", "10", "-33.515", "151.124"},  {"Auckland", "12", "-36.507", "174.46"},
    {"Honolulu", "-10", "21.185", "-157.5"}, {"San Francisco", "-8", "37.487", "-122.25"},
    {"Callao", "-5", "-12.03", "-77.09"},    {"Panama", "-5", "8.57", "-79.34"},
    {"New York", "-5", "40.42", "-74.01"},   {"Gothenburg", "1", "57.42", "11.58"},
    {"Bergen", "1", "60.235", "5.193"},      {"Rotterdam", "1", "51.55", "4.3"},
    {"Cape Town", "2", "-33.54", "18.26"},   {"Mumbai", "5.5", "18.56", "72.5"},
};

/// The next day and back, with all rows computed and painted and the file written each time.
void changeOfDate(const Rounds& round)
{
    BenchProgram program;
    auto* window = new frmSunMoon(program.program());
    const char* const boxes[] = {"txtLocation", "txtTD", "txtLatitude", "txtLongitude"};
    for (int row = 0; row < frmSunMoon::rows; ++row)
        for (int field = 0; field < 4; ++field)
            find<QLineEdit>(*window, memberName(boxes[field], row).toUtf8().constData())
                .setText(ports[row][field]);
    auto& bar = find<QScrollBar>(*window, "scrMoonSun");
    prepare(*window, find<QLineEdit>(*window, "txtSunMoon"));
    round([&] {
        keyToPaint(bar, Qt::Key_Right, {});
        keyToPaint(bar, Qt::Key_Left, {});
    });
    delete window;
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(argc, argv,
                      {{"ours/frmSunMoon date", changeOfDate},
                       {"peer/frmSunMoon date", bareTextBox("2005/3/14")}});
}
