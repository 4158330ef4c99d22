// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Without an argument: is loaded, and ends. With one: makes an application object, and ends.

#include <QApplication>

int main(int argc, char* argv[])
{
    if (argc > 1) {
        const QApplication application(argc, argv);
        return 0;
    }
    return 0;
}
