// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class QPushButton;
class QSize;

namespace Look {

/// The close button of a title bar, fixed at `size`, without a parent. Enter never triggers it and Tab never stops
/// at it: otherwise, being first in a dialog, it would become the default button.
QPushButton* createTitleBarCloseButton(const QSize& size);

} // namespace Look
