// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/finger.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

void Finger::press(QWidget* widget)
{
    press(widget, widget->rect().center());
}

void Finger::press(QWidget* widget, const QPoint& at)
{
    m_window = widget->window()->windowHandle();
    m_position = widget->mapToGlobal(at);
    QTest::mousePress(m_window, Qt::LeftButton, Qt::NoModifier,
                      m_window->mapFromGlobal(m_position));
}

void Finger::moveTo(const QPoint& global)
{
    m_position = global;
    QTest::mouseMove(m_window, m_window->mapFromGlobal(m_position));
}

void Finger::moveBy(const QPoint& offset)
{
    moveTo(m_position + offset);
}

void Finger::release()
{
    QTest::mouseRelease(m_window, Qt::LeftButton, Qt::NoModifier,
                        m_window->mapFromGlobal(m_position));
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
