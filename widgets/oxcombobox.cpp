// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxcombobox.h"

#include "touch/focusnudge.h"

OxComboBox::OxComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setObjectName(QStringLiteral("OxComboBox"));
}

void OxComboBox::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    Touch::nudgeInputSystem(this);
}

void OxComboBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    Q_EMIT focusLostSignal();
}

#include "moc_oxcombobox.cpp"
