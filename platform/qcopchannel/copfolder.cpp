// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "copfolder.h"

#include "coplog.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <cstring>
#include <map>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Cop {

namespace {

constexpr char RuntimeVariable[] = "XDG_RUNTIME_DIR";
constexpr char LockSuffix[] = ".lock";
constexpr char SocketSuffix[] = ".sock";
constexpr char UnfinishedSuffix[] = ".new";

// The queue of connections that are not accepted yet; the kernel cuts it to net.core.somaxconn.
constexpr int Backlog = 4096;

struct Location
{
    QByteArray parent;
    QByteArray name;
    bool parentIsPrivate = false;

    QByteArray path() const { return parent + '/' + name; }
};

Location location()
{
    QByteArray runtime = qgetenv(RuntimeVariable);
    while (runtime.endsWith('/') && runtime.size() > 1) {
        runtime.chop(1); // or a symbolic link would be followed
    }
    struct stat folder = {};
    if (runtime.startsWith('/') && ::lstat(runtime.constData(), &folder) == 0) {
        return { runtime, QByteArrayLiteral("qcop"), true };
    }
    return { QFile::encodeName(QDir::tempPath()),
             QByteArrayLiteral("qcop-") + QByteArray::number(::geteuid()), false };
}

bool sameTime(const timespec& a, const timespec& b)
{
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

timespec coarseNow()
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return now;
}

/// Whether a change after `now`, which was read before the folder was, shows in its times.
///
/// They only move on with the kernel's coarse clock. One that was read in the same tick as the
/// last change would look the same after the next.
bool isSettled(const struct stat& folder, const timespec& now)
{
    constexpr qint64 NanosecondsPerSecond = 1'000'000'000;
    // Ten ticks of the slowest clock; or more than the two seconds that some file systems count in.
    const qint64 margin = (folder.st_mtim.tv_nsec == 0 ? 3000 : 100) * qint64(1'000'000);
    const qint64 age = (now.tv_sec - folder.st_mtim.tv_sec) * NanosecondsPerSecond
        + (now.tv_nsec - folder.st_mtim.tv_nsec);
    return age > margin;
}

} // namespace

void FileDescriptor::close()
{
    if (m_fd >= 0) {
        ::close(m_fd);
        m_fd = -1;
    }
}

QByteArray fileNamePrefix(const QString& channel)
{
    // Half of the hash: a socket's address has room for 107 bytes.
    return QCryptographicHash::hash(channel.toUtf8(), QCryptographicHash::Sha256).toHex().left(32)
        + '.';
}

