// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// The other program with a file dialog whose favourites are in the same settings.
//
//   favorite_keeper ORGANIZATION APPLICATION    prints "ready"
//
// Takes lines, each a folder to add, and answers each with "done"; "quit" ends it.

#include "oxfiledialog.h"

#include <QApplication>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

void print(const char* line)
{
    std::printf("%s\n", line);
    std::fflush(stdout);
}

/// Adds the folder that the dialog shows when it is made.
void add(const QString& path)
{
    OxFileDialog::OxFileDialogArgs args;
    args.directory = path;
    OxFileDialog dialog(nullptr, args, OxFileDialog::OpenFile);
    QMetaObject::invokeMethod(&dialog, "addToFavoritesClickSlot");
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QString::fromLocal8Bit(argv[1]));
    QCoreApplication::setApplicationName(QString::fromLocal8Bit(argv[2]));
    print("ready");
    for (std::string line; std::getline(std::cin, line) && line != "quit";) {
        add(QString::fromStdString(line));
        print("done");
    }
    return 0;
}
