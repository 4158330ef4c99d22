// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "clickablelabel.h"

#include "touch/accessibleroles.h"

ClickableLabel::ClickableLabel(QWidget* parent, Qt::WindowFlags f)
    : ClickableLabel(QString(), parent, f)
{ }

ClickableLabel::ClickableLabel(const QString& text, QWidget* parent, Qt::WindowFlags f)
    : QLabel(text, parent, f)
{
    setObjectName(QStringLiteral("ClickableLabel"));
    Touch::installAccessibleRoles();
}

void ClickableLabel::mousePressEvent(QMouseEvent* event)
{
    Q_EMIT clicked();
    QLabel::mousePressEvent(event);
}

#include "moc_clickablelabel.cpp"
