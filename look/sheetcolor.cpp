// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "sheetcolor.h"

#include <QColor>
#include <QRegularExpression>
#include <QString>

namespace {

/// One word or one hexadecimal number of a colour that QColor knows. QColor alone is too generous:
/// it skips blanks inside a name and stops reading at the first letter beyond Latin-1.
bool isColorWord(const QString& text)
{
    static const QRegularExpression word(QStringLiteral("\\A(?:[A-Za-z]+|#[0-9A-Fa-f]+)\\z"));
    return word.match(text).hasMatch() && QColor::isValidColor(text);
}

/// One number of a colour function; hues go further than the rest.
bool isComponent(const QString& text, bool isHue)
{
    if (text.endsWith(QLatin1Char('%'))) {
        return text.chopped(1).toInt() <= 100;
    }
    return text.toInt() <= (isHue ? 359 : 255);
}

/// "rgb(1, 2, 3)" and its relatives. The style sheet parser knows these names in lower case only
/// and wants an alpha exactly where the name announces one.
bool isColorFunction(const QString& text)
{
    static const QRegularExpression function(QStringLiteral(
        "\\A(?<name>rgb|hsv|hsl)(?<a>a)?\\(\\s*(?<first>[0-9]{1,3}%?)\\s*,\\s*([0-9]{1,3}%?)\\s*,"
        "\\s*([0-9]{1,3}%?)\\s*(?:,\\s*(?<alpha>[0-9]{1,3}%?)\\s*)?\\)\\z"));
    const QRegularExpressionMatch match = function.match(text);
    if (!match.hasMatch() || match.hasCaptured(u"a") != match.hasCaptured(u"alpha")) {
        return false;
    }
    const bool startsWithHue = match.captured(u"name") != QLatin1String("rgb");
    return isComponent(match.captured(3), startsWithHue) && isComponent(match.captured(4), false)
        && isComponent(match.captured(5), false) && isComponent(match.captured(6), false);
}

bool isPaletteFunction(const QString& text)
{
    static const QRegularExpression function(
        QStringLiteral("\\Apalette\\(\\s*[A-Za-z-]+\\s*\\)\\z"));
    return function.match(text).hasMatch();
}

} // namespace

QString Look::sheetColor(const QString& color)
{
    const bool isColor = isColorWord(color) || isColorFunction(color) || isPaletteFunction(color);
    return isColor ? color : QStringLiteral("none");
}
