// SPDX-License-Identifier: Apache-2.0
#include "SocketFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace control {

namespace {

/// A file descriptor that closes itself.
class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return m_fd; }
    int release() { return std::exchange(m_fd, -1); }

private:
    int m_fd;
};

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/// One byte less than the system takes, since QLocalSocket, with which clients connect, does not take that
/// one.
constexpr qsizetype LongestPath = qsizetype(sizeof(sockaddr_un::sun_path)) - 2;

bool fillAddress(const QString& path, sockaddr_un* address)
{
    const QByteArray name = QFile::encodeName(path);
    *address = {};
    address->sun_family = AF_UNIX;
    if (name.isEmpty() || name.size() > LongestPath || name.contains('\0'))
        return false;
    std::memcpy(address->sun_path, name.constData(), size_t(name.size()));
    return true;
}

QString lengthError(const QString& path)
{
    return u"the path of the control socket is too long: %1 bytes, at most %2 are possible: %3"_s
        .arg(QFile::encodeName(path).size())
        .arg(LongestPath)
        .arg(path);
}

/// Somebody listens at the address. A listener that is too busy to take another connection counts.
bool isServed(const sockaddr_un& address)
{
    const Descriptor probe(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return ::connect(probe.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 ||
           errno == EAGAIN || errno == EINPROGRESS;
}

/// Opens the folder, made if need be. What is wrong with it goes to @p error.
int openFolder(const QString& folder, QString* error)
{
    if (!QDir(folder).exists()) {
        const QString parent = QFileInfo(folder).absolutePath();
        if (!QDir().mkpath(parent) ||
            (::mkdir(QFile::encodeName(folder).constData(), 0700) != 0 && errno != EEXIST)) {
            *error = u"the folder of the control socket cannot be made: %1: %2"_s.arg(folder, systemError());
            return -1;
        }
    }
    Descriptor fd(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status;
    if (fd.get() < 0 || ::fstat(fd.get(), &status) != 0) {
        *error = u"the folder of the control socket cannot be opened: %1: %2"_s.arg(folder, systemError());
        return -1;
    }
    // In a sticky folder, such as /tmp, others may add files but neither take away nor replace the user's.
    if (status.st_mode & (S_IWGRP | S_IWOTH) && !(status.st_mode & S_ISVTX)) {
        *error = u"the folder of the control socket may be written by other users, which is not safe: %1 "
                 u"(use one of "
                 "mode 0700)"_s.arg(folder);
        return -1;
    }
    return fd.release();
}

/// Takes away what a process that is gone has left behind. What is wrong goes to @p error.
bool removeStale(const QString& path, QString* error)
{
    struct stat status;
    const QByteArray name = QFile::encodeName(path);
    if (::lstat(name.constData(), &status) != 0)
        return true;
    if (!S_ISSOCK(status.st_mode)) {
        *error = u"the path of the control socket is taken by something that is no socket: %1"_s.arg(path);
        return false;
    }
    if (::unlink(name.constData()) != 0) {
        *error = u"the old control socket cannot be removed: %1: %2"_s.arg(path, systemError());
        return false;
    }
    return true;
}

} // namespace

SocketClaim claimSocket(const QString& givenPath)
{
    const QString path = QFileInfo(givenPath).absoluteFilePath();
    sockaddr_un address;
    if (givenPath.isEmpty() || path.endsWith(u'/'))
        return {-1, false, u"the path of the control socket names no file: \"%1\""_s.arg(givenPath)};
    if (!fillAddress(path, &address))
        return {-1, false, lengthError(path)};

    QString error;
    const Descriptor folder(openFolder(QFileInfo(path).absolutePath(), &error));
    if (folder.get() < 0)
        return {-1, false, error};
    // Held until the socket listens, so that of two processes only one finds the path free.
    if (::flock(folder.get(), LOCK_EX) != 0)
        return {-1, false, u"the folder of the control socket cannot be locked: %1"_s.arg(systemError())};
    if (isServed(address))
        return {-1, true, {}};
    if (!removeStale(path, &error))
        return {-1, false, error};

    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    // The mode of the descriptor becomes that of the file: it is never open to others, not even for a moment.
    if (socket.get() < 0 || ::fchmod(socket.get(), 0600) != 0 ||
        ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(socket.get(), 128) != 0)
        return {-1, false, u"the control socket cannot be made: %1: %2"_s.arg(path, systemError())};
    return {socket.release(), false, {}};
}

bool anotherInstanceRuns(const QString& path)
{
    sockaddr_un address;
    return fillAddress(QFileInfo(path).absoluteFilePath(), &address) && isServed(address);
}

bool raiseOther(const QString& path, int timeoutMs)
{
    QElapsedTimer elapsed;
    elapsed.start();
    QLocalSocket socket;
    socket.connectToServer(QFileInfo(path).absoluteFilePath());
    if (!socket.waitForConnected(timeoutMs))
        return false;
    socket.write("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"ui.show\"}\n");
    while (!socket.canReadLine()) {
        const int left = timeoutMs - int(elapsed.elapsed());
        if (left <= 0 || !socket.waitForReadyRead(left))
            return socket.canReadLine();
    }
    return true;
}

} // namespace control
