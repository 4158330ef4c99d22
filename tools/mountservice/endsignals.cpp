// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "endsignals.h"

#include <csignal>

#include <sys/signalfd.h>
#include <unistd.h>

namespace {

sigset_t endSignals()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGTERM);
    sigaddset(&set, SIGINT);
    return set;
}

/// Blocks the signals, so that they can be read like a file.
int openSignals()
{
    const sigset_t set = endSignals();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    return ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

EndSignals::EndSignals()
    : m_descriptor(openSignals())
    , m_notifier(m_descriptor, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &EndSignals::onReadable);
}

EndSignals::~EndSignals()
{
    m_notifier.setEnabled(false);
    ::close(m_descriptor);
    const sigset_t set = endSignals();
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

void EndSignals::onReadable()
{
    signalfd_siginfo info {};
    if (::read(m_descriptor, &info, sizeof(info)) == sizeof(info)) {
        Q_EMIT received();
    }
}

#include "moc_endsignals.cpp"
