// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "mounts.h"

//! [announcersource]
#include <QDataStream>
#include <QIODevice>

namespace {

template <typename Data> void tellDialogs(const char* message, const Data& content)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << content;
    QCopChannel::send(QStringLiteral("OxWindowManager/Mounts"), QString::fromLatin1(message), data);
}

} // namespace

MediaAnnouncer::MediaAnnouncer(QObject* parent)
    : QObject(parent)
    , m_requests(QStringLiteral("OxWindowManager"))
{
    connect(&m_requests, &QCopChannel::received, this, &MediaAnnouncer::answer);
    sendAll(); // for dialogs that asked before there was somebody to answer
}

void MediaAnnouncer::add(const QString& path)
{
    m_paths.append(path);
    tellDialogs("add", path);
}

void MediaAnnouncer::remove(const QString& path)
{
    m_paths.removeAll(path);
    tellDialogs("remove", path);
}

void MediaAnnouncer::answer(const QString& message)
{
    if (message == QLatin1String("mounts")) {
        sendAll();
    }
}

void MediaAnnouncer::sendAll() const
{
    tellDialogs("mounts", m_paths);
}
//! [announcersource]
