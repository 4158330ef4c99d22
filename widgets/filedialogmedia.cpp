// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filedialogmedia.h"

#include <QDataStream>

#include <climits>

namespace {

bool isUsable(const QString& path)
{
    return path.startsWith(QLatin1Char('/')) && path.size() < PATH_MAX
        && !path.contains(QChar(QChar::Null));
}

std::optional<QString> readPath(const QByteArray& data)
{
    QDataStream stream(data);
    QString path;
    stream >> path;
    if (stream.status() != QDataStream::Ok || !isUsable(path)) {
        return std::nullopt;
    }
    return path;
}

} // namespace

bool FileDialogMedia::replace(const QByteArray& data)
{
    // Element by element: reading a list at once reserves memory for as many as the data claims.
    QDataStream stream(data);
    quint32 count = 0;
    stream >> count;
    QStringList paths;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QString path;
        stream >> path;
        if (isUsable(path) && paths.size() < MaximumCount) {
            paths.append(path);
        }
    }
    if (stream.status() != QDataStream::Ok) {
        return false;
    }
    m_paths = paths;
    return true;
}

std::optional<QString> FileDialogMedia::add(const QByteArray& data)
{
    std::optional<QString> path = readPath(data);
    if (!path || m_paths.contains(*path) || m_paths.size() >= MaximumCount) {
        return std::nullopt;
    }
    m_paths.append(*path);
    return path;
}

std::optional<QString> FileDialogMedia::remove(const QByteArray& data)
{
    std::optional<QString> path = readPath(data);
    if (path) {
        m_paths.removeOne(*path);
    }
    return path;
}
