# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT

# The translations of the library, which are compiled and embedded in it as
# ":/UtilityWidgets/translations/utilitywidgets_<language>.qm". To be included where the library is
# made, because a generated file is known only there.
#
# A build that was asked for them does not quietly go without: what a package holds must not depend
# on which tools happened to be installed.

set(languages ar de es fr ja)

if(NOT UTILITYWIDGETS_TRANSLATIONS)
    message(STATUS "UtilityWidgets: without translations, all texts are English")
    return()
endif()

find_package(Qt6LinguistTools 6.4 QUIET)
if(NOT Qt6LinguistTools_FOUND)
    message(
        FATAL_ERROR
            "Qt's Linguist tools (lrelease), which make the translations, were not found. Install "
            "them (on Debian qt6-tools-dev and qt6-l10n-tools; a cross build needs those of the "
            "host), or configure with -DUTILITYWIDGETS_TRANSLATIONS=OFF.")
endif()

set(ts_files)
set(qm_files)
foreach(language IN LISTS languages)
    set(ts "${PROJECT_SOURCE_DIR}/translations/utilitywidgets_${language}.ts")
    set(qm "${PROJECT_BINARY_DIR}/translations/utilitywidgets_${language}.qm")
    add_custom_command(
        OUTPUT "${qm}"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${PROJECT_BINARY_DIR}/translations"
        COMMAND Qt6::lrelease -silent -nounfinished "${ts}" -qm "${qm}"
        DEPENDS "${ts}"
        VERBATIM)
    list(APPEND ts_files "${ts}")
    list(APPEND qm_files "${qm}")
endforeach()
qt_add_resources(
    UtilityWidgets
    utilitywidgets_translations
    PREFIX
    "/UtilityWidgets/translations"
    BASE
    "${PROJECT_BINARY_DIR}/translations"
    FILES
    ${qm_files})

# Takes new and changed texts over into the files. No places in the sources, so that only texts
# make a difference.
if(PROJECT_IS_TOP_LEVEL)
    add_custom_target(
        update_translations
        COMMAND Qt6::lupdate -silent -no-obsolete -locations none platform look touch widgets
                widgets_symbols -ts ${ts_files}
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
        VERBATIM)
endif()
