// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "iconrenderer.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <cstdio> // jpeglib.h needs it, and size_t, before itself
#include <cstdlib>

#include <jpeglib.h>

namespace {

constexpr int JpegQuality = 95;

/// The same pixels with a colour table of at most 256 entries, the transparent ones first so that
/// the file lists no more opacities than it must; the image itself when it has more colours.
QImage withPalette(const QImage& image)
{
    QImage source = image.convertToFormat(QImage::Format_ARGB32);
    QList<QRgb> table;
    for (int y = 0; y < source.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        for (int x = 0; x < source.width(); ++x) {
            const auto at = std::lower_bound(table.begin(), table.end(), line[x]);
            if (at == table.end() || *at != line[x]) {
                table.insert(at, line[x]);
            }
        }
    }
    if (table.size() > 256) {
        return source;
    }
    QImage indexed(source.size(), QImage::Format_Indexed8);
    indexed.setColorTable(table);
    for (int y = 0; y < source.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        for (int x = 0; x < source.width(); ++x) {
            const auto at = std::lower_bound(table.cbegin(), table.cend(), line[x]);
            indexed.setPixel(x, y, uint(at - table.cbegin()));
        }
    }
    return indexed;
}

QByteArray writePng(QImage image)
{
    // A resolution is of no use on a screen and would cost a chunk in every file.
    image.setDotsPerMeterX(0);
    image.setDotsPerMeterY(0);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, QByteArrayLiteral("png"));
    writer.setCompression(100);
    writer.write(image);
    return buffer.data();
}

/// Qt's own writer halves the resolution of the colours, which turns a one-pixel orange border
/// brown and blurs it.
QByteArray writeJpeg(const QImage& image)
{
    const QImage source = image.convertToFormat(QImage::Format_RGB888);
    jpeg_compress_struct jpeg = {};
    jpeg_error_mgr errors = {};
    jpeg.err = jpeg_std_error(&errors); // ends the program, on nothing less than lack of memory
    jpeg_create_compress(&jpeg);
    unsigned char* data = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &data, &size);
    jpeg.image_width = JDIMENSION(source.width());
    jpeg.image_height = JDIMENSION(source.height());
    jpeg.input_components = 3;
    jpeg.in_color_space = JCS_RGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, JpegQuality, TRUE);
    jpeg.optimize_coding = TRUE;
    jpeg.comp_info[0].h_samp_factor = 1;
    jpeg.comp_info[0].v_samp_factor = 1;
    jpeg_start_compress(&jpeg, TRUE);
    for (int y = 0; y < source.height(); ++y) {
        auto* line = const_cast<JSAMPROW>(source.constScanLine(y)); // only read
        jpeg_write_scanlines(&jpeg, &line, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    std::free(data); // NOLINT: allocated by the C library
    return bytes;
}

/// An .ico file whose pictures are PNG files one after the other. Qt's own writer puts just one
/// picture into a file, uncompressed.
QByteArray writeIcon(const QList<QImage>& images)
{
    constexpr int HeaderSize = 6;
    constexpr int EntrySize = 16;
    QByteArray bytes;
    QByteArray pictures;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << quint16(1) << quint16(images.size());
    const qsizetype start = HeaderSize + EntrySize * images.size();
    for (const QImage& image : images) {
        // True colour: the pictures of an .ico file have no colour table.
        const QByteArray png = writePng(image.convertToFormat(QImage::Format_ARGB32));
        // 256 pixels are written as 0. Then: no colours of a table, reserved, one plane, 32 bits.
        stream << quint8(image.width()) << quint8(image.height()) << quint8(0) << quint8(0)
               << quint16(1) << quint16(32) << quint32(png.size())
               << quint32(start + pictures.size());
        pictures += png;
    }
    return bytes + pictures;
}

} // namespace

QImage IconRenderer::render(const ImageEntry& image, int scale)
{
    return draw(image.master, image, image.size, scale, image.isIcon());
}

