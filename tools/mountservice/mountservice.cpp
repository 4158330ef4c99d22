// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "mountservice.h"

#include "mountinfo.h"

#include <QDataStream>
#include <QDir>

#include <utility>

namespace {

template <typename Content> void announce(const char* message, const Content& content)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << content;
    QCopChannel::send(QStringLiteral("OxWindowManager/Mounts"), QString::fromLatin1(message), data);
}

/// The folder as mountinfo would name it, which knows of no symbolic links.
QString withoutLinks(const QString& folder)
{
    const QFileInfo info(folder);
    return info.exists() ? info.canonicalFilePath() : QDir::cleanPath(info.absoluteFilePath());
}

} // namespace

MountService::MountService(QStringList folders, QObject* parent)
    : QObject(parent)
    , m_folders(std::move(folders))
    , m_mounts(readMounts())
    , m_requests(QStringLiteral("OxWindowManager"))
{
    connect(&m_requests, &QCopChannel::received, this, &MountService::onRequest);
    connect(&m_watch, &MountWatch::changed, this, &MountService::onMountsChanged);
    // For dialogs that asked before there was anybody to answer.
    sendMounts();
}

void MountService::onRequest(const QString& message)
{
    if (message == QLatin1String("mounts")) {
        sendMounts();
    }
}

// What is gone goes first: a medium that took the place of another of the same name is then the one
// that stays in the lists.
void MountService::onMountsChanged()
{
    const QStringList mounts = readMounts();
    const MountInfo::Changes changes = MountInfo::difference(m_mounts, mounts);
    m_mounts = mounts;
    for (const QString& path : changes.removed) {
        announce("remove", path);
    }
    for (const QString& path : changes.added) {
        announce("add", path);
    }
}

void MountService::sendMounts() const
{
    announce("mounts", m_mounts);
}

QStringList MountService::readMounts()
{
    QStringList folders;
    for (const QString& folder : std::as_const(m_folders)) {
        folders.append(withoutLinks(folder)); // again each time: it may have been made since
    }
    return MountInfo::mountsBelow(folders, m_watch.mountinfo());
}

#include "moc_mountservice.cpp"
