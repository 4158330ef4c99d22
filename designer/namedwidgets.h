// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "dragscrollbutton.h"
#include "oxplaintextedit.h"

// A form knows a widget's class by its meta-object. Two classes of the library have none of their
// own, and would be saved as the Qt classes that they derive from. Here each gets one of its own
// name, which moc takes from the class that only moc sees.

using LibraryDragScrollButton = DragScrollButton;
using LibraryOxPlainTextEdit = OxPlainTextEdit;

#ifdef Q_MOC_RUN
class DragScrollButton : public LibraryDragScrollButton
#else
class NamedDragScrollButton : public LibraryDragScrollButton
#endif
{
    Q_OBJECT

public:
    using LibraryDragScrollButton::LibraryDragScrollButton;
};

#ifdef Q_MOC_RUN
class OxPlainTextEdit : public LibraryOxPlainTextEdit
#else
class NamedOxPlainTextEdit : public LibraryOxPlainTextEdit
#endif
{
    Q_OBJECT

public:
    using LibraryOxPlainTextEdit::LibraryOxPlainTextEdit;
};
