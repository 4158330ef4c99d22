# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT

# What every target of this project is compiled with. Kept in one interface target that is linked
# privately, so that no consumer ever inherits it.
add_library(utilitywidgets_build INTERFACE)

target_compile_definitions(
    utilitywidgets_build
    INTERFACE
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_FOREACH
        QT_USE_QSTRINGBUILDER
        QT_STRICT_ITERATORS
        QT_DISABLE_DEPRECATED_BEFORE=0x060400)

target_compile_options(
    utilitywidgets_build
    INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor
              -Woverloaded-virtual -Wcast-align -Wformat=2
              $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond>
              $<$<BOOL:${UTILITYWIDGETS_STRICT}>:-Werror>)

if(UTILITYWIDGETS_SANITIZE)
    target_compile_options(
        utilitywidgets_build INTERFACE -fsanitize=${UTILITYWIDGETS_SANITIZE}
                                       -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(utilitywidgets_build INTERFACE -fsanitize=${UTILITYWIDGETS_SANITIZE})
endif()

# An internal library: hidden symbols, linked into the shared library and straight into the tests.
function(uw_add_internal_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${arg_LIBRARIES} PRIVATE utilitywidgets_build)
endfunction()

# uw_add_platform_class(file Class REPLACEMENT_VARIABLE [libraries ...] [SOURCES ...])
#
# One class of platform/: compiled here as an object library whose public symbols the shared
# library exports, or taken from the target that the cache variable names. Linking the target
# platform_<file> brings the class in either case. A replacement comes from the package that its
# namespace names, unless somebody above has already made the target; installed consumers look for
# the same package. SOURCES are the internal files that the class is made of besides its own two.
function(uw_add_platform_class file class replacement)
    cmake_parse_arguments(PARSE_ARGV 3 arg "" "" "SOURCES")
    set(target platform_${file})
    if(${replacement})
        string(REGEX MATCH "^(.+)::.+$" namespaced "${${replacement}}")
        if(NOT namespaced)
            message(FATAL_ERROR "${replacement} is \"${${replacement}}\"; "
                                "it must name a target as Package::Target")
        endif()
        set(package ${CMAKE_MATCH_1})
        if(NOT TARGET ${${replacement}})
            find_package(${package} REQUIRED GLOBAL)
        endif()
        add_library(${target} INTERFACE)
        target_link_libraries(${target} INTERFACE ${${replacement}})
        set_property(GLOBAL APPEND PROPERTY UTILITYWIDGETS_PLATFORM_PACKAGES ${package})
        set_property(GLOBAL APPEND PROPERTY UTILITYWIDGETS_PLATFORM_REPLACEMENTS ${${replacement}})
        return()
    endif()
    set(folder "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
    add_library(${target} OBJECT ${file}/${file}.cpp ${file}/${file}.h)
    list(TRANSFORM arg_SOURCES PREPEND "${folder}/")
    target_sources(${target} PRIVATE ${arg_SOURCES})
    target_compile_definitions(${target} PRIVATE UtilityWidgets_EXPORTS)
    target_include_directories(${target} PUBLIC "${folder}" "${PROJECT_BINARY_DIR}/include")
    target_link_libraries(
        ${target} PUBLIC Qt6::Core ${arg_UNPARSED_ARGUMENTS} PRIVATE utilitywidgets_build)
    set_property(GLOBAL APPEND PROPERTY UTILITYWIDGETS_PLATFORM_FOLDERS "${folder}")
    set_property(GLOBAL APPEND PROPERTY UTILITYWIDGETS_PLATFORM_HEADERS "${folder}/${file}.h")
    set_property(GLOBAL APPEND PROPERTY UTILITYWIDGETS_PLATFORM_CLASSES ${class})
    set_property(GLOBAL APPEND PROPERTY UTILITYWIDGETS_PLATFORM_TARGETS ${target})
endfunction()

# Installs a program, which finds the library wherever the tree is moved to. A distribution, whose
# libraries are where the loader looks, configures with CMAKE_SKIP_INSTALL_RPATH.
function(uw_install_program target component)
    cmake_path(
        RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}"
        OUTPUT_VARIABLE bin_to_lib)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "\$ORIGIN/${bin_to_lib}")
    install(TARGETS ${target} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT ${component})
endfunction()

# Writes a header named after the class beside the lower-case one, so that both
# #include <OxMessageBox> and #include "oxmessagebox.h" work. Appends its path to `out`.
function(uw_forwarding_header out header class)
    set(forwarding "${PROJECT_BINARY_DIR}/include/${class}")
    file(CONFIGURE OUTPUT "${forwarding}" CONTENT "#include \"${header}\" // IWYU pragma: export\n")
    set(${out} ${${out}} "${forwarding}" PARENT_SCOPE)
endfunction()

# uw_add_classes(Class ...)
#
# Public classes of the shared library, one pair of files each in this folder, named after the class
# in lower case, and for some a form of that name.
function(uw_add_classes)
    set(headers)
    set(forwarding_headers)
    foreach(class IN LISTS ARGN)
        string(TOLOWER "${class}" base)
        target_sources(UtilityWidgets PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/${base}.cpp")
        if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${base}.ui")
            target_sources(UtilityWidgets PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/${base}.ui")
        endif()
        list(APPEND headers "${CMAKE_CURRENT_SOURCE_DIR}/${base}.h")
        uw_forwarding_header(forwarding_headers ${base}.h ${class})
    endforeach()
    target_sources(
        UtilityWidgets
        PUBLIC FILE_SET
               HEADERS
               BASE_DIRS
               "${CMAKE_CURRENT_SOURCE_DIR}"
               "${PROJECT_BINARY_DIR}/include"
               FILES
               ${headers}
               ${forwarding_headers})
    # The gallery's tests read it: every public class has a page.
    set_property(GLOBAL APPEND PROPERTY UTILITYWIDGETS_CLASSES ${ARGN})
endfunction()
