// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "mountwatch.h"
#include "qcopchannel.h"

#include <QStringList>

/*!
 * Tells file dialogs which removable media are mounted: the window manager's part of what
 * docs/mounts-protocol.md says.
 */
class MountService : public QObject
{
    Q_OBJECT

public:
    /// Tells of what is mounted below `folders`. They need not exist yet.
    explicit MountService(QStringList folders, QObject* parent = nullptr);

    /// Whether the kernel lets us see what is mounted. Otherwise error() says why not.
    bool isWatching() const { return m_watch.isOpen(); }
    QString error() const { return m_watch.error(); }

private:
    void onRequest(const QString& message);
    void onMountsChanged();
    void sendMounts() const;
    QStringList readMounts();

    QStringList m_folders;
    MountWatch m_watch;
    /// As last announced: those who ask and those who listen are told the same story.
    QStringList m_mounts;
    QCopChannel m_requests;
};
