// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>

// Constants shared by the whole family of applications. They have internal linkage on purpose:
// every source file that includes this header holds its own copy, made when it is loaded.

/// \name Screen
/// @{
/// Name of the device's model.
static const QString ModelName = QStringLiteral("_Vela Orca");
/// Width of the device's screen in pixels.
static const int ScreenWidth = 1024;
/// Height of the device's screen in pixels.
static const int ScreenHeight = 540;
/// The whole screen, which an application's main window fills.
static const QSize ScreenSize(ScreenWidth, ScreenHeight);
/// @}

/// \name Sizes, in pixels
/// @{
/// Fixed size and icon size of square icon buttons.
static const QSize IconButtonSize(35, 35);
/// Fixed size and icon size of the close button of both title bars.
static const QSize CloseButtonSize(34, 31);
/// @}

/// \name Paths
/// Later ones are built from earlier ones without adding a separator. All but the first end in one.
/// @{
/// What everything that a device stores lies under, except the person's own files.
static const QString DataRootPath = QStringLiteral("/data");
/// Home folder of the person who uses the device.
static const QString HomeFolderPath = QStringLiteral("/Home/");
/// Data of the product. The full system path below the data root is meant.
static const QString ProductDataPath = DataRootPath + QStringLiteral("/usr/share/data/Halvard/");
/// Folder of the help texts.
static const QString HelpPath = ProductDataPath + QStringLiteral("Help/");
/// Folder whose subfolders hold the record databases.
static const QString DatabasesPath = ProductDataPath + QStringLiteral("databases/");
/// A second name of ProductDataPath.
static const QString DefaultDataPath = ProductDataPath;
/// @}
