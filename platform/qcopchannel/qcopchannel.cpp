// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "qcopchannel.h"

#include "copincoming.h"
#include "copprocess.h"

#include <QPointer>
#include <QSocketNotifier>

#include <optional>

class QCopChannel::Private
{
public:
    Private(QCopChannel* object, QString channelName);
    ~Private();

    Q_DISABLE_COPY_MOVE(Private)

    void readAndDeliver();
    void deliver();

    QCopChannel* const q;
    const QString channel;
    const QByteArray files = Cop::Endpoint::newName(Cop::fileNamePrefix(channel));
    Cop::Inbox inbox;
    std::unique_ptr<Cop::Endpoint> endpoint; // null if other processes cannot reach us
    std::optional<Cop::Incoming> incoming;
    std::unique_ptr<QSocketNotifier> notifier; // a child of the object, to change threads with it
};

QCopChannel::Private::Private(QCopChannel* object, QString channelName)
    : q(object)
    , channel(std::move(channelName))
{
    connect(
        &inbox, &Cop::Inbox::filled, q,
        [this] {
            inbox.acknowledge();
            deliver();
        },
        Qt::QueuedConnection);
    // Before other processes know of us, so that our own never takes our files for somebody else's.
    Cop::Process::self().add(channel, &inbox, files);
    endpoint = Cop::Endpoint::create(files);
    if (!endpoint) {
        return;
    }
    incoming.emplace(endpoint->socket());
    notifier = std::make_unique<QSocketNotifier>(incoming->descriptor(), QSocketNotifier::Read, q);
    connect(notifier.get(), &QSocketNotifier::activated, q, [this] { readAndDeliver(); });
}

QCopChannel::Private::~Private()
{
    Cop::Process::self().remove(channel, &inbox);
    notifier.reset();
    incoming.reset();
    endpoint.reset();
    Cop::Process::self().forgetFiles(files);
}

void QCopChannel::Private::readAndDeliver()
{
    // A little more than once: under a flood of messages, going to sleep after each one and being
    // woken for the next costs both sides several times what the message itself does.
    constexpr int Reads = 4;
    const QPointer<QCopChannel> alive(q);
    for (int i = 0; i < Reads; ++i) {
        // What has been read before goes first; until then the rest waits in the kernel, where it
        // slows its sender down.
        if (inbox.isEmpty()) {
            std::deque<Cop::Message> messages;
            incoming->read(messages);
            if (messages.empty()) {
                return;
            }
            inbox.put(std::move(messages));
        }
        deliver();
        if (!alive) {
            return;
        }
    }
}

void QCopChannel::Private::deliver()
{
    constexpr int MessagesPerPass = 256; // then the event loop gets its turn
    const QPointer<QCopChannel> alive(q);
    Cop::Message message;
    for (int i = 0; i < MessagesPerPass && inbox.take(message); ++i) {
        q->receive(message.text, message.data);
        if (!alive) {
            return; // and so are our own members
        }
    }
}

QCopChannel::QCopChannel(const QString& channel, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, channel))
{ }

QCopChannel::~QCopChannel() = default;

bool QCopChannel::isRegistered(const QString& channel)
{
    return Cop::Process::self().isRegistered(channel);
}

bool QCopChannel::send(const QString& channel, const QString& msg)
{
    return send(channel, msg, QByteArray());
}

bool QCopChannel::send(const QString& channel, const QString& msg, const QByteArray& data)
{
    return Cop::Process::self().send(channel, { msg, data });
}

bool QCopChannel::flush()
{
    return true;
}

QString QCopChannel::channel() const
{
    return d->channel;
}

void QCopChannel::receive(const QString& msg, const QByteArray& data)
{
    Q_EMIT received(msg, data);
}

#include "moc_qcopchannel.cpp"
