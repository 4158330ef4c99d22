// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QObject>

#include <memory>

/*!
 * \brief A named channel on which the programs of one user send each other short messages.
 *
 * Make an object to listen; call the static functions to send. Every object on a channel, in
 * whichever process, gets every message, the sender's own objects included. There is no server
 * that must run: the objects find each other through a folder that only this user can enter.
 *
 * \code
 * auto* channel = new QCopChannel(QStringLiteral("Taskbar/Mounts"), this);
 * connect(channel, &QCopChannel::received, this, &Taskbar::onMountMessage);
 *
 * QCopChannel::send(QStringLiteral("Taskbar/Mounts"), QStringLiteral("add"), path.toUtf8());
 * \endcode
 *
 * Within a program use signals; for bulk data send a file's path.
 *
 * **Order.** Each object gets what one thread of one process sends on a channel in the order in
 * which it was sent, each message once. Nothing is promised between senders.
 *
 * **Delivery.** Messages arrive through the event loop of the thread that the object lives in,
 * never from within send(), and a slot may delete the object or run an event loop of its own. A
 * sender needs no event loop and no application object, and may end as soon as send() returns.
 * Messages that no listener is there for are lost.
 *
 * **Who may send.** Processes of the same user. The folder is `$XDG_RUNTIME_DIR/qcop`, or
 * `qcop-<uid>` in the temporary directory where that variable names no folder. One that is a
 * symbolic link, belongs to somebody else or can be entered by others is refused with a line in
 * the log: no message then leaves or enters the process. Programs not written with this class
 * join in as docs/channel-protocol.md says.
 *
 * **Threads.** The static functions may be called from any thread; objects live in any thread
 * that runs an event loop, and need an application object. A process that forks without starting
 * another program must not use its parent's objects in the child; its channels count as registered
 * until both have ended.
 */
class UTILITYWIDGETS_EXPORT QCopChannel : public QObject
{
    Q_OBJECT

public:
    /// Listens on `channel`, from now until this object dies. Any text is a good name: of any
    /// length, with any characters. If the object cannot be reached by other processes, the log
    /// says why, and it still gets what is sent by its own.
    explicit QCopChannel(const QString& channel, QObject* parent = nullptr);
    ~QCopChannel() override;

    /// Whether any object, in this process or another, listens on `channel`. Asks nothing of the
    /// listener, so a busy or stopped one is found as well, at once.
    static bool isRegistered(const QString& channel);

    /// Sends `msg` with empty data; otherwise as the function below.
    static bool send(const QString& channel, const QString& msg);
    /*!
     * Sends `msg` and `data` to every listener on `channel`, and returns whether there was at
     * least one and every one of them is sure to get the message unless it ends first.
     *
     * Waits only for a listener whose queue (some 200 KB) is full, and then for one second at
     * most. One that made no room in that time is not waited for again until it does: sends to it
     * return at once, and false as long as its queue is full. After false the message has still
     * reached, or may yet reach, some of the listeners; a message that is sent again may therefore
     * arrive twice. Messages above 16 MiB are not sent at all.
     */
    static bool send(const QString& channel, const QString& msg, const QByteArray& data);

    /// Returns true: what was sent has left this process already. For code that calls it before
    /// it ends.
    static bool flush();

    /// The name that was given to the constructor.
    QString channel() const;

    /// Called for each message. This implementation emits received(); one that overrides it and
    /// does not call it keeps the message from the connected slots.
    virtual void receive(const QString& msg, const QByteArray& data);

Q_SIGNALS:
    /// A message has arrived on the channel.
    void received(const QString& msg, const QByteArray& data);

private:
    class Private;
    std::unique_ptr<Private> d;
};
