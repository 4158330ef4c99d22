// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "copincoming.h"

#include "coplog.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <sys/epoll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Cop {

namespace {

// Far more than programs that talk to each other; few enough for any limit on open files.
constexpr size_t MaximumConnections = 256;
constexpr qsizetype ChunkSize = qsizetype(64) * 1024;
// What the poll descriptor calls the listening socket; connections count from 1.
constexpr quint64 ListeningSocket = 0;

bool watch(int poll, int socket, quint64 id)
{
    epoll_event event = {};
    event.events = EPOLLIN;
    event.data.u64 = id;
    return ::epoll_ctl(poll, EPOLL_CTL_ADD, socket, &event) == 0;
}

bool isOfThisUser(int socket)
{
    ucred peer = {};
    socklen_t size = sizeof(peer);
    return ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0
        && peer.uid == ::geteuid();
}

} // namespace

Incoming::Incoming(int listeningSocket)
    : m_poll(::epoll_create1(EPOLL_CLOEXEC))
    , m_listeningSocket(listeningSocket)
{
    watch(m_poll.get(), m_listeningSocket, ListeningSocket);
}

void Incoming::read(std::deque<Message>& messages)
{
    if (m_round.empty()) {
        startRound(messages);
    }
    while (!m_round.empty()) {
        Turn& turn = m_round.front();
        const auto found = m_connections.find(turn.connection);
        if (found == m_connections.end()) {
            m_round.pop_front();
            continue;
        }
        const qsizetype size = receive(found->second, messages);
        if (size < 0) {
            m_connections.erase(found);
        }
        turn.waiting -= size;
        if (size < ChunkSize || turn.waiting <= 0) {
            m_round.pop_front();
        }
        return;
    }
}

void Incoming::startRound(std::deque<Message>& messages)
{
    std::array<epoll_event, MaximumConnections + 1> events;
    const auto wait = [&] {
        return std::max(::epoll_wait(m_poll.get(), events.data(), int(events.size()), 0), 0);
    };
    const auto isListening = [](const epoll_event& event) {
        return event.data.u64 == ListeningSocket;
    };
    int ready = wait();
    if (std::any_of(events.begin(), events.begin() + ready, isListening)) {
        // And look again: what a sender wrote before it connected again must be seen to wait.
        acceptAll(messages);
        ready = wait();
    }
    for (auto event = events.begin(); event != events.begin() + ready; ++event) {
        if (!isListening(*event)) {
            m_round.push_back({ event->data.u64, 0 });
        }
    }
    if (m_round.size() <= 1) {
        return; // nobody else can be overtaken or kept waiting
    }
    std::sort(m_round.begin(), m_round.end(),
              [](const Turn& a, const Turn& b) { return a.connection < b.connection; });
    for (Turn& turn : m_round) {
        int waiting = 0;
        ::ioctl(m_connections.at(turn.connection).socket.get(), FIONREAD, &waiting);
        turn.waiting = waiting;
    }
}

void Incoming::acceptAll(std::deque<Message>& messages)
{
    for (size_t i = 0; i < MaximumConnections; ++i) {
        FileDescriptor socket(
            ::accept4(m_listeningSocket, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (!socket) {
            if (errno == ECONNABORTED || errno == EINTR) {
                continue;
            }
            if ((errno == EMFILE || errno == ENFILE) && !m_connections.empty()) {
                dropLongestIdle(messages);
                continue;
            }
            return;
        }
        if (!isOfThisUser(socket.get())) {
            COP_WARNING("A channel has refused a process of another user");
            continue;
        }
        if (m_connections.size() == MaximumConnections) {
            dropLongestIdle(messages);
        }
        const quint64 id = ++m_accepted;
        if (watch(m_poll.get(), socket.get(), id)) {
            m_connections[id] = { std::move(socket), {}, m_reads };
        }
    }
}

void Incoming::dropLongestIdle(std::deque<Message>& messages)
{
    const auto idle = std::min_element(
        m_connections.begin(), m_connections.end(),
        [](const auto& a, const auto& b) { return a.second.lastRead < b.second.lastRead; });
    // From here on its sender cannot write and connects again; what it has written is not lost.
    ::shutdown(idle->second.socket.get(), SHUT_RD);
    while (receive(idle->second, messages) > 0) { }
    m_connections.erase(idle);
}

/// The number of bytes, or -1 if the connection is at its end.
qsizetype Incoming::receive(Connection& connection, std::deque<Message>& messages)
{
    std::array<char, ChunkSize> chunk; // not cleared: recv() fills as much as is read
    connection.lastRead = ++m_reads;
    ssize_t size = 0;
    do {
        size = ::recv(connection.socket.get(), chunk.data(), chunk.size(), 0);
    } while (size < 0 && errno == EINTR);
    if (size < 0) {
        return errno == EAGAIN ? 0 : -1;
    }
    if (size == 0) {
        return -1;
    }
    if (!connection.decoder.feed(chunk.data(), size, messages)) {
        COP_WARNING("A channel has closed a connection that sent no valid message");
        return -1;
    }
    return size;
}

} // namespace Cop
