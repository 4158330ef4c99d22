// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "oxfileiconprovider.h"

#include <QModelIndex>
#include <QString>
#include <QStringList>

#include <memory>

class QAbstractItemModel;

/*!
 * What the file dialog's list shows: the entries of one folder, without hidden ones.
 *
 * The dialog needs no more of a file-system model than what is named here.
 */
class FileDialogModel
{
public:
    FileDialogModel();
    ~FileDialogModel();
    Q_DISABLE_COPY_MOVE(FileDialogModel)

    /// For the view.
    QAbstractItemModel* itemModel() const;

    /// Lists the folder at `path` and returns its index: the view's root. The index is invalid, and
    /// the view then empty, if there is no such folder.
    QModelIndex setFolder(const QString& path);
    /// The absolute path of the folder that was set last, whether or not it exists.
    QString folder() const { return m_folder; }

    /// Hides all files that match none of `patterns`; with no patterns, none.
    void setNamePatterns(const QStringList& patterns);
    void setFoldersOnly();

    QString filePath(const QModelIndex& index) const;
    /// Also for a link to a folder.
    bool isFolder(const QModelIndex& index) const;

private:
    class Entries;

    OxFileIconProvider m_icons;
    std::unique_ptr<Entries> m_entries; // asks m_icons, on a thread of its own
    QString m_folder;
};
