// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// An editor for labels: the model of an application that is made of this library alone.

#include "editorwindow.h"

#include <OxSingleInstanceApplication>
#include <OxTranslation>

#include <QCommandLineParser>

#include <cstdio>

int main(int argc, char* argv[])
{
    // Named first: the file dialog keeps the favourites in the application's settings.
    QCoreApplication::setOrganizationName(QStringLiteral("UtilityWidgets"));
    QCoreApplication::setApplicationName(QStringLiteral("utilitywidgets-editor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(EDITOR_VERSION));
    OxSingleInstanceApplication application(argc, argv, QStringLiteral("UtilityWidgetsEditor"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Edits labels and prints them to PDF files."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The label to open."),
                                 QStringLiteral("[file]"));
    parser.process(application);
    if (!application.isOnlyInstance()) {
        return 0; // the first instance has come forward
    }
    OxTranslation::install(); // the library's texts in the person's language
    EditorWindow window;
    application.setMainWidget(&window);
    const QString path = parser.positionalArguments().value(0);
    if (!path.isEmpty()) {
        window.openFile(path);
    }
    std::printf("editing %s\n", qUtf8Printable(window.document().path())); // for who waits for it
    std::fflush(stdout);
    return OxSingleInstanceApplication::exec();
}
