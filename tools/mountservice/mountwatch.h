// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QObject>
#include <QSocketNotifier>

/*!
 * The mounts that this process can see, and when they change.
 *
 * Costs nothing while nothing is mounted: the kernel wakes the process. Nothing on the media is
 * looked at, so none that does not answer can hold it up.
 */
class MountWatch : public QObject
{
    Q_OBJECT

public:
    explicit MountWatch(QObject* parent = nullptr);
    ~MountWatch() override;

    /// Whether the kernel lets us look. Otherwise error() says why not.
    bool isOpen() const { return m_file.isOpen(); }
    QString error() const { return m_file.errorString(); }

    /// The text of /proc/self/mountinfo as of now.
    QByteArray mountinfo();

Q_SIGNALS:
    /// Something has been mounted, unmounted or moved, and mountinfo() tells what is there now.
    void changed();

private:
    QFile m_file { QStringLiteral("/proc/self/mountinfo") };
    QSocketNotifier m_notifier;
};
