// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filedialogmodel.h"

#include <QDir>
#include <QFileSystemModel>

/// The toolkit's model without its own top, which lists the file systems: a view whose root is
/// invalid, because its folder is not there or no longer, would show that.
class FileDialogModel::Entries : public QFileSystemModel
{
public:
    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? QFileSystemModel::rowCount(parent) : 0;
    }
};

FileDialogModel::FileDialogModel()
    : m_entries(std::make_unique<Entries>())
{
    m_entries->setIconProvider(&m_icons);
    m_entries->setNameFilterDisables(false);
    // A link's path stays below the folder that it is in, so that going up leads back there.
    m_entries->setResolveSymlinks(false);
}

FileDialogModel::~FileDialogModel() = default;

QAbstractItemModel* FileDialogModel::itemModel() const
{
    return m_entries.get();
}

QModelIndex FileDialogModel::setFolder(const QString& path)
{
    m_folder = QDir(path).absolutePath();
    m_entries->setRootPath(m_folder);
    return m_entries->index(m_folder);
}

void FileDialogModel::setNamePatterns(const QStringList& patterns)
{
    m_entries->setNameFilters(patterns);
}

void FileDialogModel::setFoldersOnly()
{
    m_entries->setFilter(QDir::Dirs | QDir::AllDirs | QDir::NoDotAndDotDot);
}

QString FileDialogModel::filePath(const QModelIndex& index) const
{
    return m_entries->filePath(index);
}

bool FileDialogModel::isFolder(const QModelIndex& index) const
{
    return m_entries->isDir(index);
}
