// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>

namespace Touch {

/// Whether `event` is about Return or about Enter on the number pad: one key to the person.
inline bool isEnterKey(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace Touch
