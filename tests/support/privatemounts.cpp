// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/privatemounts.h"

#include <QFile>

PrivateMounts::PrivateMounts(const QString& program, const QStringList& arguments)
    : m_process(QStringLiteral("private_mounts"), QStringList(program) + arguments)
{ }

QByteArray PrivateMounts::start()
{
    const QByteArray line = m_process.nextLine();
    if (line == "ready") {
        return {};
    }
    return "THIS MACHINE FORBIDS PRIVATE MOUNTS, so nothing about removable media was tested "
           "(a user may need the right to make user namespaces): "
        + line;
}

QByteArray PrivateMounts::mount(const QString& path)
{
    return tell("mount " + QFile::encodeName(path));
}

QByteArray PrivateMounts::unmount(const QString& path)
{
    return tell("unmount " + QFile::encodeName(path));
}

int PrivateMounts::end(int signal)
{
    m_process.writeLine("end " + QByteArray::number(signal));
    const QByteArray line = m_process.nextLine();
    return line.startsWith("ended ") ? line.mid(6).toInt() : -1;
}

QByteArray PrivateMounts::restart()
{
    return tell("restart");
}

QByteArray PrivateMounts::tell(const QByteArray& command)
{
    m_process.writeLine(command);
    const QByteArray line = m_process.nextLine();
    return line == "done" ? QByteArray() : command + ": " + line;
}
