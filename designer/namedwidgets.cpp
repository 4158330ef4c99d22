// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "namedwidgets.h"

// What moc has written speaks of the names that it saw.
#define DragScrollButton NamedDragScrollButton
#define OxPlainTextEdit NamedOxPlainTextEdit
#include "moc_namedwidgets.cpp"
