// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace Touch {

/*!
 * Tells the device's input system that `field` is about to receive text.
 *
 * Posts the press of the Control key, without text and without modifiers, to `field`. The
 * on-screen keyboard listens for it. It is posted, not sent, because the focus change that causes
 * it must be over when it arrives.
 */
void nudgeInputSystem(QWidget* field);

} // namespace Touch
