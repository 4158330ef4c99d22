// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "copframe.h"
#include "copoutbox.h"

#include <QHash>
#include <QMultiHash>
#include <QObject>
#include <QSet>

#include <deque>
#include <memory>
#include <mutex>

#include <unistd.h>

namespace Cop {

/// The messages that a channel object has not handed out yet, wherever they came from. Any thread.
class Inbox : public QObject
{
    Q_OBJECT

public:
    void put(const Message& message);
    /// Puts them without a signal: the caller is about to take them.
    void put(std::deque<Message>&& messages);
    /// Takes the first message. Signals if that was not the last, so that the caller may forget
    /// the others, or run an event loop that must not pass them by.
    bool take(Message& message);
    /// To be called for each signal.
    void acknowledge();
    bool isEmpty();

Q_SIGNALS:
    /// Messages wait. From any thread, so to be connected with a queued connection; not repeated
    /// before it is acknowledged.
    void filled();

private:
    void signalOnce();

    std::mutex m_mutex; // protects what follows
    std::deque<Message> m_messages;
    bool m_signalled = false;
};

/// The listeners of this process, and what it keeps to send to others. Any thread.
class Process
{
public:
    static Process& self();

    Q_DISABLE_COPY_MOVE(Process)

    /// `files` is the base name of the listener's files.
    void add(const QString& channel, Inbox* inbox, const QByteArray& files);
    /// From here on nothing is put into the inbox.
    void remove(const QString& channel, Inbox* inbox);
    /// The listener's files are gone as well.
    void forgetFiles(const QByteArray& files);

    bool isRegistered(const QString& channel);
    bool send(const QString& channel, const Message& message);

private:
    explicit Process(Process* parent);

    bool isOwn(const QByteArray& files);
    int deliver(const QString& channel, const Message& message);
    std::shared_ptr<Outbox> outbox(const QString& channel);

    // The state of the process that this one was forked from. Its objects and connections are not
    // ours and its mutexes may be locked for ever: it is kept reachable, nothing else.
    const Process* const m_parent;
    const pid_t m_pid = ::getpid();
    std::mutex m_mutex; // protects what follows; never held while anything is waited for
    QMultiHash<QString, Inbox*> m_inboxes;
    QSet<QByteArray> m_ownFiles;
    QHash<QString, std::shared_ptr<Outbox>> m_outboxes;
};

} // namespace Cop
