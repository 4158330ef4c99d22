// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// A home program: the one that opens the manuals which the help windows of the others ask for.
// Start it, then tap a manual in the help window of any application, for example the gallery's.

#include "homewindow.h"

#include <OxSingleInstanceApplication>

#include <cstdio>

namespace {

/// For those who have started it from a terminal, or as a part of something.
void print(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[])
{
    // Whatever arrives on the channel brings the window forward; the window listens there as well,
    // for what the messages say.
    OxSingleInstanceApplication application(argc, argv, HomeWindow::channelName());
    if (!application.isOnlyInstance()) {
        return 0;
    }
    HomeWindow window;
    QObject::connect(&window, &HomeWindow::messageShown, print);
    application.setMainWidget(&window);
    print(QStringLiteral("listening on ") + HomeWindow::channelName());
    return OxSingleInstanceApplication::exec();
}
