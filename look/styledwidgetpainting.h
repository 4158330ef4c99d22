// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace Look {

/*!
 * Paints the background and border that the style sheet gives to `widget`.
 *
 * A plain QWidget subclass ignores its style sheet's box unless its paintEvent() calls this. Paints
 * nothing else; to be called from `widget`'s own paintEvent() only.
 */
void paintStyledWidget(QWidget* widget);

} // namespace Look
