// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxfileiconprovider.h"

#include "look/icons.h"
#include "look/images.h"

#include <QFileInfo>

// Made once: a model asks for the icon of each of what may be thousands of files.
OxFileIconProvider::OxFileIconProvider()
    : m_folder(Look::listIcon(QStringLiteral(LOOK_IMAGE_FOLDER)))
    , m_file(Look::listIcon(QStringLiteral(LOOK_IMAGE_FILE)))
{ }

OxFileIconProvider::~OxFileIconProvider() = default;

QIcon OxFileIconProvider::icon(const QFileInfo& info) const
{
    return info.isDir() ? m_folder : m_file;
}
