// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/program.h"

#include <QProcess>

ProgramResult runProgram(const QString& path, const QStringList& arguments,
                         const QString& outputFile, const QString& errorFile)
{
    constexpr int Patience = 240'000; // milliseconds
    QProcess program;
    if (!outputFile.isEmpty()) {
        program.setStandardOutputFile(outputFile);
    }
    if (!errorFile.isEmpty()) {
        program.setStandardErrorFile(errorFile);
    }
    program.start(path, arguments);
    if (!program.waitForFinished(Patience) || program.exitStatus() != QProcess::NormalExit) {
        return { -1, {}, program.errorString() };
    }
    return { program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
             QString::fromUtf8(program.readAllStandardError()) };
}
