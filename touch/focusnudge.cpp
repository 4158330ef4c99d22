// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "touch/focusnudge.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

void Touch::nudgeInputSystem(QWidget* field)
{
    QCoreApplication::postEvent(field,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier));
}
