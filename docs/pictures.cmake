# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT

cmake_minimum_required(VERSION 3.25)

# Writes PICTURES/pictures.dox, which adds the pictures of the gallery's tour to those of CLASSES
# that they show. A page of the gallery is named after its class, a state of a dialog "Class-state".
# Doxygen puts these blocks behind the class's own.

execute_process(
    COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${GALLERY}" --list
    OUTPUT_VARIABLE list
    COMMAND_ERROR_IS_FATAL ANY)
# Lines become list items.
string(REPLACE ";" "," list "${list}")
string(REGEX MATCHALL "[^\n]+" list "${list}")
if(NOT list)
    message(FATAL_ERROR "The gallery lists no page")
endif()

string(REPLACE "," ";" CLASSES "${CLASSES}")
set(text)
foreach(line IN LISTS list)
    # Family, page or page-state, what it shows.
    if(NOT line MATCHES "^[^\t]*\t([^\t]+)\t([^\t]*)$")
        message(FATAL_ERROR "Not a line of the gallery's list: ${line}")
    endif()
    set(id "${CMAKE_MATCH_1}")
    string(REPLACE "\"" "'" caption "${CMAKE_MATCH_2}")
    string(REGEX REPLACE "-.*" "" class "${id}")
    if(NOT EXISTS "${PICTURES}/${id}.png")
        message(FATAL_ERROR "The tour took no picture of ${id}")
    endif()
    if(NOT class IN_LIST CLASSES)
        continue()
    endif()
    string(APPEND text "/*! \\class ${class}\n\n\\image html ${id}.png \"${caption}\" width=768px\n*/\n")
endforeach()
file(WRITE "${PICTURES}/pictures.dox" "${text}")
