// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document.h"

#include <QCoreApplication>
#include <QSaveFile>

/// Documents as files: JSON with a version number. A file can come from anywhere: every number that
/// is read can be drawn, and every drawing may be.
class DocumentFile
{
    Q_DECLARE_TR_FUNCTIONS(DocumentFile)

public:
    /// Returns what to tell the person, or nothing; only then `content` is all there.
    static QString read(const QString& path, Content* content);
    /// Replaces the file as a whole or not at all. Returns what to tell the person, or nothing.
    static QString write(const QString& path, Content content);
    /// Commits the file, unless some of it could not be written. QSaveFile alone does not notice
    /// when only a part of its last buffer fits on the disk.
    static bool commit(QSaveFile* file);
    /// Why a drawing is not accepted; empty if it is.
    static QString complaintAbout(const QByteArray& svg);
};
