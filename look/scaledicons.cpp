// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/icons.h"

#include "look/imagetable.h"

#include <QGuiApplication>
#include <QIcon>
#include <QIconEngine>
#include <QIconEnginePlugin>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <iterator>

namespace {

bool isOurs(const QString& path)
{
    return std::any_of(
        std::begin(Look::images), std::end(Look::images),
        [&path](const Look::Image& image) { return path == QLatin1String(image.path); });
}

/// One of our images on a screen whose scale is a fraction. Half-way between a picture for plain
/// screens and its "@2x" twin Qt's own engine takes the plain one and scales it up, blurred; this one
/// has a picture of exactly as many pixels as the screen shows.
class ScaledIconEngine : public QIconEngine
{
public:
    ScaledIconEngine(const QString& path, qreal devicePixelRatio)
        : m_path(path)
        , m_devicePixelRatio(devicePixelRatio)
        , m_size(QPixmap(path).size())
    { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatio();
        // Unscaled, although the pixels may be half of one more than those of the rectangle.
        QPixmap pixmap = scaledPixmap(rect.size() * ratio, mode, state, ratio);
        pixmap.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), pixmap);
    }

    QSize actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        const bool fits = m_size.width() <= size.width() && m_size.height() <= size.height();
        return fits ? m_size : m_size.scaled(size, Qt::KeepAspectRatio);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override
    {
        return m_pictures.pixmap(size / scale, scale, mode, state);
    }

    void addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) override
    {
        m_pictures.addPixmap(pixmap, mode, state);
    }

    /// Called for the image and then for its twin.
    void addFile(const QString& path, const QSize& size, QIcon::Mode mode,
                 QIcon::State state) override
    {
        if (path == m_path) {
            addPixmap(QPixmap(path), mode, state);
            addPixmap(Look::picture(path, m_devicePixelRatio), mode, state);
        } else {
            m_pictures.addFile(path, size, mode, state);
        }
    }

    QString key() const override { return QStringLiteral("ScaledIconEngine"); }
    QIconEngine* clone() const override { return new ScaledIconEngine(*this); }
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        return { m_size };
    }
    bool isNull() override { return m_size.isEmpty(); }

private:
    QString m_path;
    qreal m_devicePixelRatio;
    QSize m_size; // on a plain screen
    QIcon m_pictures;
};

} // namespace

/// Whom QIcon asks for an engine for image files, those that style sheets name included. All other
/// images, and ours at all other scales, are left to Qt.
class ScaledIconPlugin : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "scaledicons.json")

public:
    QIconEngine* create(const QString& path) override
    {
        const qreal ratio = qGuiApp != nullptr ? qGuiApp->devicePixelRatio() : 1;
        return Look::isFraction(ratio) && isOurs(path) ? new ScaledIconEngine(path, ratio)
                                                       : nullptr;
    }
};

#include "scaledicons.moc"
