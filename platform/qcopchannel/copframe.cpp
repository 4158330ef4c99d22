// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "copframe.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

namespace Cop {

namespace {

constexpr char Version = 1;
constexpr qsizetype HeaderSize = 1 + sizeof(quint32);

enum class Parsed { Message, Incomplete, Malformed };

Parsed parse(const char*& bytes, qsizetype& size, std::deque<Message>& messages)
{
    if (size > 0 && bytes[0] != Version) {
        return Parsed::Malformed;
    }
    if (size < HeaderSize) {
        return Parsed::Incomplete;
    }
    const auto length = qFromBigEndian<quint32>(bytes + 1);
    if (length > MaximumPayload) {
        return Parsed::Malformed;
    }
    if (size < HeaderSize + qsizetype(length)) {
        return Parsed::Incomplete;
    }
    QDataStream stream(QByteArray::fromRawData(bytes + HeaderSize, qsizetype(length)));
    stream.setVersion(QDataStream::Qt_6_0);
    Message message;
    stream >> message.text >> message.data;
    if (stream.status() != QDataStream::Ok || !stream.atEnd()) {
        return Parsed::Malformed;
    }
    messages.push_back(std::move(message));
    bytes += HeaderSize + qsizetype(length);
    size -= HeaderSize + qsizetype(length);
    return Parsed::Message;
}

} // namespace

QByteArray encode(const Message& message)
{
    constexpr qsizetype LengthFields = 2 * sizeof(quint32);
    const qsizetype limit = qsizetype(MaximumPayload) - LengthFields;
    const qsizetype textSize = message.text.size() * qsizetype(sizeof(QChar));
    if (textSize > limit || message.data.size() > limit - textSize) {
        return {};
    }
    QByteArray frame;
    frame.reserve(HeaderSize + LengthFields + textSize + message.data.size());
    QDataStream stream(&frame, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << qint8(Version) << quint32(LengthFields + textSize + message.data.size())
           << message.text << message.data;
    return frame;
}

bool Decoder::feed(const char* bytes, qsizetype size, std::deque<Message>& messages)
{
    // Most reads hold whole frames, which are taken from where they lie.
    if (!m_begun.isEmpty()) {
        m_begun.append(bytes, size);
        bytes = m_begun.constData();
        size = m_begun.size();
    }
    Parsed result = Parsed::Message;
    while (size > 0 && result == Parsed::Message) {
        result = parse(bytes, size, messages);
    }
    m_begun = size > 0 && m_begun.size() == size ? m_begun : QByteArray(bytes, size);
    return result != Parsed::Malformed;
}

} // namespace Cop
