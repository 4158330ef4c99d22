// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QList>
#include <QMap>
#include <QSize>
#include <QString>

class QJsonObject;

/// One picture inside an .ico file: `size` x `size` pixels, drawn from `master`.
struct IconStep
{
    int size = 0;
    QString master;
};

/// One image of the resource set, as the manifest describes it.
struct ImageEntry
{
    QString macro; ///< without the common prefix: "CLOSE"
    QString path; ///< in the resource set, without the leading ":/"
    QString role; ///< where it is seen, one line for people
    QSize size; ///< in pixels at scale 1
    QString master; ///< file name of the drawing, without folder and ".svg"
    QMap<QString, QString> colours; ///< by role name, as the drawing uses it
    int rotate = 0; ///< clockwise, in quarter turns of 90
    QColor ground; ///< colour of the widget behind the image
    QColor matte; ///< what fills the image first; invalid for formats with transparency
    QList<IconStep> icon; ///< only for .ico files

    /// The file that holds it, below resources/. A path without an extension is an alias of a file
    /// that has one, so that the files themselves open everywhere.
    QString fileName(int scale) const;
    /// Its name in the resource set at that scale: "@2x" before the extension.
    QString pathAt(int scale) const;
    bool isIcon() const { return !icon.isEmpty(); }
    /// An .ico file holds all its sizes itself.
    int largestScale() const { return isIcon() ? 1 : 2; }
};

/*!
 * The list of all images: what they are called, which drawing each comes from, and in which
 * colours.
 */
class Manifest
{
public:
    /// Reads `fileName`. Every problem, an unknown key included, is an entry of errors().
    explicit Manifest(const QString& fileName);

    const QList<ImageEntry>& images() const { return m_images; }
    const QStringList& errors() const { return m_errors; }

private:
    struct Look
    {
        QColor ground;
        QMap<QString, QString> colours;
    };

    void readLooks(const QJsonObject& looks);
    void readImage(const QJsonObject& object);
    void refuseUnknownKeys(const QJsonObject& object, const QStringList& known,
                           const QString& where);
    void checkImage(const ImageEntry& image);
    QMap<QString, QString> readColours(const QJsonObject& colours, const QString& where);

    QMap<QString, Look> m_looks;
    QList<ImageEntry> m_images;
    QStringList m_errors;
};
