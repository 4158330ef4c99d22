// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "contactsheet.h"
#include "iconrenderer.h"
#include "manifest.h"
#include "outputs.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QSaveFile>

#include <cstdio>

namespace {

constexpr int Failure = 1;
constexpr int UsageError = 2;

void complain(const QString& line)
{
    std::fprintf(stderr, "rendericons: %s\n", qPrintable(line));
}

bool complainAbout(const QStringList& lines)
{
    for (const QString& line : lines) {
        complain(line);
    }
    return !lines.isEmpty();
}

bool writeFile(const QString& fileName, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(fileName).path());
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        complain(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
        return false;
    }
    return true;
}

/// Names the files that differ when `check` is set, and writes them otherwise.
int bringUpToDate(const QList<OutputFile>& outputs, const QString& project, bool check)
{
    int result = 0;
    for (const OutputFile& output : outputs) {
        if (isUpToDate(output, project)) {
            continue;
        }
        if (check) {
            std::printf("%s\n", qPrintable(output.path));
            result = Failure;
        } else if (!writeFile(project + QLatin1Char('/') + output.path, output.bytes)) {
            result = Failure;
        } else {
            std::printf("wrote %s\n", qPrintable(output.path));
        }
    }
    return result;
}

void describe(QCommandLineParser* parser)
{
    parser->setApplicationDescription(QStringLiteral(
        "Renders the library's images from their drawings.\n"
        "\n"
        "Reads resources/masters/manifest.json below the project's folder. For each image that it\n"
        "lists, the drawing resources/masters/<master>.svg is rendered in the colours of the\n"
        "image's look, at scale 1 and, as name@2x, at scale 2, and written below resources/ as\n"
        "PNG, JPEG or, in all the sizes listed, ICO. resources/module_resource_icons.qrc,\n"
        "look/images.h and look/imagetable.h are written from the same list. A file that is\n"
        "up to date is left untouched.\n"
        "\n"
        "To add an image: draw it on whole pixels with lines two pixels wide, write its colours\n"
        "as var(--role, #default), list it in the manifest, and run this program. The manifest:\n"
        "  looks   name -> ground (the colour behind the image), colours (role -> colour)\n"
        "  images  macro (LOOK_IMAGE_<macro>), path (in the resource set), size, role (one line\n"
        "          about its place), master, look; and where needed: with (more colours),\n"
        "          rotate (degrees), matte (fills a JPEG first), icon (sizes of an ICO)\n"
        "\n"
        "Exit code: 0 done, or nothing differs; 1 something differs or failed; 2 wrong usage."));
    parser->addHelpOption();
    parser->addPositionalArgument(QStringLiteral("project"),
                                  QStringLiteral("The project's folder; the current one if left "
                                                 "out."),
                                  QStringLiteral("[project]"));
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // shows no window, so it needs no display
    }
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    describe(&parser);
    const QCommandLineOption check(
        QStringLiteral("check"),
        QStringLiteral("Write nothing; print the files that differ from what would be written, "
                       "and images and drawings that the manifest does not name."));
    const QCommandLineOption sheets(
        QStringLiteral("sheets"),
        QStringLiteral("Write nothing but contact sheets, one PNG per folder of images, into "
                       "<folder>: every image in real size and enlarged."),
        QStringLiteral("folder"));
    parser.addOptions({ check, sheets });
    parser.process(application);
    if (parser.positionalArguments().size() > 1 || (parser.isSet(check) && parser.isSet(sheets))) {
        complain(QStringLiteral("see --help"));
        return UsageError;
    }

    const QString project = parser.positionalArguments().value(0, QStringLiteral("."));
    const QString masters = project + QStringLiteral("/resources/masters");
    const Manifest manifest(masters + QStringLiteral("/manifest.json"));
    if (complainAbout(manifest.errors())) {
        return Failure;
    }
    IconRenderer renderer(masters);
    if (parser.isSet(sheets)) {
        const bool written = writeContactSheets(manifest, renderer, parser.value(sheets));
        return complainAbout(renderer.errors()) || !written ? Failure : 0;
    }
    const QList<OutputFile> outputs = makeOutputs(manifest, renderer);
    if (complainAbout(renderer.errors())) {
        return Failure;
    }
    int result = bringUpToDate(outputs, project, parser.isSet(check));
    const QStringList stray = strayFiles(manifest, project);
    for (const QString& file : stray) {
        std::printf("not in the manifest: %s\n", qPrintable(file));
        result = Failure;
    }
    return result;
}
