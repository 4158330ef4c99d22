// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/*!
 * The removable media that are mounted, as the window manager tells of them.
 *
 * The data comes from other processes and is believed only so far: what cannot be read to its end,
 * is no absolute path or is longer than a path can be changes nothing, and no list grows beyond
 * MaximumCount.
 */
class FileDialogMedia
{
public:
    /// Far more media than a device has sockets for.
    static constexpr int MaximumCount = 256;

    const QStringList& paths() const { return m_paths; }

    /// Takes over a whole list: the data of "mounts". False, and nothing changes, if it is damaged.
    bool replace(const QByteArray& data);

    /// Adds one medium and returns its path, unless it is known already: the data of "add".
    std::optional<QString> add(const QByteArray& data);

    /// Forgets a medium, known or not, and returns its path: the data of "remove".
    std::optional<QString> remove(const QByteArray& data);

private:
    QStringList m_paths; // in the order received
};
