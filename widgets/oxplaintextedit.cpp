// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxplaintextedit.h"

#include "touch/focusnudge.h"

OxPlainTextEdit::OxPlainTextEdit(QWidget* parent)
    : OxPlainTextEdit(QString(), parent)
{ }

OxPlainTextEdit::OxPlainTextEdit(const QString& text, QWidget* parent)
    : QPlainTextEdit(text, parent)
{
    setObjectName(QStringLiteral("OxPlainTextEdit"));
}

void OxPlainTextEdit::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    Touch::nudgeInputSystem(this);
}
