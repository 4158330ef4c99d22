// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Touch {

/*!
 * Tells those who cannot see the screen what the widgets are that Qt takes for mere labels and
 * frames: ClickableLabel and ClickableFrame are buttons, which can be pressed from there too and
 * are called by their own texts; OxFrame is a group. Subclasses are what their base is.
 *
 * For the constructors of these classes; any call but the first changes nothing.
 */
void installAccessibleRoles();

} // namespace Touch
