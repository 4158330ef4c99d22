// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/icons.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QIcon>
#include <QPixmap>
#include <QtMath>
#include <QtPlugin>

#include <algorithm>

// Linked here, beside what every user of our images needs: nothing else mentions it.
Q_IMPORT_PLUGIN(ScaledIconPlugin)

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

qint64 area(const QSize& size)
{
    return qint64(size.width()) * size.height();
}

/// The image at `path` in the largest of its sizes up to `scale` times the plain one: that of the
/// file beside it with "@2x" in its name, for a scale of 2.
QPixmap finest(const QString& path, int scale)
{
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    const qsizetype end = dot > path.lastIndexOf(QLatin1Char('/')) ? dot : path.size();
    for (; scale > 1; --scale) {
        const QString file = QString(path).insert(end, QStringLiteral("@%1x").arg(scale));
        if (QFile::exists(file)) {
            return QPixmap(file);
        }
    }
    return QPixmap(path);
}

} // namespace

bool Look::isFraction(qreal devicePixelRatio)
{
    return devicePixelRatio > 1 && !qFuzzyCompare(devicePixelRatio, qRound(devicePixelRatio));
}

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
    if (!isFraction(devicePixelRatio)) {
        return QIcon(path).pixmap(plain.size(), devicePixelRatio);
    }
    // Read without the help of QIcon, whose engine for these scales asks for this very picture.
    QPixmap picture = finest(path, qCeil(devicePixelRatio))
                          .scaled(plain.size() * devicePixelRatio, Qt::IgnoreAspectRatio,
                                  Qt::SmoothTransformation);
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
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
