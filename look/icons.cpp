// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/icons.h"

#include <QCoreApplication>
#include <QHash>
#include <QIcon>
#include <QPixmap>

namespace {

QHash<QString, QIcon>& cache()
{
    static QHash<QString, QIcon> icons;
    return icons;
}

/// An icon holds pixmaps, and those must not outlive the application object.
void clearCache()
{
    cache().clear();
}

} // namespace

QIcon Look::icon(const QString& path)
{
    if (cache().isEmpty()) {
        qAddPostRoutine(clearCache);
    }
    QIcon& icon = cache()[path];
    if (icon.isNull()) {
        icon = QIcon(path);
    }
    return icon;
}

QIcon Look::listIcon(const QString& path)
{
    QIcon untinted = icon(path);
    untinted.addFile(path, {}, QIcon::Selected);
    return untinted;
}

QPixmap Look::picture(const QString& path, qreal devicePixelRatio)
{
    QPixmap plain(path);
    if (plain.isNull() || devicePixelRatio <= 1) {
        return plain;
    }
    return QIcon(path).pixmap(plain.size(), devicePixelRatio);
}
