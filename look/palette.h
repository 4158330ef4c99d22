// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

// Every colour of the house look, once, named for its role.
//
// Macros, because a style sheet is one literal: "border: 1px solid " LOOK_ACCENT_ORANGE ";". The
// letter case of the digits is part of each sheet's exact text.

/// One-pixel border of every dialog, panel, title bar, button and scroll bar; background of a
/// pressed push button and of selected list items.
#define LOOK_ACCENT_ORANGE "#fd7800"

/// List item under the finger when it is not the current selection.
#define LOOK_HOVER_ORANGE "#fda800"

/// Selected rows of the file dialog's lists.
#define LOOK_SELECTION_BLUE "#0068d9"

/// Background of dialogs and panels.
#define LOOK_PANEL_GREY "#f2f2f2"

/// The same grey as the sheet of the database selector writes it.
#define LOOK_PANEL_GREY_UPPER_CASE "#F2F2F2"

/// Background of title bars and of the navigation bar.
#define LOOK_TITLE_CHARCOAL "#2b2b2b"

/// Top and bottom of the vertical gradient of an enabled push button.
#define LOOK_BUTTON_TOP "#5a5959"
#define LOOK_BUTTON_BOTTOM "#060606"

/// The same top as the sheets of the database selector and of the favourite folders write it.
#define LOOK_BUTTON_TOP_UPPER_CASE "#5A5959"

/// Colorize effect of a push button for as long as a finger holds it down.
#define LOOK_TOUCH_TINT "#ff5800"

/// Border, text, and top and bottom of the gradient of a disabled push button.
#define LOOK_DISABLED_BORDER "#d3d3d3"
#define LOOK_DISABLED_TEXT "#848484"
#define LOOK_DISABLED_TOP "#d3d3d3"
#define LOOK_DISABLED_BOTTOM "#a8a8a8"

/// One-pixel border of a combo box.
#define LOOK_COMBO_BORDER "#c6c6c6"

/// Rule between the head and the text of a panel; frame of a list without the focus. The combo box's
/// grey by accident only.
#define LOOK_SEPARATOR "#c6c6c6"

/// Background of the combo box on the dark navigation bar.
#define LOOK_COMBO_GREY "#e8e8e8"

/// Handle of the 35 px wide scroll bars.
#define LOOK_SCROLL_HANDLE "#464646"

/// Tick marks and numbers of a slider.
#define LOOK_SLIDER_TICK "#a5a294"

/// Arrow buttons and frame of the tool box. Not quite the accent: a tone darker.
#define LOOK_TOOL_ORANGE "#f37800"
