// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrolltableview.h"

#include "touch/draggesture.h"

#include <QAbstractButton>
#include <QEvent>
#include <QMouseEvent>

DragScrollTableView::DragScrollTableView(QWidget* parent)
    : QTableView(parent)
    , m_gesture(std::make_unique<Touch::DragGesture>())
{
    // The list view's name: one rule of a style sheet styles both.
    setObjectName(QStringLiteral("DragScrollListView"));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    retranslate();
}

DragScrollTableView::~DragScrollTableView() = default;

bool DragScrollTableView::isHorizontalMovementEnabled() const
{
    return m_horizontalMovementEnabled;
}

void DragScrollTableView::setHorizontalMovementEnabled(bool enabled)
{
    m_horizontalMovementEnabled = enabled;
}

void DragScrollTableView::setSliderPosition(int previous, int current, QScrollBar* bar)
{
    Touch::dragScrollBar(previous, current, bar);
}

void DragScrollTableView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

bool DragScrollTableView::event(QEvent* event)
{
    if (Touch::losesFinger(*this, *event)) {
        m_gesture->end();
    }
    const Touch::ScrollPause pause(this, *event);
    return QTableView::event(event);
}

bool DragScrollTableView::eventFilter(QObject* object, QEvent* event)
{
    const Touch::ScrollPause pause(this, *event);
    return QTableView::eventFilter(object, event);
}

void DragScrollTableView::mousePressEvent(QMouseEvent* event)
{
    m_gesture->begin(event->globalPosition().toPoint());
    const Touch::ScrollPause pause(this, *event);
    QAbstractItemView::mousePressEvent(event);
}

void DragScrollTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_gesture->begin(event->globalPosition().toPoint());
    const Touch::ScrollPause pause(this, *event);
    QAbstractItemView::mouseDoubleClickEvent(event);
}

void DragScrollTableView::mouseMoveEvent(QMouseEvent* event)
{
    const Qt::Orientations scrolled =
        m_horizontalMovementEnabled ? Qt::Vertical | Qt::Horizontal : Qt::Vertical;
    Touch::dragScrollArea(*m_gesture, *event, scrolled, *this);
}

void DragScrollTableView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_gesture->end()) {
        QAbstractItemView::mouseReleaseEvent(event);
        return;
    }
    const Touch::SwallowedRelease swallowing(this, m_swallowingRelease);
    QAbstractItemView::mouseReleaseEvent(event);
}

void DragScrollTableView::focusOutEvent(QFocusEvent* event)
{
    QTableView::focusOutEvent(event);
    Q_EMIT focusLost();
}

bool DragScrollTableView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    // The release of a drag must not toggle a check box or start an editor.
    if (m_swallowingRelease) {
        return false;
    }
    return Touch::holdsFocus(indexWidget(index)) || QTableView::edit(index, trigger, event);
}

QItemSelectionModel::SelectionFlags DragScrollTableView::selectionCommand(const QModelIndex& index,
                                                                          const QEvent* event) const
{
    // What the press of a drag has selected remains.
    return m_swallowingRelease ? QItemSelectionModel::NoUpdate
                               : QTableView::selectionCommand(index, event);
}

void DragScrollTableView::retranslate()
{
    // Qt gives the button between the two headers neither a text nor a name.
    if (auto* corner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        corner->setAccessibleName(
            tr("Select all", "Accessible name of the button in the corner of a table."));
    }
}

#include "moc_dragscrolltableview.cpp"
