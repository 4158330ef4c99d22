// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxfileiconprovider.h"

#include "look/images.h"

#include <QFileInfo>

namespace {

/// Without a picture of its own for selected rows, an icon is tinted with the selection's colour.
QIcon untintedIcon(const QString& path)
{
    QIcon icon(path);
    icon.addFile(path, {}, QIcon::Selected);
    return icon;
}

} // namespace

// Made once: a model asks for the icon of each of what may be thousands of files.
OxFileIconProvider::OxFileIconProvider()
    : m_folder(untintedIcon(QStringLiteral(LOOK_IMAGE_FOLDER)))
    , m_file(untintedIcon(QStringLiteral(LOOK_IMAGE_FILE)))
{ }

OxFileIconProvider::~OxFileIconProvider() = default;

QIcon OxFileIconProvider::icon(const QFileInfo& info) const
{
    return info.isDir() ? m_folder : m_file;
}
