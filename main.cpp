// SPDX-License-Identifier: MIT
#include "app/watch/clock/MakeComputerClock.h"
#include "calculator_windows.h"
#include "shell/main/RunProgram.h"

int main(int argc, char* argv[])
{
    return korvel::runProgram(argc, argv, korvel::makeComputerClock, korvel::calculatorWindows());
}
