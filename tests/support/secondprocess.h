// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

/*!
 * A helper program that runs beside the test and is killed, at the latest, when this object dies.
 *
 * Helpers stand beside the test programs (tests/helpers) unless a whole path says where, and talk in
 * lines: what they print is
 * read with waitForLine(), what they are told is written with writeLine().
 */
class SecondProcess
{
public:
    explicit SecondProcess(const QString& helper, const QStringList& arguments = {});
    ~SecondProcess();

    Q_DISABLE_COPY_MOVE(SecondProcess)

    /// Waits until the helper has printed `line` and returns true, or false after `timeout` ms.
    bool waitForLine(const QByteArray& line, int timeout = 20000);
    /// The next line that it prints, without its line break; null after `timeout` ms.
    QByteArray nextLine(int timeout = 20000);
    /// Whether nextLine() would return at once.
    bool hasLine();
    void writeLine(const QByteArray& line);

    /// Waits for its end and returns the exit code, or -1 if it crashed or did not end in time.
    int waitForEnd(int timeout = 20000);

    void sendSignal(int signal);
    /// SIGKILL, and waits until the process is gone.
    void kill();

    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    qint64 pid() const { return m_process.processId(); }

private:
    QProcess m_process;
};
