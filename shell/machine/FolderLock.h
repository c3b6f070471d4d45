// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>
#include <string>

namespace korvel
{

/// One program a folder: two would write the same records over each other. A second start leaves a
/// request beside the lock; the first program finds it, comes to the front and takes it away.
class FolderLock
{
public:
    /// Tries to take the lock. The lock of a program that crashed, or of a computer that was
    /// switched off, does not stand.
    /// @param folder of the records, without a trailing separator
    explicit FolderLock(const QString& folder);

    /// True when another program holds the folder. A folder that cannot be written to cannot be
    /// locked: no record is written there either, and any number of programs may read it.
    bool isHeldByAnother() const;

    /// Why the folder cannot be locked although records can be written there, in words; empty when
    /// nothing is in the way.
    std::string fault() const;

    /// Asks the program that holds the folder to come to the front and waits for it.
    /// @return false when it does not answer
    bool callTheOther(std::chrono::milliseconds patience);

    /// From now on does what is asked for when another start calls.
    void answerCalls(std::function<void()> comeToFront);

private:
    QString m_request;
    QString m_lockFile;
    QLockFile m_lock;
    QTimer m_timer;
    std::function<void()> m_comeToFront;
};

} // namespace korvel
