// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "copprocess.h"

#include "coplog.h"

#include <atomic>
#include <iterator>

namespace Cop {

void Inbox::put(const Message& message)
{
    const std::lock_guard lock(m_mutex);
    m_messages.push_back(message);
    signalOnce();
}

void Inbox::put(std::deque<Message>&& messages)
{
    const std::lock_guard lock(m_mutex);
    m_messages.insert(m_messages.end(), std::make_move_iterator(messages.begin()),
                      std::make_move_iterator(messages.end()));
}

bool Inbox::take(Message& message)
{
    const std::lock_guard lock(m_mutex);
    if (m_messages.empty()) {
        return false;
    }
    message = std::move(m_messages.front());
    m_messages.pop_front();
    if (!m_messages.empty()) {
        signalOnce();
    }
    return true;
}

bool Inbox::isEmpty()
{
    const std::lock_guard lock(m_mutex);
    return m_messages.empty();
}

void Inbox::acknowledge()
{
    const std::lock_guard lock(m_mutex);
    m_signalled = false;
}

void Inbox::signalOnce()
{
    if (!std::exchange(m_signalled, true)) {
        Q_EMIT filled();
    }
}

Process& Process::self()
{
    // Never destroyed: threads may still send while the process ends.
    static std::atomic<Process*> current = new Process(nullptr);
    Process* process = current;
    if (process->m_pid != ::getpid()) {
        process = new Process(process);
        current = process;
    }
    return *process;
}

Process::Process(Process* parent)
    : m_parent(parent)
{ }

void Process::add(const QString& channel, Inbox* inbox, const QByteArray& files)
{
    const std::lock_guard lock(m_mutex);
    m_inboxes.insert(channel, inbox);
    m_ownFiles.insert(files);
}

void Process::remove(const QString& channel, Inbox* inbox)
{
    const std::lock_guard lock(m_mutex);
    m_inboxes.remove(channel, inbox);
}

void Process::forgetFiles(const QByteArray& files)
{
    const std::lock_guard lock(m_mutex);
    m_ownFiles.remove(files);
}

bool Process::isRegistered(const QString& channel)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_inboxes.contains(channel)) {
            return true;
        }
    }
    const Folder folder = Folder::open(Folder::IfMissing::Accept);
    const auto isOwnListener = [this](const QByteArray& files) {
        return isOwn(files);
    };
    return folder.isValid() && !folder.listeners(fileNamePrefix(channel), isOwnListener).empty();
}

bool Process::send(const QString& channel, const Message& message)
{
    const QByteArray frame = encode(message);
    if (frame.isEmpty()) {
        COP_WARNING("A message of more than %u bytes is not sent on a channel", MaximumPayload);
        return false;
    }
    const int delivered = deliver(channel, message);
    const std::shared_ptr<Outbox> others = outbox(channel);
    const Outbox::Result result = others->send(frame);
    if (result.listeners == 0) {
        // Names that nobody listens on must not pile up.
        const std::lock_guard lock(m_mutex);
        m_outboxes.remove(channel);
    }
    return delivered + result.listeners > 0 && result.reached == result.listeners;
}

bool Process::isOwn(const QByteArray& files)
{
    const std::lock_guard lock(m_mutex);
    return m_ownFiles.contains(files);
}

int Process::deliver(const QString& channel, const Message& message)
{
    const std::lock_guard lock(m_mutex);
    const auto [first, last] = std::as_const(m_inboxes).equal_range(channel);
    for (auto inbox = first; inbox != last; ++inbox) {
        (*inbox)->put(message);
    }
    return int(std::distance(first, last));
}

std::shared_ptr<Outbox> Process::outbox(const QString& channel)
{
    const std::lock_guard lock(m_mutex);
    std::shared_ptr<Outbox>& outbox = m_outboxes[channel];
    if (!outbox) {
        outbox = std::make_shared<Outbox>(channel,
                                          [this](const QByteArray& files) { return isOwn(files); });
    }
    return outbox;
}

} // namespace Cop

#include "moc_copprocess.cpp"
