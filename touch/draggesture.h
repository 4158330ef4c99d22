// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QPointer>

class QAbstractItemView;
class QAbstractScrollArea;
class QEvent;
class QMouseEvent;
class QScrollBar;
class QWidget;

namespace Touch {

/*!
 * What a finger does between its press and its release: where it came from, where it is, and
 * whether it has travelled too far to be a tap.
 *
 * A plain value. Each widget that is dragged owns one, tells it what the finger does and asks it
 * what that means; scrolling and swallowing clicks are the widget's own business. All positions are
 * global: the content moves under the finger, so that local ones would feed the scrolling back into
 * the distance.
 */
class DragGesture
{
public:
    /// A finger that strays this many pixels from its press, in a direction that counts, still
    /// taps; one more and it drags.
    static constexpr int TapRange = 10;

    bool isInProgress() const { return m_inProgress; }

    /// Whether `position` is a drag's distance away from the press in one of the `counted`
    /// directions.
    bool isBeyondTapRange(const QPoint& position, Qt::Orientations counted) const;

    /// The finger went down. A second press during a gesture changes nothing.
    void begin(const QPoint& position);

    /// The finger moved to `position`; returns where it was before. Once it has been beyond the
    /// tap range the gesture stays a drag, even if the finger returns.
    QPoint moveTo(const QPoint& position, Qt::Orientations counted);

    /// The gesture is over; returns whether it was a drag.
    bool end();

private:
    QPoint m_press;
    QPoint m_last;
    bool m_inProgress = false;
    bool m_isDrag = false;
};

/// Moves `bar` as far as the finger moved from `previous` to `current`, against its direction, so
/// that the content follows the finger, also where the bar is laid out from right to left. Stops at
/// the ends of the bar's range.
void dragScrollBar(int previous, int current, QScrollBar* bar);

/// The finger that `gesture` follows on `area` has moved: scrolls the content by as much in the
/// `scrolled` directions, which are also those that make a drag of it. Does nothing without a press.
void dragScrollArea(DragGesture& gesture, const QMouseEvent& move, Qt::Orientations scrolled,
                    const QAbstractScrollArea& area);

/// Whether after `event`, which is being delivered to `widget`, the release of a finger on it may
/// never come: it was hidden or disabled, or a modal dialog came up in front of it.
bool losesFinger(const QWidget& widget, const QEvent& event);

/// Whether `indexWidget`, the widget that an item view shows in place of an item, or a child of it
/// has the focus. The press of a button that passes it on reaches the view, which would then give
/// the focus to the index widget; a button that loses the focus comes up and takes no click. False
/// for null, and for an index widget that does not accept the focus.
bool holdsFocus(const QWidget* indexWidget);

/*!
 * Keeps a view from scrolling by itself because of a press: while it handles the press, or an event
 * that moves the focus because of one. Does nothing at any other event.
 *
 * The view would scroll the pressed item into full view half a second later, finger or not.
 * The view makes the item of an index widget that gains the focus current and would scroll it into
 * full view. Under a finger it must stay where it is, or the release would miss it.
 */
class ScrollPause
{
public:
    ScrollPause(QAbstractItemView* view, const QEvent& event);
    ~ScrollPause();
    Q_DISABLE_COPY_MOVE(ScrollPause)

private:
    QPointer<QAbstractItemView> m_view; // null: nothing to restore
};

/*!
 * Silences a view while it handles the release of a drag: blocks its signals and raises the flag by
 * which its overrides know that nothing may be edited or selected either. With the signals blocked
 * nobody would hear of it.
 *
 * The view, and the flag with it, may be deleted meanwhile.
 */
class SwallowedRelease
{
public:
    /// `swallowing` is a member of `view`.
    SwallowedRelease(QAbstractItemView* view, bool& swallowing);
    ~SwallowedRelease();
    Q_DISABLE_COPY_MOVE(SwallowedRelease)

private:
    const QPointer<QAbstractItemView> m_view;
    bool& m_swallowing;
    const bool m_wereSignalsBlocked;
};

} // namespace Touch
