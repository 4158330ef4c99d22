// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtextedit.h"

#include "touch/focusnudge.h"

OxTextEdit::OxTextEdit(QWidget* parent)
    : OxTextEdit(QString(), parent)
{ }

OxTextEdit::OxTextEdit(const QString& text, QWidget* parent)
    : QTextEdit(text, parent)
{
    setObjectName(QStringLiteral("OxTextEdit"));
}

void OxTextEdit::focusInEvent(QFocusEvent* event)
{
    QTextEdit::focusInEvent(event);
    Touch::nudgeInputSystem(this);
}

void OxTextEdit::focusOutEvent(QFocusEvent* event)
{
    QTextEdit::focusOutEvent(event);
    Q_EMIT focusLostSignal();
}

#include "moc_oxtextedit.cpp"
