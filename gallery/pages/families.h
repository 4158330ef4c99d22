// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "page.h"

// One function per family, each in a source of its own beside this header.

namespace Gallery {

Family applicationDialogsFamily();
Family coloursFamily();
Family controlsFamily();
Family dialogsFamily();
Family filesFamily();
Family inputsFamily();
Family lookFamily();
Family panelsFamily();
Family platformFamily();
Family scrollingFamily();
Family selectionFamily();
Family symbolsFamily();
Family touchHelpersFamily();

} // namespace Gallery
