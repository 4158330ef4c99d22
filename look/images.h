// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Written by rendericons from resources/masters/manifest.json: change that one.

#pragma once

// Every image of the resource set module_resource_icons, once, named for its role, with its size
// in pixels. Each PNG and JPEG has a "@2x" twin for finer screens. QIcon and style sheets find that
// by themselves; QPixmap(path) does not, QIcon(path).pixmap(size, devicePixelRatio()) does.
//
// Macros, because a style sheet is one literal: "image: url(" LOOK_IMAGE_... ");".

// clang-format off

// --- Navigation/NavigationIcons/

/// Close button of both title bars; 34 x 31.
#define LOOK_IMAGE_CLOSE ":/Navigation/NavigationIcons/exit.png"
/// Title bar of every message box; 29 x 28.
#define LOOK_IMAGE_ERROR ":/Navigation/NavigationIcons/error-icon.png"
/// Title bar of the input dialog; 29 x 28.
#define LOOK_IMAGE_INFORMATION ":/Navigation/NavigationIcons/info_29.png"
/// Close button of the navigation bar; 66 x 57.
#define LOOK_IMAGE_NAVIGATION_CLOSE ":/Navigation/NavigationIcons/close.png"
/// Previous-record button of the navigation bar; 37 x 57.
#define LOOK_IMAGE_NAVIGATION_PREVIOUS ":/Navigation/NavigationIcons/left-nav-arrow.png"
/// Next-record button of the navigation bar; 37 x 57.
#define LOOK_IMAGE_NAVIGATION_NEXT ":/Navigation/NavigationIcons/right-nav-arrow.png"
/// Search button of the navigation bar; 35 x 35.
#define LOOK_IMAGE_NAVIGATION_SEARCH ":/Navigation/NavigationIcons/search-icon.png"
/// Zoom-in button; 50 x 57.
#define LOOK_IMAGE_ZOOM_IN ":/Navigation/NavigationIcons/zoom-in.png"
/// Zoom-in button, pressed; 50 x 57.
#define LOOK_IMAGE_ZOOM_IN_PRESSED ":/Navigation/NavigationIcons/zoom-in-pressed.png"
/// Zoom-out button; 50 x 57.
#define LOOK_IMAGE_ZOOM_OUT ":/Navigation/NavigationIcons/zoom-out.png"
/// Zoom-out button, pressed; 50 x 57.
#define LOOK_IMAGE_ZOOM_OUT_PRESSED ":/Navigation/NavigationIcons/zoom-out-pressed.png"
/// Zoom-to-fit button; 50 x 57.
#define LOOK_IMAGE_ZOOM_FIT ":/Navigation/NavigationIcons/zoom_fit.png"
/// Zoom-to-fit button, pressed; 50 x 57.
#define LOOK_IMAGE_ZOOM_FIT_PRESSED ":/Navigation/NavigationIcons/zoom_fit_pressed.png"
/// Folder in the file list; 35 x 35.
#define LOOK_IMAGE_FOLDER ":/Navigation/NavigationIcons/folder_icon.png"
/// File of any type in the file list; 35 x 35.
#define LOOK_IMAGE_FILE ":/Navigation/NavigationIcons/file_icon.png"
/// Favourite: the Desktop folder; 24 x 24.
#define LOOK_IMAGE_FAVORITE_DESKTOP ":/Navigation/NavigationIcons/home_unpressed"
/// Favourite: the home folder; 24 x 24.
#define LOOK_IMAGE_FAVORITE_HOME ":/Navigation/NavigationIcons/user_icon_outlined"
/// Favourite: a folder that the user added; 24 x 24.
#define LOOK_IMAGE_FAVORITE_FOLDER ":/Navigation/NavigationIcons/folder_unpressed"
/// Favourite: a removable medium; 24 x 24.
#define LOOK_IMAGE_FAVORITE_MEDIUM ":/Navigation/NavigationIcons/usb_unpressed"
/// Window icon of the symbol search field; 24 x 24.
#define LOOK_IMAGE_SEARCH_WINDOW ":/Navigation/NavigationIcons/search.png"

// --- NavBarDisabled/navbar-disabled/

/// Zoom-in button, disabled; 50 x 57.
#define LOOK_IMAGE_ZOOM_IN_DISABLED ":/NavBarDisabled/navbar-disabled/zoom-in_disabled.png"
/// Zoom-out button, disabled; 50 x 57.
#define LOOK_IMAGE_ZOOM_OUT_DISABLED ":/NavBarDisabled/navbar-disabled/zoom-out_disabled.png"
/// Zoom-to-fit button, disabled; 50 x 57.
#define LOOK_IMAGE_ZOOM_FIT_DISABLED ":/NavBarDisabled/navbar-disabled/zoom-fit_disabled.png"

// --- InsertIcons/Icons/

/// Button inside the symbol search field; 16 x 16.
#define LOOK_IMAGE_SEARCH ":/InsertIcons/Icons/search.png"

// --- module_icons/ModuleIcons/

