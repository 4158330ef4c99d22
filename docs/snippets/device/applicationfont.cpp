// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "applicationfont.h"

//! [fontssource]
namespace {

QFont deviceFont(int points, bool bold)
{
    return QFont(QStringLiteral("Device Sans"), points, bold ? QFont::Bold : QFont::Normal);
}

} // namespace

QFont ApplicationFont::getWidgetFont(bool bold)
{
    return deviceFont(13, bold);
}

QFont ApplicationFont::getWidgetFontLarge(bool bold)
{
    return deviceFont(16, bold);
}

QFont ApplicationFont::getWidgetFontSmall(bool bold)
{
    return deviceFont(11, bold);
}

QFont ApplicationFont::getWidgetFontTiny(bool bold)
{
    return deviceFont(9, bold);
}
//! [fontssource]