QByteArray IconRenderer::encode(const ImageEntry& image, int scale)
{
    if (image.isIcon()) {
        QList<QImage> steps;
        for (const IconStep& step : image.icon) {
            steps << draw(step.master, image, QSize(step.size, step.size), scale, true);
        }
        return writeIcon(steps);
    }
    const QImage rendered = render(image, scale);
    return image.matte.isValid() ? writeJpeg(rendered) : writePng(withPalette(rendered));
}

QList<QImage> IconRenderer::decode(const QByteArray& bytes, const QString& suffix)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, suffix.toLatin1());
    QList<QImage> images;
    const int count = qMax(1, reader.imageCount());
    for (int i = 0; i < count; ++i) {
        if (i > 0) {
            reader.jumpToImage(i);
        }
        images << reader.read();
    }
    return images;
}

bool IconRenderer::samePixels(const QList<QImage>& left, const QList<QImage>& right)
{
    constexpr int Tolerance = 3;
    const auto close = [](int a, int b) {
        return qAbs(a - b) <= Tolerance;
    };
    const auto sameImage = [&close](const QImage& leftImage, const QImage& rightImage) {
        // Premultiplied, because the colour of what is transparent does not matter.
        const QImage a = leftImage.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        const QImage b = rightImage.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (a.isNull() || a.size() != b.size()) {
            return false;
        }
        for (int y = 0; y < a.height(); ++y) {
            const auto* p = reinterpret_cast<const QRgb*>(a.constScanLine(y));
            const auto* q = reinterpret_cast<const QRgb*>(b.constScanLine(y));
            for (int x = 0; x < a.width(); ++x) {
                if (!close(qAlpha(p[x]), qAlpha(q[x])) || !close(qRed(p[x]), qRed(q[x]))
                    || !close(qGreen(p[x]), qGreen(q[x])) || !close(qBlue(p[x]), qBlue(q[x]))) {
                    return false;
                }
            }
        }
        return true;
    };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), sameImage);
}

QByteArray IconRenderer::drawing(const QString& master, const QMap<QString, QString>& colours)
{
    QFile file(m_folder + QLatin1Char('/') + master + QStringLiteral(".svg"));
    if (!file.open(QIODevice::ReadOnly)) {
        m_errors << QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
        return {};
    }
    QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression variable(QStringLiteral("var\\(--([a-z]+), *([^)]*)\\)"));
    for (QRegularExpressionMatch match = variable.match(text); match.hasMatch();
         match = variable.match(text, match.capturedStart())) {
        text.replace(match.capturedStart(), match.capturedLength(),
                     colours.value(match.captured(1), match.captured(2)));
    }
    return text.toUtf8();
}

QImage IconRenderer::draw(const QString& master, const ImageEntry& image, const QSize& size,
                          qreal scale, bool fit)
{
    QImage result((QSizeF(size) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    result.fill(image.matte.isValid() ? image.matte : QColor(Qt::transparent));
    QSvgRenderer renderer(drawing(master, image.colours));
    const QRectF box = renderer.viewBoxF();
    const QSizeF turned = image.rotate % 180 == 0 ? box.size() : box.size().transposed();
    if (!renderer.isValid() || box.isEmpty()
        || (!fit && (turned.width() > size.width() || turned.height() > size.height()))) {
        m_errors << QStringLiteral("%1: %2.svg is unreadable, has no view box or is too large")
                        .arg(image.path, master);
        return result;
    }
    QPainter painter(&result);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (fit) {
        renderer.render(&painter, QRectF(result.rect()));
        return result;
    }
    // Rounded down to whole pixels, or every line of the drawing would be blurred.
    const QPointF corner(std::floor((size.width() - turned.width()) / 2),
                         std::floor((size.height() - turned.height()) / 2));
    painter.scale(scale, scale);
    painter.translate(corner + QPointF(turned.width() / 2, turned.height() / 2));
    painter.rotate(image.rotate);
    renderer.render(&painter, QRectF(QPointF(-box.width() / 2, -box.height() / 2), box.size()));
    return result;
}