/// Scroll bar and tool box arrow, up; 16 x 16.
#define LOOK_IMAGE_ARROW_UP ":/module_icons/ModuleIcons/edit-arrow-up.png"
/// Scroll bar and tool box arrow, down; 16 x 16.
#define LOOK_IMAGE_ARROW_DOWN ":/module_icons/ModuleIcons/edit-arrow-down.png"
/// Scroll bar and tool box arrow, left; 16 x 16.
#define LOOK_IMAGE_ARROW_LEFT ":/module_icons/ModuleIcons/edit-arrow-left.png"
/// Scroll bar and tool box arrow, right; 16 x 16.
#define LOOK_IMAGE_ARROW_RIGHT ":/module_icons/ModuleIcons/edit-arrow-right.png"
/// Drop-down arrow of a combo box; 16 x 16.
#define LOOK_IMAGE_COMBO_ARROW ":/module_icons/ModuleIcons/combobox-down-arrow.png"
/// Drop-down arrow of a disabled combo box; 16 x 16.
#define LOOK_IMAGE_COMBO_ARROW_DISABLED ":/module_icons/ModuleIcons/combobox-down-arrow-disabled.png"
/// Radio button, checked; 24 x 24.
#define LOOK_IMAGE_RADIO_CHECKED ":/module_icons/ModuleIcons/radio-button_checked.png"
/// Radio button, unchecked; 24 x 24.
#define LOOK_IMAGE_RADIO_UNCHECKED ":/module_icons/ModuleIcons/radio-button_unchecked.png"
/// Radio button, checked and disabled; 24 x 24.
#define LOOK_IMAGE_RADIO_CHECKED_DISABLED ":/module_icons/ModuleIcons/radio-button_checked-disabled.png"
/// Radio button, unchecked and disabled; 24 x 24.
#define LOOK_IMAGE_RADIO_UNCHECKED_DISABLED ":/module_icons/ModuleIcons/radio-button_unchecked-disabled.png"
/// Button of a folded section (unchecked); 35 x 35.
#define LOOK_IMAGE_COLLAPSE ":/module_icons/ModuleIcons/collapse.png"
/// Button of a folded section, pressed; 35 x 35.
#define LOOK_IMAGE_COLLAPSE_PRESSED ":/module_icons/ModuleIcons/collapse_orange.png"
/// Button of an open section (checked); 35 x 35.
#define LOOK_IMAGE_EXPAND ":/module_icons/ModuleIcons/expand.png"
/// Button of an open section, pressed; 35 x 35.
#define LOOK_IMAGE_EXPAND_PRESSED ":/module_icons/ModuleIcons/expand_orange.png"

// --- Lock/Lock/

/// Lock box, unchecked; 35 x 35.
#define LOOK_IMAGE_LOCK ":/Lock/Lock/object-lock.png"
/// Lock box, checked; 35 x 35.
#define LOOK_IMAGE_LOCK_CHECKED ":/Lock/Lock/object-lock-pressed.png"
/// Lock box, disabled; 35 x 35.
#define LOOK_IMAGE_LOCK_DISABLED ":/Lock/Lock/object-lock-disabled.png"
/// Read-only box, unchecked; 35 x 35.
#define LOOK_IMAGE_READ_ONLY ":/Lock/Lock/readonly-lock.png"
/// Read-only box, checked; 35 x 35.
#define LOOK_IMAGE_READ_ONLY_CHECKED ":/Lock/Lock/readonly-lock-pressed.png"
/// Read-only box, disabled; 35 x 35.
#define LOOK_IMAGE_READ_ONLY_DISABLED ":/Lock/Lock/readonly-lock-disabled.png"
/// User background box, unchecked; 35 x 35.
#define LOOK_IMAGE_USER_BACKGROUND ":/Lock/Lock/user-background.png"
/// User background box, checked; 35 x 35.
#define LOOK_IMAGE_USER_BACKGROUND_CHECKED ":/Lock/Lock/user-background-pressed.png"
/// User background box, disabled; 35 x 35.
#define LOOK_IMAGE_USER_BACKGROUND_DISABLED ":/Lock/Lock/user-background-disabled.png"

// --- FileDialog/FileDialogIcons/

/// Button to the parent folder; 35 x 35.
#define LOOK_IMAGE_FOLDER_UP ":/FileDialog/FileDialogIcons/up-arrow_normal.jpg"
/// Button to the parent folder, pressed; 35 x 35.
#define LOOK_IMAGE_FOLDER_UP_PRESSED ":/FileDialog/FileDialogIcons/up-arrow_pressed.jpg"
/// Button to the parent folder, disabled; 35 x 35.
#define LOOK_IMAGE_FOLDER_UP_DISABLED ":/FileDialog/FileDialogIcons/up-arrow_disabled.jpg"

// --- Background/Background/

/// Chequered swatch of the colour transparent; 35 x 35.
#define LOOK_IMAGE_TRANSPARENCY ":/Background/Background/transparentBackground.png"

// --- Icon/ApplicationIcons/

/// Window icon of every dialog; 64 x 64.
#define LOOK_IMAGE_APPLICATION ":/Icon/ApplicationIcons/popup.ico"

// clang-format on
