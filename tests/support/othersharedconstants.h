// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

// Shared constants as another source file than the caller's sees them.

const int& otherScreenWidth();
const QString& otherDatabasesPath();
