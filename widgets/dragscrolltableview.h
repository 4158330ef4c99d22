// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QTableView>

#include <memory>

class QScrollBar;

namespace Touch {
class DragGesture;
}

/*!
 * \brief A table view that is scrolled by dragging a finger over it.
 *
 * Use it wherever an application would use QTableView on a touch screen. The content follows the
 * finger from its first movement on; nothing coasts after the release. The cell under the finger is
 * selected as soon as it is pressed. A finger that has been more than 10 pixels above or below its
 * press drags: its release emits no clicked() and no activated(), starts no editor and toggles no
 * check box. A table that is wider than the screen also wants horizontal drags:
 *
 * \code
 * auto* table = new DragScrollTableView(this);
 * table->setModel(model);
 * table->setHorizontalMovementEnabled(true);
 * \endcode
 *
 * There is no selecting, dragging or dropping of cells by moving the finger, and no scrolling by
 * itself at the edges. The object name is "DragScrollListView", the list view's, so that one rule
 * of a style sheet styles both.
 */
class UTILITYWIDGETS_EXPORT DragScrollTableView : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(bool horizontalMovementEnabled READ isHorizontalMovementEnabled WRITE
                   setHorizontalMovementEnabled)

public:
    explicit DragScrollTableView(QWidget* parent = nullptr);
    ~DragScrollTableView() override;

    /// Whether a horizontal drag scrolls too, and then counts as a drag like a vertical one. Off at
    /// first: a finger that moves sideways taps.
    bool isHorizontalMovementEnabled() const;
    void setHorizontalMovementEnabled(bool enabled);

    /// Moves `bar` by `previous` - `current`, coordinates of a finger in pixels, and no further
    /// than the end of its range. `bar` must not be null; it may be any scroll bar.
    void setSliderPosition(int previous, int current, QScrollBar* bar);

    using QTableView::edit;

Q_SIGNALS:
    /// The view lost the focus, for whatever reason. A popup that holds the view closes on it.
    void focusLost();

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    void retranslate();
    std::unique_ptr<Touch::DragGesture> m_gesture;
    bool m_horizontalMovementEnabled = false;
    bool m_swallowingRelease = false;
};
