// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// What /proc/self/mountinfo says; its format is in proc(5).
namespace MountInfo {

/// A field of it with its escaped characters ("\040" for a blank) as they are.
QByteArray unescaped(const QByteArray& field);

/*!
 * The paths, in the order in which they were mounted and each once, of what is mounted below one
 * of the `folders`, which are absolute and clean; what is mounted on one of them does not count.
 *
 * Left out are places where something is mounted only once it is looked at, those that have been
 * deleted since, and lines that are none of mountinfo.
 */
QStringList mountsBelow(const QStringList& folders, const QByteArray& mountinfo);

struct Changes
{
    QStringList removed;
    QStringList added;
};

/// What has changed from one list of paths to the next, each in its list's order.
Changes difference(const QStringList& before, const QStringList& after);

} // namespace MountInfo
