// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// The style sheets that more than one class uses: one function per family, its parameters the real
// differences between the members. A sheet with a single user stays in that user's source.
//
// Each text is exact to the blank, because applications compare and append sheets. Sheets that look
// almost alike are kept apart by name; unifying two of them by eye changes what is drawn.

namespace Look {

// --- panels -------------------------------------------------------------------------------------

/// Grey panel in a one-pixel orange frame, for whatever `selector` names: "#OxInfoWidget". Ends in
/// a blank, so that further rules can be appended.
QString framedPanel(const QString& selector);

// --- push buttons -------------------------------------------------------------------------------

/// Gradient button of a message: a border of two pixels, no minimum height and no pressed colour,
/// all three unlike the buttons of every other dialog.
QString messageButton();

/// Gradient button that turns orange under the finger. Ends in a line break, so that further rules
/// can be appended. The minimum height counts what is inside the border: with it a button is 37
/// pixels high, unless its size is fixed.
QString gradientButton();

// --- combo boxes --------------------------------------------------------------------------------

/// Framed combo box with the house's arrow and a list of finger-sized entries, in the colours of
/// the style. Ends in a line break and a blank, so that further rules can be appended.
QString comboBox();

/// comboBox() in white, with finger-sized scroll bars in its list. The minimum height counts what
/// is inside the border: with it the box is 37 pixels high.
QString whiteComboBox();

// --- scroll bars --------------------------------------------------------------------------------

/// Scroll bars that a finger can press, with an arrow at each end, for whatever area or combo box
/// has this sheet. `extent` is their width or height, border included, in pixels.
QString scrollBars(int extent = 35);

// --- lists --------------------------------------------------------------------------------------

/// White list of a dialog with finger-sized scroll bars. Its frame is orange while it has the
/// focus.
QString dialogList();

} // namespace Look
