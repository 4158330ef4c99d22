// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "canvas.h"

#include <sharedconstants.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

constexpr double MillimetresPerInch = 25.4;
constexpr int HandleSize = 14; // pixels that are drawn; a finger has IconButtonSize
constexpr int HandleDistance = 8; // pixels from the object's corner to the middle of its handle
constexpr int PageMargin = 20; // pixels around a page that is fitted
constexpr QMargins FrameMargins(3, 3, 3, 3); // of what is selected
constexpr int LeastReach = 24; // pixels in which a finger finds even a thin object
constexpr double LeastSize = 1; // millimetres of what has been resized
const QColor AccentOrange(0xfd, 0x78, 0x00);
const QColor Surround(0x84, 0x84, 0x84);

/// To half millimetres.
double snapped(double position)
{
    return std::round(position * 2) / 2;
}

} // namespace

Canvas::Canvas(Document* document, QWidget* parent)
    : QWidget(parent)
    , m_document(document)
{
    setAccessibleName(tr("Page", "Accessible name of the page that is edited."));
    setFocusPolicy(Qt::ClickFocus); // a tap here ends what is typed elsewhere
    connect(document, &Document::changed, this, qOverload<>(&QWidget::update));
}

void Canvas::setRecord(const QSqlRecord& record)
{
    m_record = record;
    update();
}

QRect Canvas::rectOf(const Object& object) const
{
    const double scale = pixelsPerMillimetre();
    return QRectF(origin() + object.rect().topLeft() * scale, object.rect().size() * scale)
        .toAlignedRect();
}

QRect Canvas::handleOf(const Object& object) const
{
    QRect handle(QPoint(), IconButtonSize);
    handle.moveCenter(rectOf(object).bottomRight() + QPoint(HandleDistance, HandleDistance));
    return handle;
}

void Canvas::setZoom(int percent)
{
    m_zoom = qBound(LeastZoom, percent, MostZoom);
    update();
    Q_EMIT zoomChanged(m_zoom);
}

void Canvas::zoomToFit()
{
    const QSizeF page = m_document->content().page();
    const QSizeF room = size() - QSize(2 * PageMargin, 2 * PageMargin);
    const double scale = qMin(room.width() / page.width(), room.height() / page.height());
    m_center = { page.width() / 2, page.height() / 2 };
    setZoom(int(scale * MillimetresPerInch / logicalDpiX() * 100));
}

void Canvas::paintEvent(QPaintEvent* /*event*/)
{
    const Content content = draggedContent();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Surround);
    painter.save();
    painter.translate(origin());
    painter.scale(pixelsPerMillimetre(), pixelsPerMillimetre());
    painter.fillRect(QRectF(QPointF(), content.page()), Qt::white);
    m_painter.paint(&painter, content, m_record);
    painter.restore();
    const QList<Object> objects = content.objects();
    for (const Object& object : objects) {
        if (m_document->isSelected(object)) {
            const bool isFree = object.allows(Object::Properties);
            painter.setPen(QPen(AccentOrange, 2, isFree ? Qt::SolidLine : Qt::DotLine));
            painter.drawRect(rectOf(object) + FrameMargins);
            if (hasHandle()) {
                QRect handle(0, 0, HandleSize, HandleSize);
                handle.moveCenter(handleOf(object).center());
                painter.fillRect(handle, AccentOrange);
            }
        }
    }
}

void Canvas::resizeEvent(QResizeEvent* /*event*/)
{
    zoomToFit();
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    m_pressed = m_position = event->position().toPoint();
    if (hasHandle() && handleOf(m_document->selectedObjects().constFirst()).contains(m_pressed)) {
        m_drag = Resize;
        return;
    }
    Object pressed;
    pressed.id = objectAt(m_pressed);
    m_drag = pressed.id == 0 ? Pan : Move;
    if (pressed.id == 0 || !m_document->isSelected(pressed)) {
        m_document->select({ pressed.id });
    }
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    if (m_drag == Pan) {
        m_center -= QPointF(position - m_position) / pixelsPerMillimetre();
    }
    m_position = position;
    update();
}

void Canvas::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    const bool isChanged = (m_drag == Move || m_drag == Resize) && !dragged().isNull();
    const Content content = draggedContent();
    m_drag = NoDrag;
    if (isChanged) {
        m_document->edit(content);
    }
}

double Canvas::pixelsPerMillimetre() const
{
    return m_zoom / 100. * logicalDpiX() / MillimetresPerInch;
}

QPointF Canvas::origin() const
{
    return QRectF(rect()).center() - m_center * pixelsPerMillimetre();
}

int Canvas::objectAt(const QPoint& position) const
{
    int found = 0;
    for (const Layer& layer : m_document->content().layers) {
        for (const Object& object : layer.objects) {
            QRect reach(QPoint(), rectOf(object).size().expandedTo({ LeastReach, LeastReach }));
            reach.moveCenter(rectOf(object).center());
            if (layer.isVisible && !object.isBackground && reach.contains(position)) {
                found = object.id; // unless another one lies on top of it
            }
        }
    }
    return found;
}

bool Canvas::hasHandle() const
{
    const QList<Object> selected = m_document->selectedObjects();
    return selected.count() == 1 && selected.constFirst().allows(Object::Properties);
}

QPointF Canvas::dragged() const
{
    const QPoint distance = m_position - m_pressed;
    return distance.manhattanLength() < QApplication::startDragDistance()
        ? QPointF()
        : QPointF(distance) / pixelsPerMillimetre();
}

Content Canvas::draggedContent() const
{
    Content content = m_document->content();
    const QPointF offset = dragged();
    if ((m_drag != Move && m_drag != Resize) || offset.isNull()) {
        return content;
    }
    for (Layer& layer : content.layers) {
        for (Object& object : layer.objects) {
            if (!m_document->isSelected(object) || !object.allows(Object::Properties)) {
                continue;
            }
            if (m_drag == Move) {
                object.left = snapped(object.left + offset.x());
                object.top = snapped(object.top + offset.y());
            } else {
                object.width = qMax(snapped(object.width + offset.x()), LeastSize);
                object.height = qMax(snapped(object.height + offset.y()), LeastSize);
            }
        }
    }
    return content;
}

#include "moc_canvas.cpp"
