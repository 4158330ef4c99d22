// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "canvas.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

constexpr int PageMargin = 20; // pixels
constexpr QMargins FrameMargins(3, 3, 3, 3); // of what is selected
constexpr int LeastReach = 24; // pixels in which a finger finds even a thin object
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
    return toPixels().mapRect(object.rect()).toAlignedRect();
}

void Canvas::paintEvent(QPaintEvent* /*event*/)
{
    Content content = m_document->content();
    drag(&content);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Surround);
    painter.save();
    painter.setTransform(toPixels(), true);
    painter.fillRect(QRectF(QPointF(), content.page()), Qt::white);
    content.paint(&painter, m_record);
    painter.restore();
    const QList<Object> objects = content.objects();
    for (const Object& object : objects) {
        if (m_document->isSelected(object)) {
            const bool isFree = object.allows(Object::Properties);
            painter.setPen(QPen(AccentOrange, 2, isFree ? Qt::SolidLine : Qt::DotLine));
            painter.drawRect(rectOf(object) + FrameMargins);
        }
    }
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    m_pressed = m_position = event->position().toPoint();
    Object pressed;
    pressed.id = objectAt(m_pressed);
    m_isPressed = true;
    if (!m_document->isSelected(pressed)) {
        m_document->select({ pressed.id });
    }
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    m_position = event->position().toPoint();
    update();
}

void Canvas::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    Content content = m_document->content();
    const bool isChanged = drag(&content);
    m_isPressed = false;
    if (isChanged) {
        m_document->edit(content);
    }
}

QTransform Canvas::toPixels() const
{
    const QSizeF page = m_document->content().page();
    const QSizeF room = size() - QSize(2 * PageMargin, 2 * PageMargin);
    const double scale = qMin(room.width() / page.width(), room.height() / page.height());
    const QPointF corner =
        QPointF(width(), height()) - QPointF(page.width(), page.height()) * scale;
    return QTransform::fromTranslate(corner.x() / 2, corner.y() / 2).scale(scale, scale);
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

bool Canvas::drag(Content* content) const
{
    const QPoint distance = m_position - m_pressed;
    if (!m_isPressed || distance.manhattanLength() < QApplication::startDragDistance()) {
        return false;
    }
    const QPointF offset = QPointF(distance) / toPixels().m11();
    const QList<Object*> objects = m_document->changeable(content, Object::Properties);
    for (Object* object : objects) {
        object->left = snapped(object->left + offset.x());
        object->top = snapped(object->top + offset.y());
    }
    return !objects.isEmpty();
}

#include "moc_canvas.cpp"
