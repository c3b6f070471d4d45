// SPDX-License-Identifier: MIT
#include "shell/machine/FolderLock.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

// A lock without a readable owner (the power went while it was written) counts for this long. That
// of a program that runs cannot be taken however old it is: the system holds it too.
constexpr auto unreadableLock = 2s;
constexpr auto lookInterval = 400ms;

/// True for a folder, a pipe or a device that has a file's name.
bool isNoFile(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile();
}

} // namespace

FolderLock::FolderLock(const QString& folder)
    : m_request(folder + "/KV_KORVEL.call"), m_lockFile(folder + "/KV_KORVEL.lock"),
      m_lock(m_lockFile)
{
    if (isNoFile(m_lockFile)) return; // asking a pipe for its owner would wait for ever
    m_lock.setStaleLockTime(unreadableLock);
    qint64 owner = 0;
    if (!m_lock.tryLock(0) && isHeldByAnother() && !m_lock.getLockInfo(&owner, nullptr, nullptr))
        m_lock.tryLock(unreadableLock + 500ms);
    if (m_lock.isLocked()) QFile::remove(m_request); // meant for the one before
}

bool FolderLock::isHeldByAnother() const
{
    return m_lock.error() == QLockFile::LockFailedError;
}

std::string FolderLock::fault() const
{
    if (!isNoFile(m_lockFile)) return {};
    return '"' + QDir::toNativeSeparators(m_lockFile).toStdString() +
           "\" is not the program's lock but a folder or a pipe. Take it away: as long as it is "
           "there nothing keeps a second program from writing the same records.";
}

bool FolderLock::callTheOther(std::chrono::milliseconds patience)
{
    if (isNoFile(m_request)) return false;
    QFile request(m_request);
    if (!request.open(QIODevice::WriteOnly)) return false;
    request.close();
    for (const QDeadlineTimer end(patience); !end.hasExpired(); QThread::msleep(50))
        if (!QFile::exists(m_request)) return true;
    QFile::remove(m_request);
    return false;
}

void FolderLock::answerCalls(std::function<void()> comeToFront)
{
    m_comeToFront = std::move(comeToFront);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
        if (QFile::exists(m_request) && QFile::remove(m_request)) m_comeToFront();
    });
    m_timer.start(lookInterval);
}

} // namespace korvel
