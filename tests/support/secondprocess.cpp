// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/secondprocess.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>

#include <csignal>

SecondProcess::SecondProcess(const QString& helper, const QStringList& arguments)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QDir(QCoreApplication::applicationDirPath()).filePath(helper), arguments);
    m_process.waitForStarted();
}

SecondProcess::~SecondProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        kill();
    }
}

bool SecondProcess::waitForLine(const QByteArray& line, int timeout)
{
    const QDeadlineTimer deadline(timeout);
    for (;;) {
        const QByteArray next = nextLine(int(deadline.remainingTime()));
        if (next.isNull() || next == line) {
            return next == line && !next.isNull();
        }
    }
}

QByteArray SecondProcess::nextLine(int timeout)
{
    const QDeadlineTimer deadline(timeout);
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(int(deadline.remainingTime()))) {
            return {};
        }
    }
    QByteArray line = m_process.readLine();
    line.chop(line.endsWith('\n') ? 1 : 0);
    return line.isNull() ? QByteArray("") : line;
}

bool SecondProcess::hasLine()
{
    return m_process.canReadLine() || (m_process.waitForReadyRead(0) && m_process.canReadLine());
}

void SecondProcess::writeLine(const QByteArray& line)
{
    m_process.write(line + '\n');
    while (m_process.bytesToWrite() > 0 && m_process.waitForBytesWritten()) { }
}

int SecondProcess::waitForEnd(int timeout)
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(timeout)) {
        return -1;
    }
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void SecondProcess::sendSignal(int signal)
{
    ::kill(pid_t(m_process.processId()), signal);
}

void SecondProcess::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}
