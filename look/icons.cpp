// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/icons.h"

#include <QGuiApplication>
#include <QHash>
#include <QIcon>
#include <QPixmap>
#include <QtMath>

#include <algorithm>

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

/// Whether there are no pictures between those of plain screens and their "@2x" twins for it.
bool isFraction(qreal devicePixelRatio)
{
    return devicePixelRatio > 1 && !qFuzzyCompare(devicePixelRatio, qRound(devicePixelRatio));
}

qint64 area(const QSize& size)
{
    return qint64(size.width()) * size.height();
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
        const qreal ratio = qGuiApp->devicePixelRatio();
        if (isFraction(ratio)) {
            // Left to itself QIcon keeps the proportions to the pixel, gets a picture that is a
            // little too small for an odd size, and has it stretched again, blurred, when painted.
            icon.addPixmap(picture(path, ratio));
        }
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
    QPixmap fine = QIcon(path).pixmap(plain.size(), qCeil(devicePixelRatio));
    if (isFraction(devicePixelRatio)) {
        fine = fine.scaled(plain.size() * devicePixelRatio, Qt::IgnoreAspectRatio,
                           Qt::SmoothTransformation);
        fine.setDevicePixelRatio(devicePixelRatio);
    }
    return fine;
}

QSize Look::shownSize(const QIcon& icon, const QSize& room, qreal devicePixelRatio)
{
    if (icon.isNull()) {
        return { 0, 0 };
    }
    if (devicePixelRatio <= 1) {
        return icon.actualSize(room);
    }
    const QList<QSize> sizes = icon.availableSizes();
    if (sizes.isEmpty()) {
        return icon.actualSize(room); // drawn in any size
    }
    QSize largest =
        *std::max_element(sizes.begin(), sizes.end(), [](const QSize& left, const QSize& right) {
            return area(left) < area(right);
        });
    for (const qreal ratio : { devicePixelRatio, qreal(qCeil(devicePixelRatio)) }) {
        const auto plain = std::find_if(sizes.begin(), sizes.end(),
                                        [&](const QSize& size) { return size * ratio == largest; });
        if (plain != sizes.end()) {
            largest = *plain;
            break;
        }
    }
    const bool fits = largest.width() <= room.width() && largest.height() <= room.height();
    return fits ? largest : largest.scaled(room, Qt::KeepAspectRatio);
}
