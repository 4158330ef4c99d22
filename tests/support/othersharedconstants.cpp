// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/othersharedconstants.h"

#include "sharedconstants.h"

const int& otherScreenWidth()
{
    return ScreenWidth;
}

const QString& otherDatabasesPath()
{
    return DatabasesPath;
}
