// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Opens the symbol browser, destroys it at once, says so and returns from main().

#include "symboldatabasewidget.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    {
        SymbolDatabaseWidget browser;
        browser.show();
        QCoreApplication::processEvents();
    }
    std::printf("destroyed\n");
    std::fflush(stdout);
    return 0;
}
