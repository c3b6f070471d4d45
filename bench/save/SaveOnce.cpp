// SPDX-License-Identifier: MIT
// save_once FOLDER TEXT: saves a settings file once; on failure says why and ends with 1.

#include "shell/machine/ProgramFolder.h"

#include <cstdio>

int main(int argc, char* argv[])
{
    if (argc != 3) return 2;
    korvel::ProgramFolder files(QString::fromLocal8Bit(argv[1]));
    const auto reason = files.save("KV_X.ini", argv[2]);
    if (reason) std::printf("not saved: %s\n", reason->c_str());
    return reason ? 1 : 0;
}
