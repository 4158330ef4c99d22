// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/syncstandin.h"

#include <QFile>

#include <sys/prctl.h>
#include <sys/wait.h>

SyncStandIn::SyncStandIn()
    : m_formerPath(qgetenv("PATH"))
{
    QFile script(m_folder.filePath(QStringLiteral("sync")));
    if (!script.open(QFile::WriteOnly)) {
        qFatal("cannot write the stand-in for sync");
    }
    script.write("#!/bin/sh\necho $# >>\"${0%/*}/starts\"\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    script.close();
    qputenv("PATH", QFile::encodeName(m_folder.path()) + ':' + m_formerPath);
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

SyncStandIn::~SyncStandIn()
{
    takeStarts();
    prctl(PR_SET_CHILD_SUBREAPER, 0);
    qputenv("PATH", m_formerPath);
}

int SyncStandIn::takeStarts()
{
    while (wait(nullptr) > 0) { }
    QFile file(m_folder.filePath(QStringLiteral("starts")));
    if (!file.open(QFile::ReadOnly)) {
        return 0;
    }
    const QByteArray lines = file.readAll();
    file.remove();
    const auto starts = lines.count('\n');
    return lines == QByteArray("0\n").repeated(starts) ? int(starts) : -1;
}
