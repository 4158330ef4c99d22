// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrolllistwidget.h"

#include "touch/draggesture.h"

#include <QMouseEvent>

DragScrollListWidget::DragScrollListWidget(QWidget* parent)
    : QListWidget(parent)
    , m_gesture(std::make_unique<Touch::DragGesture>())
{
    // The list view's name: one rule of a style sheet styles both.
    setObjectName(QStringLiteral("DragScrollListView"));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
}

DragScrollListWidget::~DragScrollListWidget() = default;

bool DragScrollListWidget::isHorizontalMovementEnabled() const
{
    return m_horizontalMovementEnabled;
}

void DragScrollListWidget::setHorizontalMovementEnabled(bool enabled)
{
    m_horizontalMovementEnabled = enabled;
}

void DragScrollListWidget::setSliderPosition(int previous, int current, QScrollBar* bar)
{
    Touch::dragScrollBar(previous, current, bar);
}

bool DragScrollListWidget::event(QEvent* event)
{
    if (Touch::losesFinger(*this, *event)) {
        m_gesture->end();
    }
    const Touch::ScrollPause pause(this, *event);
    return QListWidget::event(event);
}

bool DragScrollListWidget::eventFilter(QObject* object, QEvent* event)
{
    const Touch::ScrollPause pause(this, *event);
    return QListWidget::eventFilter(object, event);
}

void DragScrollListWidget::mousePressEvent(QMouseEvent* event)
{
    m_gesture->begin(event->globalPosition().toPoint());
    const Touch::ScrollPause pause(this, *event);
    QAbstractItemView::mousePressEvent(event);
}

void DragScrollListWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_gesture->begin(event->globalPosition().toPoint());
    const Touch::ScrollPause pause(this, *event);
    QAbstractItemView::mouseDoubleClickEvent(event);
}

void DragScrollListWidget::mouseMoveEvent(QMouseEvent* event)
{
    const Qt::Orientations scrolled =
        m_horizontalMovementEnabled ? Qt::Vertical | Qt::Horizontal : Qt::Vertical;
    Touch::dragScrollArea(*m_gesture, *event, scrolled, *this);
}

void DragScrollListWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_gesture->end()) {
        QListView::mouseReleaseEvent(event);
        return;
    }
    const Touch::SwallowedRelease swallowing(this, m_swallowingRelease);
    QListView::mouseReleaseEvent(event);
}

void DragScrollListWidget::focusOutEvent(QFocusEvent* event)
{
    QListWidget::focusOutEvent(event);
    Q_EMIT focusLost();
}

bool DragScrollListWidget::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    // The release of a drag must not toggle a check box or start an editor.
    if (m_swallowingRelease) {
        return false;
    }
    return Touch::holdsFocus(indexWidget(index)) || QListWidget::edit(index, trigger, event);
}

QItemSelectionModel::SelectionFlags
DragScrollListWidget::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    // What the press of a drag has selected remains.
    return m_swallowingRelease ? QItemSelectionModel::NoUpdate
                               : QListWidget::selectionCommand(index, event);
}

#include "moc_dragscrolllistwidget.cpp"
