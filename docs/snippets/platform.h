// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// Fonts for a screen with finer pixels.
void setDeviceFontSizes();

/// The lines that were logged since collectLog().
QStringList& loggedLines();
/// Has the library's lines kept.
void collectLog();

void logFailure(const QString& path);
void logDetails();
