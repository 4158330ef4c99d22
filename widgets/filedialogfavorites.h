// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QSet>
#include <QString>

/*!
 * The favourite folders as the application's settings keep them: group "fileDialog", array "links",
 * keys "name" and "path".
 *
 * The array has gaps: where a favourite stands in it follows from the row it has in the list (see
 * FileDialogRules::storedIndex()), and not every row is kept. A person may also have written it.
 *
 * Two dialogs, of one program or of two, may keep their favourites in the same settings. What one
 * would write over, or has never seen, it moves to the end of the array.
 */
class FileDialogFavorites
{
public:
    struct Favorite
    {
        QString name;
        QString path;
        /// Whether there is something to keep: gaps have neither name nor path. What was written by
        /// hand may hold what no path can.
        bool isComplete() const
        {
            return !name.isEmpty() && !path.isEmpty() && !path.contains(QChar(QChar::Null));
        }
    };

    /// All complete favourites, in the order of the array.
    QList<Favorite> load();

    /// Keeps one favourite, at `index` of the array; what stands there moves to the end. The array
    /// does not become shorter.
    void store(int index, const Favorite& favorite);

    /// Makes `favorites` the array, from index 0 on; one that is not complete leaves a gap. What
    /// others have added since this object last looked follows.
    void rewrite(QList<Favorite> favorites);

private:
    /// The paths that were in the settings when they were last read or written here.
    QSet<QString> m_known;
};
