// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class QAbstractButton;
class QDialog;
class QLabel;

namespace Look {

/*!
 * Gives `dialog` what every dialog of the house has: the window icon, the window title (which is
 * the product's name and therefore not translated), and a life that ends neither by being closed
 * nor with the last window: dialogs live on the stack of a static helper or are shown again. One
 * without a frame that nobody has moved is shown in the middle of its parent's window, or of the
 * screen if it has none. To those who cannot see it, it is named as in its title bar if it has one.
 */
void prepareHouseDialog(QDialog* dialog);

/// Puts the text of `label`, one that is aligned to the left, to the side where lines begin on this
/// screen. A label would do so by the letters of its text, and names in Latin letters would stand on
/// the wrong side of a dialog in Arabic. To be called again when the layout direction changes.
void alignToLineStart(QLabel* label);

/// Gives `button` the size and the sheet of the buttons below a message or a question.
void prepareMessageButton(QAbstractButton* button);

} // namespace Look
