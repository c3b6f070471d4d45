// SPDX-License-Identifier: MIT
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "forms/frmTanks/TankRecord.h"
#include "forms/frmTanks/frmTanks.h"

/// The tank list with 200 tanks beside the same with 20.
namespace
{

using namespace korvel;
using namespace korvel::bench;

constexpr std::size_t few = 20;

/// A program whose record has a cargo of two grades in both surveys.
struct TanksProgram : BenchProgram {
    explicit TanksProgram(std::size_t tanks)
    {
        TankSheet sheet;
        TankList& cargo = sheet.list(ListKind::Cargo);
        cargo.grades[0].name = "Gasoline";
        cargo.grades[0].table = "54B";
        cargo.grades[0].density = "721.4";
        cargo.grades[1].name = "Gas oil";
        cargo.grades[1].table = "54B";
        cargo.grades[1].density = "842.8";
        for (std::size_t i = 0; i < tanks; ++i) {
            TankRow row;
            row.tank = std::to_string(i + 1);
            row.surveys = {TankReading{"dry", "0", "", "", ""},
                           TankReading{"2.30 m", "1104.355", "0.046", "22.0", i % 2 ? "2" : "1"}};
            cargo.rows.push_back(row);
        }
        files.save("KV_Tanks.ini", tankRecordText(sheet));
    }
};

/// A key in the volume of a tank in the middle, to the painted rows and totals.
Work keyIn(std::size_t tanks)
{
    return [tanks](const Rounds& round) {
        TanksProgram program(tanks);
        auto* window = new frmTanks(program.program());
        auto& box = find<QLineEdit>(*window, "txtTank(2)");
        prepare(*window, box);
        for (std::size_t row = 0; row < tanks / 2; ++row)
            keyToPaint(box, Qt::Key_Down, {});
        box.setFocus(Qt::OtherFocusReason);
        box.end(false);
        round([&] { digitAndBack(box); });
        delete window;
    };
}

/// The window from nothing to its painted rows, and away again.
Work open(std::size_t tanks)
{
    return [tanks](const Rounds& round) {
        TanksProgram program(tanks);
        round([&] {
            frmTanks window(program.program());
            window.show();
            QApplication::processEvents();
        });
    };
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(argc, argv,
                      {{"ours/frmTanks key", keyIn(mostTanks)},
                       {"peer/frmTanks key", keyIn(few)},
                       {"ours/frmTanks open", open(mostTanks)},
                       {"peer/frmTanks open", open(few)}});
}
