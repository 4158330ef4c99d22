// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class QPushButton;
class QSize;
class QWidget;

namespace Look {

/// The close button of the title bar `parent`, fixed at `size`. Enter never triggers it and Tab
/// never stops at it: otherwise, being first in a dialog, it would become the default button.
QPushButton* createTitleBarCloseButton(QWidget* parent, const QSize& size);

} // namespace Look
