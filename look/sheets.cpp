// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/sheets.h"

#include "look/palette.h"

QString Look::framedPanel(const QString& selector)
{
    return selector
        + QStringLiteral(" { background-color: " LOOK_PANEL_GREY
                         "; border: 1px solid " LOOK_ACCENT_ORANGE "; } ");
}

QString Look::messageButton()
{
    return QStringLiteral(
        "QPushButton { border: 2px solid " LOOK_ACCENT_ORANGE "; color: white; font: bold; \n"
        "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " LOOK_BUTTON_TOP
        ", stop: 1 " LOOK_BUTTON_BOTTOM ");\n"
        "border-radius: 6px; outline: 0;\n"
        "}");
}