Folder Folder::open(IfMissing ifMissing)
{
    const Location place = location();
    Folder folder;
    folder.m_environment = qgetenv(RuntimeVariable);
    const FileDescriptor parent(
        ::open(place.parent.constData(),
               O_PATH | O_DIRECTORY | O_CLOEXEC | (place.parentIsPrivate ? O_NOFOLLOW : 0)));
    struct stat parentStat = {};
    if (!parent || ::fstat(parent.get(), &parentStat) != 0
        || (place.parentIsPrivate && parentStat.st_uid != ::geteuid())) {
        // Making our folder in somebody else's would lock its owner out of channels of their own.
        COP_WARNING("The runtime folder %s is refused: it is no real directory of this user",
                    place.parent.constData());
        return folder;
    }
    if (ifMissing == IfMissing::Create) {
        ::mkdirat(parent.get(), place.name.constData(), 0700);
    }
    folder.m_fd = FileDescriptor(::openat(parent.get(), place.name.constData(),
                                          O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder.m_fd && errno == ENOENT && ifMissing == IfMissing::Accept) {
        return folder;
    }
    if (!folder.check(place.path())) {
        folder.m_fd.close();
    }
    return folder;
}

bool Folder::check(const QByteArray& path)
{
    const bool isDirectory = bool(m_fd);
    const int error = errno;
    if (!isDirectory && error != ENOTDIR && error != ELOOP) {
        COP_WARNING("The folder of the channels %s cannot be opened: %s", path.constData(),
                    std::strerror(error));
        return false;
    }
    const timespec now = coarseNow();
    struct stat folder = {};
    if (!isDirectory || ::fstat(m_fd.get(), &folder) != 0 || folder.st_uid != ::geteuid()
        || (folder.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
        COP_WARNING(
            "The folder of the channels %s is refused: it is no real directory of this user alone",
            path.constData());
        return false;
    }
    m_found = folder;
    m_settled = isSettled(folder, now);
    return true;
}

bool Folder::isCurrent() const
{
    // A folder that was renamed or removed has another time of change as well.
    struct stat now = {};
    return m_settled && ::fstat(fd(), &now) == 0 && sameTime(now.st_mtim, m_found.st_mtim)
        && sameTime(now.st_ctim, m_found.st_ctim) && qgetenv(RuntimeVariable) == m_environment;
}

std::vector<QByteArray> Folder::listeners(const QByteArray& prefix,
                                          const std::function<bool(const QByteArray&)>& isOwn) const
{
    // Each base name with whether its socket is there: one without cannot be sent to yet.
    std::map<QByteArray, bool> found;
    FileDescriptor copy(::openat(fd(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(copy ? ::fdopendir(copy.get()) : nullptr,
                                                      [](DIR* dir) { return ::closedir(dir); });
    if (!entries) {
        COP_WARNING("The folder of the channels cannot be read: %s", std::strerror(errno));
        return {};
    }
    copy.release(); // closedir() closes it
    while (const dirent* entry = ::readdir(entries.get())) {
        const QByteArray name(entry->d_name);
        if (name.startsWith(prefix)) {
            const QByteArray base = name.left(name.lastIndexOf('.'));
            found[base] |= name.endsWith(SocketSuffix);
        } else if (name.startsWith(QByteArray('.' + prefix)) && isUnlocked(name)) {
            remove(name); // its maker ended, or makes another
        }
    }

    std::vector<QByteArray> living;
    for (const auto& [base, hasSocket] : found) {
        if (isOwn(base)) {
            continue;
        }
        // The lock comes before the socket and goes after it, so none is without its lock.
        if (isUnlocked(base + LockSuffix)) {
            removeFiles(base);
        } else if (hasSocket) {
            living.push_back(base);
        }
    }
    return living;
}

bool Folder::isUnlocked(const QByteArray& fileName) const
{
    const FileDescriptor lock(
        ::openat(fd(), fileName.constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    // What cannot be opened may well be locked: nothing is known, so nothing must be removed.
    return lock ? ::flock(lock.get(), LOCK_SH | LOCK_NB) == 0 : errno == ENOENT;
}

void Folder::remove(const QByteArray& fileName) const
{
    ::unlinkat(fd(), fileName.constData(), 0);
}

bool Folder::rename(const QByteArray& from, const QByteArray& to) const
{
    return ::renameat(fd(), from.constData(), fd(), to.constData()) == 0;
}

void Folder::removeFiles(const QByteArray& listener) const
{
    for (const char* suffix : { SocketSuffix, UnfinishedSuffix, LockSuffix }) {
        remove(listener + suffix);
    }
}

sockaddr_un Folder::address(const QByteArray& fileName) const
{
    const QByteArray path =
        "/proc/self/fd/" + QByteArray::number(fd()) + QByteArrayLiteral("/") + fileName;
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    Q_ASSERT(size_t(path.size()) < sizeof(address.sun_path));
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    return address;
}

QByteArray Endpoint::newName(const QByteArray& prefix)
{
    // Random, because neither process numbers nor counters are unique: processes in different
    // containers can share this folder.
    return prefix + QByteArray::number(qint64(::getpid())) + '-'
        + QByteArray::number(QRandomGenerator::global()->generate64(), 16);
}

std::unique_ptr<Endpoint> Endpoint::create(const QByteArray& name)
{
    Folder folder = Folder::open(Folder::IfMissing::Create);
    if (!folder.isValid()) {
        return {};
    }
    std::unique_ptr<Endpoint> endpoint(new Endpoint(std::move(folder), name));
    if (!endpoint->lock() || !endpoint->listen()) {
        COP_WARNING("A channel cannot be heard by other processes: %s", std::strerror(errno));
        return {};
    }
    return endpoint;
}

Endpoint::Endpoint(Folder folder, QByteArray name)
    : m_folder(std::move(folder))
    , m_name(std::move(name))
    , m_pid(::getpid())
{ }

Endpoint::~Endpoint()
{
    // In a child that was forked the files are still those of the parent.
    if (m_pid != ::getpid()) {
        return;
    }
    m_folder.removeFiles(m_name);
}

bool Endpoint::lock()
{
    // The lock appears under its name when it is held already: nobody can take a listener that is
    // just being made for a dead one. Who comes across the unfinished file may remove it, hence
    // the attempts.
    constexpr int Attempts = 100;
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        const QByteArray unfinished = '.' + m_name + '.' + QByteArray::number(attempt);
        m_lock = FileDescriptor(::openat(m_folder.fd(), unfinished.constData(),
                                         O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!m_lock) {
            return false;
        }
        if (::flock(m_lock.get(), LOCK_EX | LOCK_NB) == 0
            && m_folder.rename(unfinished, m_name + LockSuffix)) {
            return true;
        }
        m_folder.remove(unfinished);
    }
    return false;
}

bool Endpoint::listen()
{
    m_socket = FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    const QByteArray unfinished = m_name + UnfinishedSuffix;
    const sockaddr_un address = m_folder.address(unfinished);
    return m_socket
        && ::bind(m_socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0
        && ::listen(m_socket.get(), Backlog) == 0
        && m_folder.rename(unfinished, m_name + SocketSuffix);
}

FileDescriptor connectTo(const Folder& folder, const QByteArray& listener,
                         std::chrono::milliseconds timeout)
{
    const bool wait = timeout.count() > 0;
    FileDescriptor socket(
        ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | (wait ? 0 : SOCK_NONBLOCK), 0));
    if (!socket) {
        return socket;
    }
    if (wait) {
        // A full backlog cannot be polled for; but a blocking connect() obeys this timeout.
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(timeout);
        const std::chrono::microseconds rest = timeout - seconds;
        const timeval limit = { seconds.count(), rest.count() };
        ::setsockopt(socket.get(), SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof(limit));
    }
    const sockaddr_un address = folder.address(listener + SocketSuffix);
    if (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address))
        != 0) {
        const int error = errno;
        socket.close();
        errno = error;
    }
    return socket;
}

} // namespace Cop
