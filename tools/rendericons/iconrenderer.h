// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "manifest.h"

#include <QByteArray>
#include <QImage>
#include <QStringList>

/*!
 * Turns drawings into the pixels of the resource set.
 *
 * A drawing's view box is measured in pixels at scale 1: the drawing is centred in its image, never
 * stretched, so that its two-pixel lines stay two pixels wide and fall on whole pixels. Only the
 * sizes of an .ico file are scaled. A colour is written `var(--role, #default)`: a browser shows
 * the drawing in its defaults, and here each role takes the colour that the manifest gives it.
 */
class IconRenderer
{
public:
    /// `folder` holds the drawings. Problems with them are collected in errors().
    explicit IconRenderer(const QString& folder)
        : m_folder(folder)
    { }

    /// The image at scale 1 or 2.
    QImage render(const ImageEntry& image, int scale);
    /// The same, or all its sizes for an .ico file, in the file format that the path names.
    QByteArray encode(const ImageEntry& image, int scale);

    const QStringList& errors() const { return m_errors; }

    /// All pictures inside an image file: one, or several for an .ico file.
    static QList<QImage> decode(const QByteArray& bytes, const QString& suffix);
    /// True when both hold the same pictures. Differences that come from another version of the
    /// arithmetic, three steps of 255 in a channel, do not count.
    static bool samePixels(const QList<QImage>& left, const QList<QImage>& right);

private:
    QByteArray drawing(const QString& master, const QMap<QString, QString>& colours);
    QImage draw(const QString& master, const ImageEntry& image, const QSize& size, qreal scale,
                bool fit);

    QString m_folder;
    QStringList m_errors;
};
