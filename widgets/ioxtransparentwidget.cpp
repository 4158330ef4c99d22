// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "ioxtransparentwidget.h"

// Here and not in the header, so that there is one type information of the class: the library casts
// panels of other modules.
IOxTransparentWidget::~IOxTransparentWidget() = default;
