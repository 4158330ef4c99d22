// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class QAbstractButton;
class QDialog;

namespace Look {

/*!
 * Gives `dialog` what every dialog of the house has: the window icon, the window title (which is
 * the product's name and therefore not translated), and a life that ends neither by being closed
 * nor with the last window: dialogs live on the stack of a static helper or are shown again.
 */
void prepareHouseDialog(QDialog* dialog);

/// Gives `button` the size and the sheet of the buttons below a message or a question.
void prepareMessageButton(QAbstractButton* button);

} // namespace Look
