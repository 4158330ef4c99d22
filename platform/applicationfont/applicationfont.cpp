// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "applicationfont.h"

#include <QGuiApplication>

namespace {

ApplicationFont::Sizes& table()
{
    static ApplicationFont::Sizes sizes;
    return sizes;
}

QFont widgetFont(int pointSize, bool bold)
{
    QFont font = QGuiApplication::font();
    font.setPointSize(pointSize);
    font.setBold(bold);
    return font;
}

} // namespace

QFont ApplicationFont::getWidgetFont(bool bold)
{
    return widgetFont(table().normal, bold);
}

QFont ApplicationFont::getWidgetFontLarge(bool bold)
{
    return widgetFont(table().large, bold);
}

QFont ApplicationFont::getWidgetFontSmall(bool bold)
{
    return widgetFont(table().small, bold);
}

QFont ApplicationFont::getWidgetFontTiny(bool bold)
{
    return widgetFont(table().tiny, bold);
}

ApplicationFont::Sizes ApplicationFont::sizes()
{
    return table();
}

void ApplicationFont::setSizes(const Sizes& sizes)
{
    const auto replace = [](int& size, int replacement) {
        if (replacement > 0) {
            size = replacement;
        }
    };
    replace(table().tiny, sizes.tiny);
    replace(table().small, sizes.small);
    replace(table().normal, sizes.normal);
    replace(table().large, sizes.large);
}
