// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

class QWidget;
class QWindow;

/*!
 * One finger on the screen, in global coordinates.
 *
 * Its events go to the window under it and from there through Qt's whole delivery, implicit grab
 * and popups included, as a touch screen's mouse events do: nothing is sent to a widget directly.
 */
class Finger
{
public:
    /// Puts the finger down on the centre of `widget`, or at `at` in its coordinates.
    void press(QWidget* widget);
    void press(QWidget* widget, const QPoint& at);
    void moveTo(const QPoint& global);
    void moveBy(const QPoint& offset);
    void release();

    void tap(QWidget* widget);
    void tap(QWidget* widget, const QPoint& at);
    /// Two taps on the centre of `widget`, quick enough to be a double click.
    void doubleTap(QWidget* widget);

    QPoint position() const { return m_position; }

private:
    QWindow* m_window = nullptr;
    QPoint m_position;
};
