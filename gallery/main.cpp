// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "gallerywindow.h"
#include "page.h"
#include "tour.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace {

void printList()
{
    for (const Gallery::Family& family : Gallery::families()) {
        for (const Gallery::Page& page : family.pages) {
            std::printf("%s\t%s\t%s\n", qUtf8Printable(family.name), qUtf8Printable(page.id),
                        qUtf8Printable(page.summary));
            for (const Gallery::DialogState& state : page.dialogs) {
                std::printf("%s\t%s-%s\t%s\n", qUtf8Printable(family.name), qUtf8Printable(page.id),
                            qUtf8Printable(state.id), qUtf8Printable(state.caption));
            }
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("UtilityWidgets Gallery"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows every widget of the UtilityWidgets library, live."));
    parser.addHelpOption();
    const QCommandLineOption list(
        QStringLiteral("list"),
        QStringLiteral("Print family, name and summary of every page and dialog, then end."));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        QStringLiteral("Write one picture per page and dialog into <folder>, then end."),
        QStringLiteral("folder"));
    const QCommandLineOption page(QStringLiteral("page"), QStringLiteral("Start on page <name>."),
                                  QStringLiteral("name"));
    parser.addOptions({ list, tour, page });
    parser.process(application);

    if (parser.isSet(list)) {
        printList();
        return 0;
    }
    if (parser.isSet(tour)) {
        return Gallery::takeTour(parser.value(tour)) ? 0 : 1;
    }
    Gallery::GalleryWindow window;
    window.showPage(parser.value(page));
    window.showFullScreen();
    return QApplication::exec();
}
