# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT

#! [config]
include(CMakeFindDependencyMacro)
find_dependency(Qt6 COMPONENTS Core Gui)
include("${CMAKE_CURRENT_LIST_DIR}/DeviceTargets.cmake")
#! [config]
