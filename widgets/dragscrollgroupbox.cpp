// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrollgroupbox.h"

#include <QMouseEvent>

DragScrollGroupBox::DragScrollGroupBox(QWidget* parent)
    : DragScrollGroupBox(QString(), parent)
{ }

DragScrollGroupBox::DragScrollGroupBox(const QString& title, QWidget* parent)
    : QGroupBox(title, parent)
{
    setObjectName(QStringLiteral("NoClickGroupBox"));
}

void DragScrollGroupBox::mousePressEvent(QMouseEvent* event)
{
    event->ignore();
}

void DragScrollGroupBox::mouseReleaseEvent(QMouseEvent* event)
{
    event->ignore();
}

void DragScrollGroupBox::mouseMoveEvent(QMouseEvent* event)
{
    event->ignore();
}

void DragScrollGroupBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->ignore();
}

#include "moc_dragscrollgroupbox.cpp"
