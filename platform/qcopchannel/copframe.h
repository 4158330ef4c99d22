// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <deque>

namespace Cop {

struct Message
{
    QString text;
    QByteArray data;
};

// How messages look on their way between processes is described in docs/channel-protocol.md.

/// The largest payload, in bytes; both sides refuse a larger one.
constexpr quint32 MaximumPayload = 16 * 1024 * 1024;

/// The frame of a message; empty if it would be too large.
QByteArray encode(const Message& message);

/// Turns bytes, as they come, into messages.
class Decoder
{
public:
    /// Appends the messages that are complete with these bytes. False if what came is no frame:
    /// nothing that follows can be understood.
    bool feed(const char* bytes, qsizetype size, std::deque<Message>& messages);

private:
    QByteArray m_begun; // the frame that is not complete yet
};

} // namespace Cop
