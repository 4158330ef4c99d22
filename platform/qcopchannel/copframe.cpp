// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "copframe.h"

#include <QtEndian>

#include <algorithm>
#include <optional>

namespace Cop {

namespace {

constexpr char Version = 1;
constexpr qsizetype HeaderSize = 1 + sizeof(quint32);

enum class Parsed { Message, Incomplete, Malformed };

// The payload is what QDataStream makes of a QString and a QByteArray, written and read by hand:
// with QDataStream it took longer to pack a message than to send it.

constexpr quint32 Null = 0xffffffff; // in place of a length

/// The fields of a payload, from first to last.
class Fields
{
public:
    Fields(const char* begin, const char* end)
        : m_next(begin)
        , m_end(end)
    { }

    bool read(QString& text)
    {
        const std::optional<qsizetype> size = readLength();
        if (!size || *size % qsizetype(sizeof(QChar)) != 0) {
            return false;
        }
        if (*size >= 0) {
            text = QString(*size / qsizetype(sizeof(QChar)), Qt::Uninitialized);
            qFromBigEndian<quint16>(m_next, text.size(), text.data());
            m_next += *size;
        }
        return true;
    }

    bool read(QByteArray& data)
    {
        const std::optional<qsizetype> size = readLength();
        if (size && *size >= 0) {
            data = QByteArray(m_next, *size);
            m_next += *size;
        }
        return size.has_value();
    }

    bool atEnd() const { return m_next == m_end; }

private:
    static constexpr qsizetype NullSize = -2; // even, as the size of a text must be

    /// None if there are not as many bytes.
    std::optional<qsizetype> readLength()
    {
        if (m_end - m_next < qsizetype(sizeof(quint32))) {
            return {};
        }
        const auto length = qFromBigEndian<quint32>(m_next);
        m_next += sizeof(quint32);
        if (length == Null) {
            return NullSize;
        }
        return qsizetype(length) <= m_end - m_next ? std::optional<qsizetype>(length)
                                                   : std::nullopt;
    }

    const char* m_next;
    const char* m_end;
};

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
    Message message;
    Fields fields { bytes + HeaderSize, bytes + HeaderSize + length };
    if (!fields.read(message.text) || !fields.read(message.data) || !fields.atEnd()) {
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
    const auto payload = quint32(LengthFields + textSize + message.data.size());
    QByteArray frame(HeaderSize + qsizetype(payload), Qt::Uninitialized);
    char* next = frame.data();
    const auto append = [&next](quint32 length) {
        qToBigEndian(length, next);
        next += sizeof(length);
    };
    *next++ = Version;
    append(payload);
    append(message.text.isNull() ? Null : quint32(textSize));
    qToBigEndian<quint16>(message.text.constData(), message.text.size(), next);
    next += textSize;
    append(message.data.isNull() ? Null : quint32(message.data.size()));
    std::copy(message.data.begin(), message.data.end(), next);
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
