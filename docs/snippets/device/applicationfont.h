// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

//! [fonts]
#include <QFont>

class ApplicationFont
{
public:
    static QFont getWidgetFont(bool bold = false);
    static QFont getWidgetFontLarge(bool bold = false);
    static QFont getWidgetFontSmall(bool bold = false);
    static QFont getWidgetFontTiny(bool bold = false);
};
//! [fonts]
