// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "outputs.h"

#include "iconrenderer.h"
#include "manifest.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

constexpr QLatin1String HeaderTop(
    R"(// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Written by rendericons from resources/masters/manifest.json: change that one.

#pragma once

)");

constexpr QLatin1String MacrosIntroduction(
    R"(// Every image of the resource set module_resource_icons, once, named for its role, with its size
// in pixels. Each PNG and JPEG has a "@2x" twin for finer screens. QIcon and style sheets find that
// by themselves; QPixmap(path) does not, QIcon(path).pixmap(size, devicePixelRatio()) does.
//
// Macros, because a style sheet is one literal: "image: url(" LOOK_IMAGE_... ");".

// clang-format off
)");

constexpr QLatin1String TableTop(
    R"(#include "look/images.h"

namespace Look {

/// One image of the resource set, for code that goes through all of them.
struct Image
{
    const char* macro;
    const char* path;
    int width; ///< in pixels at scale 1
    int height;
    const char* ground; ///< colour of the widget behind it: "#2b2b2b"
};

// clang-format off
inline constexpr Image images[] = {
)");

constexpr QLatin1String TableBottom(
    R"(};
// clang-format on

} // namespace Look
)");

constexpr QLatin1String ResourcesTop(
    R"(<!-- SPDX-FileCopyrightText: 2026 The UtilityWidgets authors -->
<!-- SPDX-License-Identifier: MIT -->
<!-- Written by rendericons from masters/manifest.json: change that one. -->
<RCC>
  <qresource prefix="/">
)");

constexpr QLatin1String ResourcesBottom(
    R"(  </qresource>
</RCC>
)");

QString folderOf(const ImageEntry& image)
{
    return image.path.left(image.path.lastIndexOf(QLatin1Char('/')) + 1);
}

/// The images with those of a folder together, in the order in which the manifest names the
/// folders first.
QList<ImageEntry> byFolder(const Manifest& manifest)
{
    QList<ImageEntry> sorted = manifest.images();
    QStringList folders;
    for (const ImageEntry& image : manifest.images()) {
        folders << folderOf(image);
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&folders](const ImageEntry& a, const ImageEntry& b) {
                         return folders.indexOf(folderOf(a)) < folders.indexOf(folderOf(b));
                     });
    return sorted;
}

QString resourceList(const QList<ImageEntry>& images)
{
    QString text = ResourcesTop;
    for (const ImageEntry& image : images) {
        for (int scale = 1; scale <= image.largestScale(); ++scale) {
            const QString file = image.fileName(scale);
            const QString path = image.pathAt(scale);
            const QString alias =
                file == path ? QString() : QStringLiteral(" alias=\"%1\"").arg(path);
            text += QStringLiteral("    <file%1>%2</file>\n").arg(alias, file);
        }
    }
    return text + ResourcesBottom;
}

QString macroHeader(const QList<ImageEntry>& images)
{
    QString text = HeaderTop + MacrosIntroduction;
    QString folder;
    for (const ImageEntry& image : images) {
        if (folder != folderOf(image)) {
            folder = folderOf(image);
            text += QStringLiteral("\n// --- %1\n\n").arg(folder);
        }
        text += QStringLiteral("/// %1; %2 x %3.\n#define LOOK_IMAGE_%4 \":/%5\"\n")
                    .arg(image.role)
                    .arg(image.size.width())
                    .arg(image.size.height())
                    .arg(image.macro, image.path);
    }
    return text + QLatin1String("\n// clang-format on\n");
}

QString tableHeader(const QList<ImageEntry>& images)
{
    QString text = HeaderTop + TableTop;
    for (const ImageEntry& image : images) {
        text += QStringLiteral("    {\"LOOK_IMAGE_%1\", LOOK_IMAGE_%1, %2, %3, \"%4\"},\n")
                    .arg(image.macro)
                    .arg(image.size.width())
                    .arg(image.size.height())
                    .arg(image.ground.name());
    }
    return text + TableBottom;
}

} // namespace

QList<OutputFile> makeOutputs(const Manifest& manifest, IconRenderer& renderer)
{
    const QList<ImageEntry> images = byFolder(manifest);
    QList<OutputFile> outputs;
    for (const ImageEntry& image : images) {
        for (int scale = 1; scale <= image.largestScale(); ++scale) {
            outputs << OutputFile { QStringLiteral("resources/") + image.fileName(scale),
                                    renderer.encode(image, scale), true };
        }
    }
    outputs << OutputFile { QStringLiteral("resources/module_resource_icons.qrc"),
                            resourceList(images).toUtf8() };
    outputs << OutputFile { QStringLiteral("look/images.h"), macroHeader(images).toUtf8() };
    outputs << OutputFile { QStringLiteral("look/imagetable.h"), tableHeader(images).toUtf8() };
    return outputs;
}

bool isUpToDate(const OutputFile& output, const QString& project)
{
    QFile file(project + QLatin1Char('/') + output.path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray bytes = file.readAll();
    if (!output.isImage) {
        return bytes == output.bytes;
    }
    const QString suffix = QFileInfo(output.path).suffix();
    return IconRenderer::samePixels(IconRenderer::decode(bytes, suffix),
                                    IconRenderer::decode(output.bytes, suffix));
}

QStringList strayFiles(const Manifest& manifest, const QString& project)
{
    const QString resources = project + QStringLiteral("/resources/");
    QSet<QString> known;
    for (const ImageEntry& image : manifest.images()) {
        for (int scale = 1; scale <= image.largestScale(); ++scale) {
            known << image.fileName(scale);
        }
        known << QStringLiteral("masters/%1.svg").arg(image.master);
        for (const IconStep& step : image.icon) {
            known << QStringLiteral("masters/%1.svg").arg(step.master);
        }
    }
    QStringList stray;
    QDirIterator files(resources,
                       { QStringLiteral("*.png"), QStringLiteral("*.jpg"), QStringLiteral("*.ico"),
                         QStringLiteral("*.svg") },
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next().mid(resources.size());
        if (!known.contains(file)) {
            stray << QStringLiteral("resources/") + file;
        }
    }
    stray.sort();
    return stray;
}
