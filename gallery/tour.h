// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QWidget;

namespace Gallery {

class GalleryWindow;

/// The window, dialog or popup that stands in front of `window` and would be closed first; null when
/// none does.
QWidget* windowInFrontOf(const GalleryWindow* window);

/*!
 * Writes one picture per page ("<page>.png") and per dialog state ("<page>-<state>.png") into
 * `folder`, which is made when it does not exist, without a person.
 *
 * Returns false, with a line on standard error, when a picture could not be written or a dialog did
 * not appear.
 */
bool takeTour(const QString& folder);

/*!
 * The same pictures for a text about the classes: of a page nothing but its stage, and no picture
 * where that is empty; of a dialog nothing but the dialog.
 */
bool takePictures(const QString& folder);

} // namespace Gallery
