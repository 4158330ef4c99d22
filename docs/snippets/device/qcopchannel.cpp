// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Where a device would hand messages to its own server, this one delivers them within the process.

#include "qcopchannel.h"

#include <QList>

#include <cstdio>

namespace {

QList<QCopChannel*>& listeners()
{
    static QList<QCopChannel*> all;
    return all;
}

} // namespace

QCopChannel::QCopChannel(const QString& channel, QObject* parent)
    : QObject(parent)
    , m_channel(channel)
{
    listeners().append(this);
}

QCopChannel::~QCopChannel()
{
    listeners().removeAll(this);
}

bool QCopChannel::isRegistered(const QString& channel)
{
    for (const QCopChannel* listener : listeners()) {
        if (listener->m_channel == channel) {
            return true;
        }
    }
    return false;
}

bool QCopChannel::send(const QString& channel, const QString& msg)
{
    return send(channel, msg, QByteArray());
}

bool QCopChannel::send(const QString& channel, const QString& msg, const QByteArray& data)
{
    std::printf("device: %s to %s\n", qPrintable(msg), qPrintable(channel));
    for (QCopChannel* listener : listeners()) {
        if (listener->m_channel == channel) {
            QMetaObject::invokeMethod(
                listener, [listener, msg, data] { listener->receive(msg, data); },
                Qt::QueuedConnection);
        }
    }
    return isRegistered(channel);
}

bool QCopChannel::flush()
{
    return true;
}

QString QCopChannel::channel() const
{
    return m_channel;
}

void QCopChannel::receive(const QString& msg, const QByteArray& data)
{
    Q_EMIT received(msg, data);
}

#include "moc_qcopchannel.cpp"
