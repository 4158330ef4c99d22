// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "ignoreentereventhandler.h"

#include "touch/enterkey.h"

IgnoreEnterEventHandler::IgnoreEnterEventHandler(QObject* parent)
    : QObject(parent)
{ }

bool IgnoreEnterEventHandler::eventFilter(QObject* /*watched*/, QEvent* event)
{
    return event->type() == QEvent::KeyPress && Touch::isEnterKey(*static_cast<QKeyEvent*>(event));
}

#include "moc_ignoreentereventhandler.cpp"
