# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT

# What is installed: the library in the component UtilityWidgets_Runtime; headers, CMake package
# and pkg-config file in UtilityWidgets_Development; the programs, by their own folders, in
# UtilityWidgets_Tools and UtilityWidgets_Gallery. Distributions make a package of each component.
# Nothing in the installed files holds an absolute path as long as the CMAKE_INSTALL_*DIR are
# relative, so that the whole tree may be staged with DESTDIR, installed with --prefix or moved.

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/UtilityWidgets")
set(header_dir "${CMAKE_INSTALL_INCLUDEDIR}/UtilityWidgets")

install(
    TARGETS UtilityWidgets
    EXPORT UtilityWidgetsTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
            COMPONENT UtilityWidgets_Runtime
            NAMELINK_COMPONENT UtilityWidgets_Development
    FILE_SET HEADERS
             DESTINATION "${header_dir}"
             COMPONENT UtilityWidgets_Development
    # Also for consumers whose CMake is older than file sets.
    INCLUDES DESTINATION "${header_dir}")
install(
    EXPORT UtilityWidgetsTargets
    NAMESPACE UtilityWidgets::
    DESTINATION "${package_dir}"
    COMPONENT UtilityWidgets_Development)

# --- CMake package ------------------------------------------------------------------------------

get_property(UTILITYWIDGETS_PLATFORM_PACKAGES GLOBAL PROPERTY UTILITYWIDGETS_PLATFORM_PACKAGES)
list(REMOVE_DUPLICATES UTILITYWIDGETS_PLATFORM_PACKAGES)
list(JOIN UTILITYWIDGETS_PLATFORM_PACKAGES " " UTILITYWIDGETS_PLATFORM_PACKAGES)
configure_package_config_file(
    "${PROJECT_SOURCE_DIR}/cmake/UtilityWidgetsConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/UtilityWidgetsConfig.cmake"
    INSTALL_DESTINATION "${package_dir}"
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/UtilityWidgetsConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(
    FILES "${PROJECT_BINARY_DIR}/UtilityWidgetsConfig.cmake"
          "${PROJECT_BINARY_DIR}/UtilityWidgetsConfigVersion.cmake"
    DESTINATION "${package_dir}"
    COMPONENT UtilityWidgets_Development)

# --- pkg-config ---------------------------------------------------------------------------------

# The prefix is found from the place of the .pc file. Only an absolute library folder makes that
# impossible: then it says nothing about the prefix.
set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(UTILITYWIDGETS_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
    file(RELATIVE_PATH pc_to_prefix "/${pc_dir}" "/")
    string(REGEX REPLACE "/$" "" pc_to_prefix "${pc_to_prefix}")
    set(UTILITYWIDGETS_PC_PREFIX "\${pcfiledir}/${pc_to_prefix}")
endif()
foreach(dir IN ITEMS LIBDIR INCLUDEDIR)
    set(UTILITYWIDGETS_PC_${dir} "${CMAKE_INSTALL_${dir}}")
    if(NOT IS_ABSOLUTE "${CMAKE_INSTALL_${dir}}")
        string(PREPEND UTILITYWIDGETS_PC_${dir} "\${prefix}/")
    endif()
endforeach()
configure_file(
    "${PROJECT_SOURCE_DIR}/cmake/UtilityWidgets.pc.in" "${PROJECT_BINARY_DIR}/UtilityWidgets.pc"
    @ONLY)
install(
    FILES "${PROJECT_BINARY_DIR}/UtilityWidgets.pc"
    DESTINATION "${pc_dir}"
    COMPONENT UtilityWidgets_Development)
