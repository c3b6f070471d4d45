// SPDX-License-Identifier: MIT
#pragma once

#include "shell/machine/Bell.h"

#include <QObject>
#include <QProcess>
#include <QTemporaryFile>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

namespace korvel
{

/// Plays the tone by the system's call for sounds or through the sound system's own player, because
/// desktops mute the bell; where neither works the bell is all there is. Everything runs beside the
/// event loop. Nothing is looked for or written before the first tone.
class SystemBell : public QObject, public Bell
{
public:
    struct Settings {
        std::function<void()> beep; ///< the desktop's bell when not given
        std::chrono::milliseconds repeat = std::chrono::seconds(3); ///< from one tone to the next
    };

    SystemBell() : SystemBell(Settings{}) {}
    explicit SystemBell(Settings settings);
    ~SystemBell() override;

    void start() override;
    void stop() override;
    void ringOnce() override;

private:
    void tick();
    void play();
    void playWithNextPlayer();
    void playerEnded(bool played);
    QString toneFile();

    Settings m_settings;
    QTimer m_timer;
    std::unique_ptr<QTemporaryFile> m_file;
    QProcess* m_process = nullptr; ///< the player at work
    std::size_t m_player{};        ///< players before this one did not work since the start
};

} // namespace korvel
