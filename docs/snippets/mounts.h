// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

//! [announcer]
#include <QCopChannel>

#include <QStringList>

/// Tells the file dialogs of all programs which removable media are mounted.
class MediaAnnouncer : public QObject
{
    Q_OBJECT

public:
    explicit MediaAnnouncer(QObject* parent = nullptr);

    /// Call them when the medium at `path` has been mounted, and when it is gone.
    void add(const QString& path);
    void remove(const QString& path);

private:
    void answer(const QString& message);
    void sendAll() const;

    QCopChannel m_requests;
    QStringList m_paths;
};
//! [announcer]
