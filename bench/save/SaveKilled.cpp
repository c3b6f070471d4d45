// SPDX-License-Identifier: MIT
// save_killed FOLDER ROUNDS: kills a process at a random moment of saving a settings file, again
// and again, and looks at what is left: the old file or the new one byte for byte, never less.

#include "shell/machine/ProgramFolder.h"

#include <QDir>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr const char* name = "KV_X.ini";

std::string content(char letter)
{
    std::string lines;
    for (int i = 0; i < 400; ++i)
        lines += '"' + std::string(60, letter) + "\"\r\n";
    return lines;
}

[[noreturn]] void saveForEver(const QString& folder)
{
    korvel::ProgramFolder files(folder);
    for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1))
        if (files.save(name, content(letter))) ::_exit(2);
}

bool isWhole(const std::string& bytes)
{
    return !bytes.empty() && bytes == content(bytes[1]);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::puts("usage: save_killed FOLDER ROUNDS");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const int rounds = std::atoi(argv[2]);
    std::mt19937 random(20);
    std::uniform_int_distribution<int> microseconds(0, 20000);
    int broken = 0;
    int remnants = 0;
    korvel::ProgramFolder(folder).save(name, content('0'));
    for (int i = 0; i < rounds; ++i) {
        const pid_t child = ::fork();
        if (child == 0) saveForEver(folder);
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        if (!WIFSIGNALED(status)) ++broken;
        const QStringList left = QDir(folder).entryList(QDir::Files);
        remnants += static_cast<int>(left.size()) - 1;
        korvel::ProgramFolder files(folder);
        if (!isWhole(files.read(name).bytes)) ++broken;
        if (QDir(folder).entryList(QDir::Files) != QStringList{name}) ++broken;
    }
    std::printf("%d kills, %d in the middle of a save, %d files less than whole\n", rounds,
                remnants, broken);
    return broken == 0 ? 0 : 1;
}
