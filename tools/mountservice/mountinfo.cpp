// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "mountinfo.h"

#include <QFile>

#include <algorithm>

namespace {

bool isOctal(char c)
{
    return c >= '0' && c <= '7';
}

bool isBelow(const QString& path, const QString& folder)
{
    const QString start = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    return path.startsWith(start) && path != start;
}

/// The place that a line of mountinfo is about; empty if there is nothing to be found there.
QString mountPoint(const QByteArray& line)
{
    constexpr int MountPoint = 4;
    constexpr int FirstOptional = 6; // any number of them, up to a lone "-"
    const QList<QByteArray> fields = line.split(' ');
    const qsizetype separator = fields.indexOf("-", FirstOptional);
    if (separator < 0 || separator + 1 >= fields.count() || fields.at(separator + 1) == "autofs") {
        return {};
    }
    const QByteArray path = MountInfo::unescaped(fields.at(MountPoint));
    return path.endsWith("//deleted") ? QString() : QFile::decodeName(path);
}

} // namespace

QByteArray MountInfo::unescaped(const QByteArray& field)
{
    QByteArray text;
    text.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        const QByteArray digits = field.mid(i + 1, 3);
        const bool escaped = field.at(i) == '\\' && digits.size() == 3 && digits.at(0) <= '3'
            && std::all_of(digits.cbegin(), digits.cend(), isOctal);
        if (escaped) {
            text += char(digits.toInt(nullptr, 8));
            i += digits.size();
        } else {
            text += field.at(i);
        }
    }
    return text;
}

QStringList MountInfo::mountsBelow(const QStringList& folders, const QByteArray& mountinfo)
{
    QStringList paths;
    const QList<QByteArray> lines = mountinfo.split('\n');
    for (const QByteArray& line : lines) {
        const QString path = mountPoint(line);
        const bool meant =
            std::any_of(folders.cbegin(), folders.cend(),
                        [&path](const QString& folder) { return isBelow(path, folder); });
        if (meant && !paths.contains(path)) {
            paths.append(path);
        }
    }
    return paths;
}

MountInfo::Changes MountInfo::difference(const QStringList& before, const QStringList& after)
{
    const auto without = [](QStringList list, const QStringList& others) {
        list.removeIf([&others](const QString& path) { return others.contains(path); });
        return list;
    };
    return { without(before, after), without(after, before) };
}
