// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "touch/draggesture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

bool isCausedByPress(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        return static_cast<const QFocusEvent&>(event).reason() == Qt::MouseFocusReason;
    default:
        return false;
    }
}

} // namespace

namespace Touch {

bool DragGesture::isBeyondTapRange(const QPoint& position, Qt::Orientations counted) const
{
    const QPoint travelled = position - m_press;
    return (counted.testFlag(Qt::Vertical) && std::abs(travelled.y()) > TapRange)
        || (counted.testFlag(Qt::Horizontal) && std::abs(travelled.x()) > TapRange);
}

void DragGesture::begin(const QPoint& position)
{
    if (m_inProgress) {
        return;
    }
    m_inProgress = true;
    m_press = position;
    m_last = position;
}

QPoint DragGesture::moveTo(const QPoint& position, Qt::Orientations counted)
{
    m_isDrag = m_isDrag || isBeyondTapRange(position, counted);
    return std::exchange(m_last, position);
}

bool DragGesture::end()
{
    m_inProgress = false;
    return std::exchange(m_isDrag, false);
}

void dragScrollBar(int previous, int current, QScrollBar* bar)
{
    // Where a screen is read from right to left, horizontal bars count from the right.
    const bool countsFromRight = bar->orientation() == Qt::Horizontal && bar->isRightToLeft();
    const qint64 travelled =
        countsFromRight ? qint64(current) - previous : qint64(previous) - current;
    const qint64 wanted = bar->sliderPosition() + travelled;
    bar->setSliderPosition(
        int(std::clamp<qint64>(wanted, bar->minimum(), std::max(bar->minimum(), bar->maximum()))));
}

void dragScrollArea(DragGesture& gesture, const QMouseEvent& move, Qt::Orientations scrolled,
                    const QAbstractScrollArea& area)
{
    if (!gesture.isInProgress()) {
        return;
    }
    const QPoint current = move.globalPosition().toPoint();
    const QPoint previous = gesture.moveTo(current, scrolled);
    // Whoever hears of the first bar's new position may delete the area.
    const QPointer<QScrollBar> horizontal(area.horizontalScrollBar());
    if (scrolled.testFlag(Qt::Vertical)) {
        dragScrollBar(previous.y(), current.y(), area.verticalScrollBar());
    }
    if (scrolled.testFlag(Qt::Horizontal) && horizontal) {
        dragScrollBar(previous.x(), current.x(), horizontal);
    }
}

bool losesFinger(const QWidget& widget, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::Hide:
    case QEvent::WindowBlocked:
        return true;
    case QEvent::EnabledChange:
        return !widget.isEnabled();
    default:
        return false;
    }
}

bool holdsFocus(const QWidget* indexWidget)
{
    return indexWidget != nullptr && indexWidget->focusPolicy() != Qt::NoFocus
        && indexWidget->isAncestorOf(QApplication::focusWidget());
}

ScrollPause::ScrollPause(QAbstractItemView* view, const QEvent& event)
{
    if (isCausedByPress(event) && view->hasAutoScroll()) {
        m_view = view;
        view->setAutoScroll(false);
    }
}

ScrollPause::~ScrollPause()
{
    if (m_view) {
        m_view->setAutoScroll(true);
    }
}

SwallowedRelease::SwallowedRelease(QAbstractItemView* view, bool& swallowing)
    : m_view(view)
    , m_swallowing(swallowing)
    , m_wereSignalsBlocked(view->blockSignals(true))
{
    m_swallowing = true;
}

SwallowedRelease::~SwallowedRelease()
{
    if (m_view) {
        m_swallowing = false;
        m_view->blockSignals(m_wereSignalsBlocked);
    }
}

} // namespace Touch
