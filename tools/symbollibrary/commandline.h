// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

/// What the program was told to do.
struct CommandLine
{
    QString command; ///< empty if there is something wrong
    QStringList arguments; ///< without the command
    QSet<QString> flags; ///< the options without a value, by name
    QString category; ///< null if not given

    bool has(const char* flag) const { return flags.contains(QLatin1String(flag)); }

    /// Complains about what is wrong. Options may stand anywhere; "--" ends them.
    static CommandLine parse(const QStringList& arguments);

    static QString help();
};
