// SPDX-License-Identifier: MIT
#include "shell/machine/SystemBell.h"

#include "app/watch/Tone.h"
#include "shell/machine/SoundCall.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

#include <array>

namespace korvel
{
namespace
{

struct Player {
    const char* program;
    const char* option; ///< before the file's name; nullptr for none
};

constexpr std::array players = {Player{"pw-play", nullptr}, Player{"paplay", nullptr},
                                Player{"aplay", "-q"}};

} // namespace

SystemBell::SystemBell(Settings settings) : m_settings(std::move(settings))
{
    if (!m_settings.beep) m_settings.beep = [] { QApplication::beep(); };
    connect(&m_timer, &QTimer::timeout, this, &SystemBell::tick);
}

SystemBell::~SystemBell()
{
    stopSoundCall();
    // Also those that stop() has killed and nobody has buried yet. They are dead when this waits.
    for (QProcess* process : findChildren<QProcess*>()) {
        process->disconnect();
        process->kill();
        process->waitForFinished(500);
    }
}

void SystemBell::start()
{
    if (m_timer.isActive()) return;
    m_timer.start(m_settings.repeat);
    m_player = 0; // the sound system may have come up since
    if (!m_process) play();
}

void SystemBell::ringOnce()
{
    if (m_timer.isActive() || m_process) return;
    m_player = 0;
    play();
}

void SystemBell::stop()
{
    m_timer.stop();
    stopSoundCall();
    if (!m_process) return;
    // The officer has acknowledged: silence at once, and no word from this player any more.
    QProcess* process = std::exchange(m_process, nullptr);
    process->disconnect(this);
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    process->kill();
}

void SystemBell::tick()
{
    if (m_process)
        m_process->kill(); // hangs: it counts as failed, and the next player takes over
    else
        play();
}

void SystemBell::play()
{
    if (!startSoundCall()) playWithNextPlayer();
}

void SystemBell::playWithNextPlayer()
{
    QString program;
    for (; m_player < players.size(); ++m_player) {
        program = QStandardPaths::findExecutable(QString::fromLatin1(players[m_player].program));
        if (!program.isEmpty()) break;
    }
    const QString file = program.isEmpty() ? QString() : toneFile();
    if (file.isEmpty()) {
        m_settings.beep();
        return;
    }
    QStringList arguments;
    if (players[m_player].option) arguments << QString::fromLatin1(players[m_player].option);
    arguments << file;

    m_process = new QProcess(this);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setStandardOutputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    connect(m_process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        playerEnded(code == 0 && status == QProcess::NormalExit);
    });
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) playerEnded(false); // finished() does not follow
    });
    m_process->start(program, arguments);
}

void SystemBell::playerEnded(bool played)
{
    std::exchange(m_process, nullptr)->deleteLater();
    if (played) return;
    ++m_player;
    playWithNextPlayer();
}

/// The tone's file, written when it is first wanted and when somebody has cleaned it away: a
/// program at sea runs longer than temporary files are kept.
/// @return its path; empty when it cannot be written
QString SystemBell::toneFile()
{
    const std::string tone = alarmTone();
    const auto size = static_cast<qint64>(tone.size());
    if (m_file && QFileInfo(m_file->fileName()).size() == size) return m_file->fileName();
    m_file = std::make_unique<QTemporaryFile>(QDir::tempPath() +
                                              QStringLiteral("/korvel2000-XXXXXX.wav"));
    const bool written =
        m_file->open() && m_file->write(tone.data(), size) == size && m_file->flush();
    const QString name = m_file->fileName();
    m_file->close();
    if (!written) m_file.reset();
    return written ? name : QString();
}

} // namespace korvel
