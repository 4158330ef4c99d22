// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <sys/stat.h>
#include <sys/un.h>

namespace Cop {

/// Closes a file descriptor when it goes.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int fd) noexcept
        : m_fd(fd)
    { }
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_fd(std::exchange(other.m_fd, -1))
    { }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~FileDescriptor() { close(); }

    Q_DISABLE_COPY(FileDescriptor)

    explicit operator bool() const { return m_fd >= 0; }
    int get() const { return m_fd; }
    /// Leaves the closing to the caller.
    int release() { return std::exchange(m_fd, -1); }
    void close();

private:
    int m_fd = -1;
};

/// What the file names of a channel's listeners begin with, whatever its name is made of.
QByteArray fileNamePrefix(const QString& channel);

/*!
 * The folder in which the listeners of one user's processes find each other.
 *
 * A listener has a lock file, which it holds locked for life, and a socket; see Endpoint. Whoever
 * gets the lock has found a dead listener and removes its files. So nobody has to connect to find
 * out who is alive, and a crash leaves nothing behind that matters.
 *
 * All work is done relative to the opened folder, which has been checked once: what the path names
 * afterwards is of no importance.
 */
class Folder
{
public:
    enum class IfMissing { Create, Accept };
    /// Opens the folder. Invalid, with a line in the log, if it must not be trusted or cannot be
    /// opened; invalid without one if it is not there and that is accepted.
    static Folder open(IfMissing ifMissing);

    bool isValid() const { return bool(m_fd); }
    int fd() const { return m_fd.get(); }

    /// Whether the listeners found now would be those that were found when it was opened. False
    /// if that is not certain; costs one system call.
    bool isCurrent() const;

    /// The living listeners of a channel, except those that `isOwn`, by the base names of their
    /// files. Removes what dead ones have left.
    std::vector<QByteArray> listeners(const QByteArray& prefix,
                                      const std::function<bool(const QByteArray&)>& isOwn) const;

    /// The address of a socket in this folder, short whatever the folder's path is.
    sockaddr_un address(const QByteArray& fileName) const;

private:
    friend class Endpoint;

    bool check(const QByteArray& path);
    bool isUnlocked(const QByteArray& fileName) const;
    void remove(const QByteArray& fileName) const;
    bool rename(const QByteArray& from, const QByteArray& to) const;
    void removeFiles(const QByteArray& listener) const;

    FileDescriptor m_fd;
    QByteArray m_environment; // what the folder's place was made of
    struct stat m_found = {};
    bool m_settled = false;
};

/*!
 * What makes a listener known to other processes: its lock and its listening socket.
 *
 * The socket appears under its name only when it accepts connections, and disappears before the
 * lock is given up.
 */
class Endpoint
{
public:
    /// A base name for the files of a new listener.
    static QByteArray newName(const QByteArray& prefix);
    /// Null, with a line in the log, if the listener cannot be made known.
    static std::unique_ptr<Endpoint> create(const QByteArray& name);
    ~Endpoint();

    Q_DISABLE_COPY_MOVE(Endpoint)

    int socket() const { return m_socket.get(); }

private:
    Endpoint(Folder folder, QByteArray name);
    bool lock();
    bool listen();

    Folder m_folder;
    QByteArray m_name;
    pid_t m_pid;
    FileDescriptor m_lock;
    FileDescriptor m_socket;
};

/// A connection to a listener of this folder, or none and errno, which is EAGAIN if its backlog
/// stayed full for `timeout`.
FileDescriptor connectTo(const Folder& folder, const QByteArray& listener,
                         std::chrono::milliseconds timeout);

} // namespace Cop
