// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTemporaryDir>

/*!
 * Stands first in PATH in place of the system's "sync" for as long as it lives, and counts how
 * often it is started.
 *
 * It makes the test the parent of every detached process, so that it can wait for them all: no
 * other child of the test may run while it counts.
 */
class SyncStandIn
{
public:
    SyncStandIn();
    ~SyncStandIn();

    Q_DISABLE_COPY_MOVE(SyncStandIn)

    /// The starts since the last call, or -1 if one of them had arguments.
    int takeStarts();

private:
    QTemporaryDir m_folder;
    QByteArray m_formerPath;
};
