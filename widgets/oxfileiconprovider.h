// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QFileIconProvider>
#include <QIcon>

/*!
 * \brief Shows every folder and every file with one of two fixed pictures, made for a finger.
 *
 * For file-system models whose list is touched. What a file holds makes no difference, so nothing
 * of it is read. A model takes no ownership and asks on a thread of its own: the provider must
 * outlive the model.
 *
 * \code
 * OxFileIconProvider m_icons; // members die in reverse order: the model first
 * QFileSystemModel m_model;
 * ...
 * m_model.setIconProvider(&m_icons);
 * \endcode
 *
 * In a selected row the pictures keep their colours. Where single icons are wanted and not those
 * of a model, take an icon provider of Qt's.
 */
class UTILITYWIDGETS_EXPORT OxFileIconProvider : public QFileIconProvider
{
public:
    /// To be called on the GUI thread.
    OxFileIconProvider();
    ~OxFileIconProvider() override;

    using QFileIconProvider::icon;
    /// The folder's picture if `info` is a folder or a link to one, whatever its name; otherwise
    /// the file's, also for what does not exist. May be called on any thread.
    QIcon icon(const QFileInfo& info) const override;

private:
    Q_DISABLE_COPY_MOVE(OxFileIconProvider)

    const QIcon m_folder;
    const QIcon m_file;
};
