// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "copfolder.h"
#include "copframe.h"

#include <deque>
#include <map>

namespace Cop {

/*!
 * The receiving side of one listener: its connections, and what has arrived on them.
 *
 * One descriptor, to be watched for reading, stands for all of them.
 *
 * A sender that had to connect again must not overtake itself. So connections are read in rounds:
 * new ones are accepted, then it is noted how much waits on each, and this much is read in the
 * order in which they were accepted.
 */
class Incoming
{
public:
    /// Accepts on `listeningSocket`, which must outlive this.
    explicit Incoming(int listeningSocket);

    /// Readable while there is something to do.
    int descriptor() const { return m_poll.get(); }

    /// Reads a bounded piece of what has arrived and appends the messages in it.
    void read(std::deque<Message>& messages);

private:
    struct Connection
    {
        FileDescriptor socket;
        Decoder decoder;
        quint64 lastRead = 0; // in calls of receive()
    };
    using Connections = std::map<quint64, Connection>; // by order of acceptance
    struct Turn
    {
        quint64 connection;
        qsizetype waiting; // bytes
    };

    void startRound(std::deque<Message>& messages);
    void acceptAll(std::deque<Message>& messages);
    void dropLongestIdle(std::deque<Message>& messages);
    qsizetype receive(Connection& connection, std::deque<Message>& messages);

    FileDescriptor m_poll;
    int m_listeningSocket;
    Connections m_connections;
    std::deque<Turn> m_round;
    quint64 m_accepted = 0;
    quint64 m_reads = 0;
};

} // namespace Cop
