// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QString>

/// What the program says, and what it ends with.
namespace Console {

/// The program's exit codes.
enum ExitCode {
    Success = 0,
    Failure = 1, ///< also: nothing was found
    UsageError = 2,
};

/// A name as it can stand in a line: line breaks, tabs and other control characters as "\n", "\t"
/// and "\x1b", the backslash doubled.
QString printable(const QString& name);

/// A line of the result.
void print(const QString& line);
/// A line about a failure, headed by the program's name.
void complain(const QString& line);
/// Whether all of the result could be written; says so if not. To be called once, at the end.
bool finish();

} // namespace Console

/// Tells on a terminal how far something is, in one line that is gone in the end.
class Progress
{
public:
    explicit Progress(QString task);
    ~Progress();

    Q_DISABLE_COPY_MOVE(Progress)

    void show(qsizetype done, qsizetype total);
    /// Makes room for a line of another kind. Console does it before it prints or complains.
    static void clear();

private:
    const QString m_task;
    const bool m_isTerminal;
    QElapsedTimer m_sinceShown;
};
