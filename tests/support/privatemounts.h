// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/secondprocess.h"

/*!
 * A program and mounts that it alone sees (tests/helpers/private_mounts).
 *
 * Where the machine forbids private mounts, start() returns why, for the test to fail with:
 * \code
 * PrivateMounts mounts(program, arguments);
 * QCOMPARE(mounts.start(), QByteArray());
 * \endcode
 */
class PrivateMounts
{
public:
    PrivateMounts(const QString& program, const QStringList& arguments);

    /// Starts the program; returns what went wrong.
    QByteArray start();

    /// Mounts something empty at `path`, a new or an empty folder; returns what went wrong.
    QByteArray mount(const QString& path);
    /// Unmounts it; returns what went wrong.
    QByteArray unmount(const QString& path);

    /// Sends the program `signal`; returns its exit code, or -1 if that killed it.
    int end(int signal);
    /// Starts the program again, once it has ended.
    QByteArray restart();

private:
    QByteArray tell(const QByteArray& command);

    SecondProcess m_process;
};
