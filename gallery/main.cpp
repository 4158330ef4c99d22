// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "gallerywindow.h"
#include "oxsingleinstanceapplication.h"
#include "oxtranslation.h"
#include "page.h"
#include "tour.h"

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

/// Texts, and the way numbers are written, in the language with that code; false, with a line on
/// standard error, if the library has no such translation. No code leaves everything in English.
bool speak(const QString& language)
{
    if (language.isEmpty()) {
        return true;
    }
    QLocale::setDefault(QLocale(language));
    const bool translated = OxTranslation::install();
    if (!translated) {
        std::fprintf(stderr, "no translation for %s\n", qUtf8Printable(language));
    }
    return translated;
}

/// The window, as long as a person wants to see it.
int showGallery(int argc, char* argv[], QCommandLineParser& parser, const QCommandLineOption& page,
                const QCommandLineOption& language)
{
    //! [OxSingleInstanceApplication]
    OxSingleInstanceApplication application(argc, argv, QString::fromLatin1(Gallery::ChannelName));
    if (!application.isOnlyInstance()) {
        return 0; // the first instance has come forward
    }
    parser.process(application);
    if (!speak(parser.value(language))) {
        return 1;
    }
    Gallery::GalleryWindow window;
    window.showPage(parser.value(page));
    application.setMainWidget(&window);
    return OxSingleInstanceApplication::exec();
    //! [OxSingleInstanceApplication]
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("UtilityWidgets Gallery"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows every widget of the UtilityWidgets library, live."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption list(
        QStringLiteral("list"),
        QStringLiteral("Print family, name and summary of every page and dialog, then end."));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        QStringLiteral("Write one picture per page and dialog into <folder>, then end."),
        QStringLiteral("folder"));
    const QCommandLineOption pictures(
        QStringLiteral("pictures"),
        QStringLiteral("As --tour, but of what the pages show alone, without the gallery around."),
        QStringLiteral("folder"));
    const QCommandLineOption page(QStringLiteral("page"), QStringLiteral("Start on page <name>."),
                                  QStringLiteral("name"));
    const QCommandLineOption language(
        QStringLiteral("language"),
        QStringLiteral("Show the library's own texts in the language with that <code>: ar, de, en, "
                       "es, fr or ja."),
        QStringLiteral("code"));
    parser.addOptions({ list, tour, pictures, page, language });
    // Before there is an application object: which one it is depends on what is asked for. Options
    // of Qt's own, which only the application object takes away, are of no importance here.
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    parser.parse(arguments);
    if (!parser.isSet(help) && !parser.isSet(list) && !parser.isSet(tour)
        && !parser.isSet(pictures)) {
        return showGallery(argc, argv, parser, page, language);
    }

    // None of these may call a gallery that is running forward.
    const QApplication application(argc, argv);
    parser.process(application);
    if (parser.isSet(list)) {
        printList();
        return 0;
    }
    if (!speak(parser.value(language))) {
        return 1;
    }
    const bool complete = (!parser.isSet(tour) || Gallery::takeTour(parser.value(tour)))
        && (!parser.isSet(pictures) || Gallery::takePictures(parser.value(pictures)));
    return complete ? 0 : 1;
}
