// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filedialogrules.h"

#include <QRegularExpression>

namespace {

QString inFolder(const QString& folder, const QString& name)
{
    return folder + QLatin1Char('/') + name;
}

/// "*.txt" as the end of a file's name.
QString extensionOf(QString pattern)
{
    return pattern.remove(QLatin1Char('*'));
}

} // namespace

QString FileDialogRules::folderName(const QString& path)
{
    QString trimmed = path;
    while (trimmed.endsWith(QLatin1Char('/'))) {
        trimmed.chop(1);
    }
    const QString name = trimmed.mid(trimmed.lastIndexOf(QLatin1Char('/')) + 1);
    return name.isEmpty() ? path.left(1) : name;
}

QString FileDialogRules::parentFolder(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return slash > 0 ? path.left(slash) : QStringLiteral("/");
}

QString FileDialogRules::startFolder(const QString& path, const QString& topFolder,
                                     const QString& processFolder)
{
    QString folder = path.isEmpty() ? topFolder : path;
    if (!folder.contains(QLatin1Char('.'))) {
        return folder;
    }
    return folder.contains(QLatin1Char('/')) ? parentFolder(folder) : processFolder;
}

bool FileDialogRules::endsGoingUp(const QString& folder, const QString& topFolder)
{
    return folder <= topFolder;
}

QStringList FileDialogRules::namePatterns(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("(\\*\\.[a-z]*)"));
    QStringList patterns;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        patterns.append(match.next().captured());
    }
    return patterns;
}

QString FileDialogRules::cleanName(const QString& text, const QRegularExpression& removed)
{
    static const QRegularExpression wayUp(QStringLiteral("\\.\\.[\\\\/]"));
    QString name = text;
    name.remove(removed);
    // What was removed may have kept the parts of another one apart: "a/....//b".
    while (name.contains(wayUp)) {
        name.remove(wayUp);
    }
    if (name == QLatin1String("..") || name.endsWith(QLatin1String("/.."))) {
        name.chop(2);
    }
    return name;
}

std::optional<QString> FileDialogRules::pathToOpen(const QString& folder, const QString& name,
                                                   const QString& tapped, const Exists& exists)
{
    const QString named = inFolder(folder, name);
    if (exists(name.isEmpty() ? tapped : named)) {
        return named;
    }
    if (exists(tapped)) {
        return tapped;
    }
    return std::nullopt;
}

std::optional<QString> FileDialogRules::pathToSave(const QString& folder, const QString& name,
                                                   const QString& tapped,
                                                   const QStringList& patterns, int formatIndex,
                                                   const Exists& exists)
{
    if (exists(name.isEmpty() ? tapped : name)) {
        return tapped;
    }
    if (name.isEmpty()) {
        return std::nullopt;
    }
    for (const QString& pattern : patterns) {
        if (name.contains(extensionOf(pattern))) {
            return inFolder(folder, name);
        }
    }
    return inFolder(folder, name) + extensionOf(patterns.value(formatIndex));
}

QString FileDialogRules::folderToSelect(const QString& folder, const QString& name,
                                        const QString& tapped, const Exists& exists)
{
    const QString named = inFolder(folder, name);
    return exists(named) ? named : tapped;
}
