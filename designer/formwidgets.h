// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formwidget.h"

#include <memory>
#include <vector>

namespace Designer {

/// The table: every widget of the library that a form can hold.
std::vector<std::unique_ptr<FormWidgetBase>> formWidgets();

} // namespace Designer
