// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// What a program printed and ended with.
struct ProgramResult
{
    int exitCode = -1; ///< -1 if it did not start, crashed or did not end
    QString output;
    QString errors;
};

/// Runs a program to its end. Its output or its errors go to a file instead where one is named.
ProgramResult runProgram(const QString& path, const QStringList& arguments,
                         const QString& outputFile = QString(),
                         const QString& errorFile = QString());
