// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class IconRenderer;
class Manifest;

/// A file made from the manifest, by its path below the project's folder.
struct OutputFile
{
    QString path;
    QByteArray bytes;
    bool isImage = false;
};

/// Everything that is made from the manifest: the images, the resource list, and the two headers
/// with the macros and the table.
QList<OutputFile> makeOutputs(const Manifest& manifest, IconRenderer& renderer);

/// Whether the file on disk is what `output` says: equal pixels for an image, equal bytes for a
/// text. False for a missing file.
bool isUpToDate(const OutputFile& output, const QString& project);

/// Images below resources/ and drawings that the manifest does not name.
QStringList strayFiles(const Manifest& manifest, const QString& project);
