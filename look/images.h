// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

// Every image of the resource set module_resource_icons, once, named for its role.
//
// Macros, because a style sheet is one literal: "image: url(" LOOK_IMAGE_... ");".

/// Close button of both title bars.
#define LOOK_IMAGE_CLOSE ":/Navigation/NavigationIcons/exit.png"
