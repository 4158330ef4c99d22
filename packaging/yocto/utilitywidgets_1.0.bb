# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT

SUMMARY = "Touch-screen widgets in one house style"
DESCRIPTION = "The common widget library of a family of full-screen touch applications: dialogs, \
input controls, panels and lists that scroll under a finger, made with Qt 6 for a display of \
1024 x 540 pixels."
SECTION = "libs"
LICENSE = "MIT"
LIC_FILES_CHKSUM = "file://LICENSE;md5=e0a4673116d6da6365216452c7005cc1"

# The source tree that this recipe is a part of.
EXTERNALSRC = "${@os.path.normpath(d.getVar('THISDIR') + '/../..')}"

inherit qt6-cmake pkgconfig externalsrc

# qtbase must be built with the SQLite driver: PACKAGECONFIG:append:pn-qtbase = " sql-sqlite"
DEPENDS = "qtbase qtsvg zlib"

PACKAGECONFIG ??= "tools translations"
PACKAGECONFIG[gallery] = "-DUTILITYWIDGETS_BUILD_GALLERY=ON,-DUTILITYWIDGETS_BUILD_GALLERY=OFF"
PACKAGECONFIG[tools] = "-DUTILITYWIDGETS_BUILD_TOOLS=ON,-DUTILITYWIDGETS_BUILD_TOOLS=OFF"
PACKAGECONFIG[translations] = "-DUTILITYWIDGETS_TRANSLATIONS=ON,-DUTILITYWIDGETS_TRANSLATIONS=OFF,qttools-native"

EXTRA_OECMAKE += "\
    -DCMAKE_SKIP_INSTALL_RPATH=ON \
    -DUTILITYWIDGETS_BUILD_BENCHMARKS=OFF \
    -DUTILITYWIDGETS_BUILD_DESIGNER=OFF \
    -DUTILITYWIDGETS_BUILD_DOCS=OFF \
    -DUTILITYWIDGETS_BUILD_TESTS=OFF \
"

PACKAGE_BEFORE_PN = "${PN}-gallery ${PN}-tools"

FILES:${PN}-gallery = "\
    ${bindir}/utilitywidgets-* \
    ${datadir}/UtilityWidgets \
    ${datadir}/applications \
    ${datadir}/icons \
"
FILES:${PN}-tools = "${bindir}/mountservice ${bindir}/symbollibrary"

# The database driver, and what reads the images.
RDEPENDS:${PN} += "qtbase-plugins qtsvg-plugins"
