// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "clickableframe.h"

#include "touch/accessibleroles.h"

ClickableFrame::ClickableFrame(QWidget* parent, Qt::WindowFlags f)
    : QFrame(parent, f)
{
    Touch::installAccessibleRoles();
}

void ClickableFrame::mousePressEvent(QMouseEvent* event)
{
    Q_EMIT clicked();
    QFrame::mousePressEvent(event);
}

#include "moc_clickableframe.cpp"
