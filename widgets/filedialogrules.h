// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class QRegularExpression;

/*!
 * What the file dialog decides, without its widgets.
 *
 * Paths are compared and cut as texts: nothing here asks the file system, except through the
 * function that a rule is given.
 */
namespace FileDialogRules {

/// Tells whether there is something at a path.
using Exists = std::function<bool(const QString& path)>;

// --- paths --------------------------------------------------------------------------------------

/// The last component of `path`, which is what a person calls the folder; "/" for the root.
QString folderName(const QString& path);

/// `path` without its last component; "/" for a folder of the root and for the root itself.
QString parentFolder(const QString& path);

/// The folder that a dialog shows first, if it was asked for `path` and starts at `topFolder` by
/// itself. A path with a dot in it, anywhere, counts as a file's, and its folder is meant: also
/// where it is a folder's. One without a slash is found in `processFolder`.
QString startFolder(const QString& path, const QString& topFolder, const QString& processFolder);

/// Whether going up has come to its end in `folder`. By the order of the texts, not of the
/// folders: outside of the top folder's branch it ends wherever the text comes before.
bool endsGoingUp(const QString& folder, const QString& topFolder);

// --- names --------------------------------------------------------------------------------------

/// The patterns in an entry such as "Labels (*.lbl *.txt)": each "*." with the lower-case letters
/// that follow. Capitals and digits end a pattern: "*.PNG" gives "*.", "*.mp3" gives "*.mp".
QStringList namePatterns(const QString& text);

/// What a person typed, without all that `removed` matches, and without what would then still lead
/// out of the shown folder: two dots that a slash or backslash follows, or that end a path.
QString cleanName(const QString& text, const QRegularExpression& removed);

// --- acceptance ---------------------------------------------------------------------------------
//
// Each returns the path that the dialog ends with, or nothing if it stays open. `folder` is the
// one that is shown, `name` a cleaned name, `tapped` the path that was tapped last, or empty.

/// With an empty name, once something has been tapped: the shown folder itself, ending in a slash.
std::optional<QString> pathToOpen(const QString& folder, const QString& name, const QString& tapped,
                                  const Exists& exists);

/*!
 * `exists` is asked for the bare `name`, and so finds it in the process's folder; what was tapped
 * is then returned, even if that is nothing. Nobody is asked before a file is overwritten.
 *
 * A name that contains the extension of one of the `patterns` is kept; any other gets that of the
 * pattern at `formatIndex`, or none if there is no such.
 */
std::optional<QString> pathToSave(const QString& folder, const QString& name, const QString& tapped,
                                  const QStringList& patterns, int formatIndex,
                                  const Exists& exists);

/// Always ends the dialog: with the named folder if it `exists`, or else with what was tapped.
QString folderToSelect(const QString& folder, const QString& name, const QString& tapped,
                       const Exists& exists);

// --- favourites ---------------------------------------------------------------------------------

/// Where in the settings' array the favourite of a row of the list is kept. The first row, -1, is
/// not kept.
constexpr int storedIndex(int row)
{
    return row - 1;
}

} // namespace FileDialogRules
