// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxlineedit.h"

#include "touch/focusnudge.h"

OxLineEdit::OxLineEdit(QWidget* parent)
    : OxLineEdit(QString(), parent)
{ }

OxLineEdit::OxLineEdit(const QString& text, QWidget* parent)
    : QLineEdit(text, parent)
{
    setObjectName(QStringLiteral("OxLineEdit"));
}

void OxLineEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    Touch::nudgeInputSystem(this);
}

void OxLineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    Q_EMIT focusLost();
}

void OxLineEdit::mousePressEvent(QMouseEvent* event)
{
    QLineEdit::mousePressEvent(event);
    Q_EMIT mousePressedSignal();
}

#include "moc_oxlineedit.cpp"
