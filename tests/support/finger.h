// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QtGlobal>

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
    Finger() = default;
    virtual ~Finger() = default;
    Q_DISABLE_COPY_MOVE(Finger)

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

protected:
    /// What the finger does, at `at` in the coordinates of `window`.
    virtual void sendPress(QWindow* window, const QPoint& at);
    virtual void sendMove(QWindow* window, const QPoint& at);
    virtual void sendRelease(QWindow* window, const QPoint& at);

private:
    QWindow* m_window = nullptr;
    QPoint m_position;
};

/// The same by touch points, of which Qt makes mouse events where no widget takes them. While one
/// exists no two taps are a double click, however fast the test is.
class TouchFinger : public Finger
{
public:
    TouchFinger();
    ~TouchFinger() override;
    Q_DISABLE_COPY_MOVE(TouchFinger)

protected:
    void sendPress(QWindow* window, const QPoint& at) override;
    void sendMove(QWindow* window, const QPoint& at) override;
    void sendRelease(QWindow* window, const QPoint& at) override;

private:
    int m_doubleClickInterval;
};
