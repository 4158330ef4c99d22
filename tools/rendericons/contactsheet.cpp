// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "contactsheet.h"

#include "iconrenderer.h"
#include "manifest.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace {

// One cell: the path, below it four real-size swatches, the enlarged pixels, and those of scale 2.
constexpr QSize Swatch(76, 66);
constexpr QSize Enlarged(288, 240);
constexpr int LabelHeight = 18;
constexpr int Gap = 4;
constexpr QSize Cell(2 * Swatch.width() + 2 * Enlarged.width() + 5 * Gap,
                     LabelHeight + Enlarged.height() + 2 * Gap);
constexpr int Columns = 2;

/// What the files hold, not what was drawn: a JPEG file loses something on the way.
QList<QImage> stored(const ImageEntry& image, int scale, IconRenderer* renderer)
{
    return IconRenderer::decode(renderer->encode(image, scale),
                                QFileInfo(image.fileName(scale)).suffix());
}

void paintCentred(QPainter* painter, const QRect& area, const QColor& ground, const QImage& image,
                  int factor)
{
    painter->fillRect(area, ground);
    QRect target(QPoint(), image.size() * factor);
    target.moveCenter(area.center());
    painter->drawImage(target, image);
}

/// All pictures of an .ico file beside each other, the small ones doubled.
void paintIcon(QPainter* painter, const QRect& area, const QColor& ground,
               const QList<QImage>& images)
{
    painter->fillRect(area, ground);
    QPoint at = area.topLeft() + QPoint(Gap, Gap);
    for (const QImage& image : images) {
        const QSize size = image.width() > 48 ? image.size() : image.size() * 2;
        painter->drawImage(QRect(at, size), image);
        at.rx() += size.width() + Gap;
    }
}

void paintCell(QPainter* painter, const QPoint& corner, const ImageEntry& image,
               IconRenderer* renderer)
{
    const QList<QImage> images = stored(image, 1, renderer);
    const QImage& single = images.first();
    painter->drawText(QRect(corner, QSize(Cell.width(), LabelHeight)), Qt::AlignVCenter,
                      image.path + QStringLiteral("  ") + image.role);
    const QColor grounds[] = { QColor(0x2b2b2b), QColor(0xf2f2f2), QColor(0xffffff),
                               QColor(0xfd7800) };
    for (int i = 0; i < 4; ++i) {
        const QPoint at = corner
            + QPoint((i % 2) * (Swatch.width() + Gap),
                     LabelHeight + (i / 2) * (Swatch.height() + Gap));
        paintCentred(painter, QRect(at, Swatch), grounds[i], single, 1);
    }
    QRect enlarged(corner + QPoint(2 * (Swatch.width() + Gap), LabelHeight), Enlarged);
    if (image.isIcon()) {
        enlarged.setWidth(2 * Enlarged.width());
        paintIcon(painter, enlarged, image.ground, images);
        return;
    }
    paintCentred(painter, enlarged, image.ground, single, 4);
    enlarged.translate(Enlarged.width() + Gap, 0);
    paintCentred(painter, enlarged, image.ground, stored(image, 2, renderer).first(), 2);
}

} // namespace

bool writeContactSheets(const Manifest& manifest, IconRenderer& renderer, const QString& folder)
{
    QMap<QString, QList<ImageEntry>> sheets;
    for (const ImageEntry& image : manifest.images()) {
        sheets[image.path.section(QLatin1Char('/'), 0, 0)] << image;
    }
    bool written = QDir().mkpath(folder);
    for (auto it = sheets.cbegin(); it != sheets.cend(); ++it) {
        const int rows = int(it->size() + Columns - 1) / Columns;
        QImage sheet(Columns * Cell.width(), rows * Cell.height(), QImage::Format_RGB32);
        sheet.fill(QColor(0xc6c6c6));
        QPainter painter(&sheet);
        for (int i = 0; i < it->size(); ++i) {
            paintCell(&painter,
                      QPoint((i % Columns) * Cell.width() + Gap, (i / Columns) * Cell.height()),
                      it->at(i), &renderer);
        }
        painter.end();
        written =
            sheet.save(folder + QLatin1Char('/') + it.key() + QStringLiteral(".png")) && written;
    }
    return written;
}
