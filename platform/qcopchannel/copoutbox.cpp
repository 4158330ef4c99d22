// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "copoutbox.h"

#include "coplog.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>

namespace Cop {

namespace {

// The longest that one send may wait, for all listeners together.
constexpr std::chrono::milliseconds SendTimeout(1000);

enum class Written { Everything, Part, ConnectionLost };

/// Writes as much as the queue takes; `done` counts what it has taken.
Written write(int socket, const QByteArray& bytes, qsizetype& done)
{
    while (done < bytes.size()) {
        const ssize_t size = ::send(socket, bytes.constData() + done, size_t(bytes.size() - done),
                                    MSG_DONTWAIT | MSG_NOSIGNAL);
        if (size >= 0) {
            done += size;
        } else if (errno == EAGAIN || errno == ENOBUFS || errno == ENOMEM) {
            return Written::Part;
        } else if (errno != EINTR) {
            return Written::ConnectionLost;
        }
    }
    return Written::Everything;
}

} // namespace

struct Outbox::Attempt
{
    enum class State { Waiting, Done, Failed, Gone };

    Peer* peer;
    const QByteArray* frame;
    qsizetype done = 0; // bytes
    State state = State::Waiting;
    bool reconnected = false;
};

Outbox::Outbox(const QString& channel, IsOwn isOwn)
    : m_prefix(fileNamePrefix(channel))
    , m_isOwn(std::move(isOwn))
{ }

Outbox::Result Outbox::send(const QByteArray& frame)
{
    const std::lock_guard lock(m_mutex);
    if (!m_folder.isCurrent()) {
        refresh();
    }
    std::vector<Attempt> attempts;
    attempts.reserve(m_peers.size());
    for (Peer& peer : m_peers) {
        attempts.push_back({ &peer, &frame });
        advance(attempts.back(), {});
    }
    const auto isWaiting = [](const Attempt& attempt) {
        return attempt.state == Attempt::State::Waiting;
    };
    if (std::any_of(attempts.begin(), attempts.end(), isWaiting)) {
        waitFor(attempts);
    }
    return conclude(attempts);
}

/// Brings the list of listeners up to date; those that are still there keep their connection.
void Outbox::refresh()
{
    m_folder = Folder::open(Folder::IfMissing::Accept);
    std::vector<Peer> peers;
    if (m_folder.isValid()) {
        for (const QByteArray& name : m_folder.listeners(m_prefix, m_isOwn)) {
            const auto known = std::find_if(m_peers.begin(), m_peers.end(),
                                            [&](const Peer& peer) { return peer.name == name; });
            peers.push_back(known != m_peers.end() ? std::move(*known)
                                                   : Peer { name, {}, {}, false });
        }
    }
    m_peers = std::move(peers);
}

/// Goes as far as possible without waiting for anything but a connection.
void Outbox::advance(Attempt& attempt, std::chrono::milliseconds connectTimeout)
{
    Peer& peer = *attempt.peer;
    while (attempt.state == Attempt::State::Waiting) {
        if (!peer.socket && !connectPeer(attempt, connectTimeout)) {
            return;
        }
        qsizetype restDone = 0;
        Written written = write(peer.socket.get(), peer.rest, restDone);
        peer.rest.remove(0, restDone);
        if (written == Written::Everything) {
            written = write(peer.socket.get(), *attempt.frame, attempt.done);
        }
        if (written == Written::Part) {
            return;
        }
        if (written == Written::Everything) {
            attempt.state = Attempt::State::Done;
            return;
        }
        // Dead, or it had to close a connection: what it has not got as a whole it drops.
        peer.socket.close();
        peer.rest.clear();
        attempt.done = 0;
        if (std::exchange(attempt.reconnected, true)) {
            attempt.state = Attempt::State::Failed;
        }
    }
}

bool Outbox::connectPeer(Attempt& attempt, std::chrono::milliseconds timeout)
{
    attempt.peer->socket = connectTo(m_folder, attempt.peer->name, timeout);
    if (attempt.peer->socket) {
        return true;
    }
    if (errno == ECONNREFUSED || errno == ENOENT) {
        attempt.state = Attempt::State::Gone;
    } else if (errno != EAGAIN && errno != EINTR) {
        attempt.state = Attempt::State::Failed;
        COP_WARNING("A listener on a channel cannot be reached: %s", std::strerror(errno));
    }
    return false;
}

/// Waits until nothing is left to wait for, or the time is over.
void Outbox::waitFor(std::vector<Attempt>& attempts)
{
    using std::chrono::milliseconds;
    using std::chrono::steady_clock;
    const TimePoint deadline = steady_clock::now() + SendTimeout;
    milliseconds remaining = SendTimeout;
    std::vector<pollfd> sockets;
    do {
        sockets.clear();
        Attempt* unconnected = nullptr;
        for (Attempt& attempt : attempts) {
            if (attempt.state != Attempt::State::Waiting || attempt.peer->stalled) {
                continue;
            }
            if (attempt.peer->socket) {
                sockets.push_back({ attempt.peer->socket.get(), POLLOUT, 0 });
            } else {
                unconnected = &attempt;
            }
        }
        if (!sockets.empty()) {
            ::poll(sockets.data(), nfds_t(sockets.size()), int(remaining.count()));
        } else if (unconnected != nullptr) {
            advance(*unconnected, remaining);
        } else {
            return;
        }
        // Once more after the deadline too: a queue is reported as writable only when it is
        // nearly empty, and takes a message long before.
        for (Attempt& attempt : attempts) {
            if (!attempt.peer->stalled) {
                advance(attempt, {});
            }
        }
        remaining = std::chrono::ceil<milliseconds>(deadline - steady_clock::now());
    } while (remaining.count() > 0);
}

Outbox::Result Outbox::conclude(std::vector<Attempt>& attempts)
{
    Result result;
    bool someGone = false;
    for (Attempt& attempt : attempts) {
        Peer& peer = *attempt.peer;
        someGone = someGone || attempt.state == Attempt::State::Gone;
        result.listeners += attempt.state == Attempt::State::Gone ? 0 : 1;
        result.reached += attempt.state == Attempt::State::Done ? 1 : 0;
        peer.stalled = attempt.state == Attempt::State::Waiting;
        if (attempt.done > 0 && peer.stalled) {
            peer.rest = attempt.frame->mid(attempt.done);
        }
    }
    if (someGone) {
        refresh(); // removes what the dead have left
    }
    return result;
}

} // namespace Cop
