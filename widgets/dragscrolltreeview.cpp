// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrolltreeview.h"

#include "touch/draggesture.h"

#include <QMouseEvent>
#include <QPointer>

DragScrollTreeView::DragScrollTreeView(QWidget* parent)
    : QTreeView(parent)
    , m_gesture(std::make_unique<Touch::DragGesture>())
{
    setObjectName(QStringLiteral("DragScrollTreeView"));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
}

DragScrollTreeView::~DragScrollTreeView() = default;

bool DragScrollTreeView::isHorizontalMovementEnabled() const
{
    return m_horizontalMovementEnabled;
}

void DragScrollTreeView::setHorizontalMovementEnabled(bool enabled)
{
    m_horizontalMovementEnabled = enabled;
}

void DragScrollTreeView::setSliderPosition(int previous, int current, QScrollBar* bar)
{
    Touch::dragScrollBar(previous, current, bar);
}

bool DragScrollTreeView::event(QEvent* event)
{
    if (Touch::losesFinger(*this, *event)) {
        m_gesture->end();
    }
    const Touch::ScrollPause pause(this, *event);
    return QTreeView::event(event);
}

bool DragScrollTreeView::eventFilter(QObject* object, QEvent* event)
{
    const Touch::ScrollPause pause(this, *event);
    return QTreeView::eventFilter(object, event);
}

void DragScrollTreeView::mousePressEvent(QMouseEvent* event)
{
    m_gesture->begin(event->globalPosition().toPoint());
    const Touch::ScrollPause pause(this, *event);
    // Past the tree view's own handler, which would unfold a branch whose mark is pressed: nobody
    // knows yet whether this becomes a drag. The same holds for a double click.
    QAbstractItemView::mousePressEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void DragScrollTreeView::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_gesture->begin(event->globalPosition().toPoint());
    const Touch::ScrollPause pause(this, *event);
    QAbstractItemView::mouseDoubleClickEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void DragScrollTreeView::mouseMoveEvent(QMouseEvent* event)
{
    const Qt::Orientations scrolled =
        m_horizontalMovementEnabled ? Qt::Vertical | Qt::Horizontal : Qt::Vertical;
    Touch::dragScrollArea(*m_gesture, *event, scrolled, *this);
}

void DragScrollTreeView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_gesture->end()) {
        QTreeView::mouseReleaseEvent(event);
        return;
    }
    const Touch::SwallowedRelease swallowing(this, m_swallowingRelease);
    // Some styles unfold a branch when its mark is released.
    const QPointer<DragScrollTreeView> self(this);
    const bool expandable = itemsExpandable();
    setItemsExpandable(false);
    QTreeView::mouseReleaseEvent(event);
    if (self) {
        setItemsExpandable(expandable);
    }
}

void DragScrollTreeView::focusOutEvent(QFocusEvent* event)
{
    QTreeView::focusOutEvent(event);
    Q_EMIT focusLost();
}

bool DragScrollTreeView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    // The release of a drag must not toggle a check box or start an editor.
    if (m_swallowingRelease) {
        return false;
    }
    return Touch::holdsFocus(indexWidget(index)) || QTreeView::edit(index, trigger, event);
}

QItemSelectionModel::SelectionFlags DragScrollTreeView::selectionCommand(const QModelIndex& index,
                                                                         const QEvent* event) const
{
    // What the press of a drag has selected remains.
    return m_swallowingRelease ? QItemSelectionModel::NoUpdate
                               : QTreeView::selectionCommand(index, event);
}

#include "moc_dragscrolltreeview.cpp"
