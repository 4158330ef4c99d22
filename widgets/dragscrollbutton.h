// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QPushButton>

#include <memory>

namespace Touch {
class DragGesture;
}

/*!
 * \brief A push button that a finger can drag away: inside a container that scrolls by dragging, a
 * tap clicks the button and a drag that starts on it scrolls the container.
 *
 * Use it for the buttons in a drag-scroll view or tool box; anywhere else QPushButton does. Every
 * mouse event also travels on to the parent. A finger that has been more than 10 pixels away from
 * its press, in either direction, drags: its release emits neither clicked(), released() nor
 * toggled(), and changes no check state.
 *
 * \code
 * auto* button = new DragScrollButton(icon, tr("Arrows", "Category of symbols"));
 * list->setIndexWidget(index, button);
 * connect(button, &QPushButton::clicked, this, &Browser::showArrows);
 * \endcode
 *
 * An auto-repeating button stops repeating as soon as the finger moves; after the release its
 * autoRepeat() is what it was. The button may be deleted by a slot connected to its own signals.
 * The object name is "DragScrollButton". The class has no meta-object of its own: in a style sheet
 * it is a QPushButton.
 */
class UTILITYWIDGETS_EXPORT DragScrollButton : public QPushButton
{
public:
    explicit DragScrollButton(QWidget* parent = nullptr);
    explicit DragScrollButton(const QString& text, QWidget* parent = nullptr);
    DragScrollButton(const QIcon& icon, const QString& text, QWidget* parent = nullptr);
    ~DragScrollButton() override;

    /*!
     * Makes one picture of the button's icon and, right of it, its text, and shows that alone: for
     * a text that may be longer than the button, such as a category's name. A button that is laid
     * out from right to left gets its mirror image.
     *
     * Works on any push button, at its present size: give it that first, and call this again with
     * text and icon set anew when it changes. The picture's text has the button's colour
     * and font, smaller by as many points as it needs to fit, but never below 1 point; the button's
     * own font stays.
     * `spacing` is the gap between icon and text and `leftMargin` the one left of the icon, both in
     * pixels. The text becomes the button's accessible name unless it has one. A button of 8 pixels
     * or less in width or height has no room for a picture and stays as it is.
     */
    static void fitButtonText(QPushButton* button, int spacing, int leftMargin);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void beginGesture(const QMouseEvent& event);
    void liftSilently();

    std::unique_ptr<Touch::DragGesture> m_gesture;
    bool m_autoRepeatAtPress = false;
    bool m_slippedAway = false;
};
