// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/*!
 * Leaves in `input` what a person typed beside `suffix`, without blanks at either end.
 *
 * Each character of the suffix goes wherever it stands and in either case: while a text is being
 * edited, what is left of the suffix can be anywhere and incomplete ("1m2 m").
 */
inline void stripSuffix(QString& input, const QString& suffix)
{
    const QString characters = suffix.trimmed();
    for (const QChar character : characters) {
        input.remove(character, Qt::CaseInsensitive);
    }
    input = input.trimmed();
}
