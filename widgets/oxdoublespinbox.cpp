// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxdoublespinbox.h"

#include "touch/enterkey.h"
#include "touch/focusnudge.h"

OxDoubleSpinBox::OxDoubleSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
    setObjectName(QStringLiteral("OxDoubleSpinBox"));
}

void OxDoubleSpinBox::focusInEvent(QFocusEvent* event)
{
    QDoubleSpinBox::focusInEvent(event);
    Touch::nudgeInputSystem(this);
}

void OxDoubleSpinBox::focusOutEvent(QFocusEvent* event)
{
    QDoubleSpinBox::focusOutEvent(event);
    Q_EMIT focusLost();
}

void OxDoubleSpinBox::keyPressEvent(QKeyEvent* event)
{
    QDoubleSpinBox::keyPressEvent(event);
    if (Touch::isEnterKey(*event)) {
        Q_EMIT returnPressed();
    }
}

#include "moc_oxdoublespinbox.cpp"
