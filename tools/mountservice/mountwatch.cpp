// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "mountwatch.h"

MountWatch::MountWatch(QObject* parent)
    : QObject(parent)
    , m_notifier(QSocketNotifier::Exception)
{
    // Unbuffered: what is read after a change must be what is there now.
    if (m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        m_notifier.setSocket(m_file.handle());
        m_notifier.setEnabled(true);
    }
    connect(&m_notifier, &QSocketNotifier::activated, this, &MountWatch::changed);
}

MountWatch::~MountWatch() = default;

// A change while this reads may leave the text half old; it also brings the next signal.
QByteArray MountWatch::mountinfo()
{
    m_file.seek(0);
    return m_file.readAll();
}

#include "moc_mountwatch.cpp"
