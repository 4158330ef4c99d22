// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxspinbox.h"

#include "touch/enterkey.h"
#include "touch/focusnudge.h"

OxSpinBox::OxSpinBox(QWidget* parent)
    : QSpinBox(parent)
{
    setObjectName(QStringLiteral("OxSpinBox"));
}

void OxSpinBox::focusInEvent(QFocusEvent* event)
{
    QSpinBox::focusInEvent(event);
    Touch::nudgeInputSystem(this);
}

void OxSpinBox::focusOutEvent(QFocusEvent* event)
{
    QSpinBox::focusOutEvent(event);
    Q_EMIT focusLost();
}

void OxSpinBox::keyPressEvent(QKeyEvent* event)
{
    QSpinBox::keyPressEvent(event);
    if (Touch::isEnterKey(*event)) {
        Q_EMIT returnPressed();
    }
}

#include "moc_oxspinbox.cpp"
