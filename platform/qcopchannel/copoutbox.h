// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "copfolder.h"

#include <chrono>
#include <functional>
#include <mutex>
#include <vector>

namespace Cop {

/*!
 * The sending side of one channel in this process: the listeners in other processes, and a
 * connection to each, kept so that messages stay in order.
 *
 * A listener that made no room within the time of a send counts as stalled and is not waited for
 * until it takes something again. If part of a frame is in its queue already, the rest is kept and
 * goes first when it does, because what follows could not be understood without.
 */
class Outbox
{
public:
    using IsOwn = std::function<bool(const QByteArray&)>;

    /// `isOwn` tells the listeners of this process by their base names.
    Outbox(const QString& channel, IsOwn isOwn);

    struct Result
    {
        int listeners = 0;
        int reached = 0;
    };
    /// Puts the frame into the queue of every listener that makes room for it in time.
    Result send(const QByteArray& frame);

private:
    struct Peer
    {
        QByteArray name;
        FileDescriptor socket;
        QByteArray rest; // of a frame whose beginning was sent
        bool stalled = false;
    };
    struct Attempt;
    using TimePoint = std::chrono::steady_clock::time_point;

    void refresh();
    void advance(Attempt& attempt, std::chrono::milliseconds connectTimeout);
    bool connectPeer(Attempt& attempt, std::chrono::milliseconds timeout);
    void waitFor(std::vector<Attempt>& attempts);
    Result conclude(std::vector<Attempt>& attempts);

    const QByteArray m_prefix;
    const IsOwn m_isOwn;
    std::mutex m_mutex; // protects what follows; held while a listener is waited for
    Folder m_folder; // as it was when the listeners were looked for
    std::vector<Peer> m_peers;
};

} // namespace Cop
