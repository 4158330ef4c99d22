// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrolllistview.h"

#include "touch/draggesture.h"

#include <QMouseEvent>

DragScrollListView::DragScrollListView(QWidget* parent)
    : QListView(parent)
    , m_gesture(std::make_unique<Touch::DragGesture>())
{
    setObjectName(QStringLiteral("DragScrollListView"));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
}

DragScrollListView::~DragScrollListView() = default;

bool DragScrollListView::isHorizontalMovementEnabled() const
{
    return m_horizontalMovementEnabled;
}

void DragScrollListView::setHorizontalMovementEnabled(bool enabled)
{
    m_horizontalMovementEnabled = enabled;
}

void DragScrollListView::setSliderPosition(int previous, int current, QScrollBar* bar)
{
    Touch::dragScrollBar(previous, current, bar);
}

bool DragScrollListView::event(QEvent* event)
{
    if (Touch::losesFinger(*this, *event)) {
        m_gesture->end();
    }
    const Touch::ScrollPause pause(this, *event);
    return QListView::event(event);
}

bool DragScrollListView::eventFilter(QObject* object, QEvent* event)
{
    const Touch::ScrollPause pause(this, *event);
    return QListView::eventFilter(object, event);
}

void DragScrollListView::mousePressEvent(QMouseEvent* event)
{
    m_gesture->begin(event->globalPosition().toPoint());
    const Touch::ScrollPause pause(this, *event);
    QAbstractItemView::mousePressEvent(event);
}

void DragScrollListView::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_gesture->begin(event->globalPosition().toPoint());
    const Touch::ScrollPause pause(this, *event);
    QAbstractItemView::mouseDoubleClickEvent(event);
}

void DragScrollListView::mouseMoveEvent(QMouseEvent* event)
{
    const Qt::Orientations scrolled =
        m_horizontalMovementEnabled ? Qt::Vertical | Qt::Horizontal : Qt::Vertical;
    Touch::dragScrollArea(*m_gesture, *event, scrolled, *this);
}

void DragScrollListView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_gesture->end()) {
        QListView::mouseReleaseEvent(event);
        return;
    }
    const Touch::SwallowedRelease swallowing(this, m_swallowingRelease);
    QListView::mouseReleaseEvent(event);
}

void DragScrollListView::focusOutEvent(QFocusEvent* event)
{
    QListView::focusOutEvent(event);
    Q_EMIT focusLost();
}

bool DragScrollListView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    // The release of a drag must not toggle a check box or start an editor.
    if (m_swallowingRelease) {
        return false;
    }
    return Touch::holdsFocus(indexWidget(index)) || QListView::edit(index, trigger, event);
}

QItemSelectionModel::SelectionFlags DragScrollListView::selectionCommand(const QModelIndex& index,
                                                                         const QEvent* event) const
{
    // What the press of a drag has selected remains.
    return m_swallowingRelease ? QItemSelectionModel::NoUpdate
                               : QListView::selectionCommand(index, event);
}

#include "moc_dragscrolllistview.cpp"
