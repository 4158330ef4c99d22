// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Without an argument: is loaded, and ends. With a channel's name: an application's later start.

#include "oxsingleinstanceapplication.h"

int main(int argc, char* argv[])
{
    if (argc > 1) {
        const OxSingleInstanceApplication application(argc, argv, QString::fromLocal8Bit(argv[1]));
        return application.isOnlyInstance() ? 1 : 0;
    }
    return 0;
}
