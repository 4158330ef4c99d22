// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "whitespace.h"

#include <QRegularExpression>

// Without the Unicode option only ASCII counts as white space. Anchored, because the whole text has
// to match, its last line break included.
const QRegularExpression
    WhiteSpace::m_whiteSpace(QRegularExpression::anchoredPattern(QStringLiteral("\\s*")),
                             QRegularExpression::UseUnicodePropertiesOption);

bool WhiteSpace::isWhiteSpace(const QString& text)
{
    return m_whiteSpace.match(text).hasMatch();
}
