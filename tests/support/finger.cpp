// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/finger.h"

#include <QApplication>
#include <QPointingDevice>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace {

constexpr int FingerNumber = 1;

QPointingDevice* touchScreen()
{
    static QPointingDevice* device = QTest::createTouchDevice();
    return device;
}

} // namespace

void Finger::press(QWidget* widget)
{
    press(widget, widget->rect().center());
}

void Finger::press(QWidget* widget, const QPoint& at)
{
    m_window = widget->window()->windowHandle();
    m_position = widget->mapToGlobal(at);
    sendPress(m_window, m_window->mapFromGlobal(m_position));
}

void Finger::moveTo(const QPoint& global)
{
    m_position = global;
    sendMove(m_window, m_window->mapFromGlobal(m_position));
}

void Finger::moveBy(const QPoint& offset)
{
    moveTo(m_position + offset);
}

void Finger::release()
{
    sendRelease(m_window, m_window->mapFromGlobal(m_position));
}

void Finger::tap(QWidget* widget)
{
    tap(widget, widget->rect().center());
}

void Finger::tap(QWidget* widget, const QPoint& at)
{
    press(widget, at);
    release();
}

void Finger::doubleTap(QWidget* widget)
{
    m_window = widget->window()->windowHandle();
    m_position = widget->mapToGlobal(widget->rect().center());
    QTest::mouseDClick(m_window, Qt::LeftButton, Qt::NoModifier,
                       m_window->mapFromGlobal(m_position));
}

void Finger::sendPress(QWindow* window, const QPoint& at)
{
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, at);
}

void Finger::sendMove(QWindow* window, const QPoint& at)
{
    QTest::mouseMove(window, at);
}

void Finger::sendRelease(QWindow* window, const QPoint& at)
{
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, at);
}

TouchFinger::TouchFinger()
    : m_doubleClickInterval(QApplication::doubleClickInterval())
{
    QApplication::setDoubleClickInterval(0);
}

TouchFinger::~TouchFinger()
{
    QApplication::setDoubleClickInterval(m_doubleClickInterval);
}

void TouchFinger::sendPress(QWindow* window, const QPoint& at)
{
    QTest::touchEvent(window, touchScreen()).press(FingerNumber, at, window);
}

void TouchFinger::sendMove(QWindow* window, const QPoint& at)
{
    QTest::touchEvent(window, touchScreen()).move(FingerNumber, at, window);
}

void TouchFinger::sendRelease(QWindow* window, const QPoint& at)
{
    QTest::touchEvent(window, touchScreen()).release(FingerNumber, at, window);
}
