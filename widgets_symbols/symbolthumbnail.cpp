// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolthumbnail.h"

#include "svggate.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

QByteArray renderSymbolThumbnail(const QByteArray& svg)
{
    // An image and no pixmap, so that any thread may do it; a pixmap without transparency has the
    // same format, and so the PNG has the same bytes.
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(Qt::white);
    const SvgGate gate = SvgGate::pass(svg);
    if (!gate.document.isEmpty()) {
        QSvgRenderer renderer(gate.document);
        QPainter painter(&image);
        renderer.render(&painter, QRectF(0, 0, 50, 50));
    }

    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}
