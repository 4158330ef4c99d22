// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxframe.h"

#include "touch/accessibleroles.h"

OxFrame::OxFrame(QWidget* parent, Qt::WindowFlags f)
    : QFrame(parent, f)
{
    Touch::installAccessibleRoles();
}

void OxFrame::focusOutEvent(QFocusEvent* event)
{
    QFrame::focusOutEvent(event);
    Q_EMIT focusLost();
}

#include "moc_oxframe.cpp"
