// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "focusrectangleproxystyle.h"

void FocusRectangleProxyStyle::drawPrimitive(QStyle::PrimitiveElement element,
                                             const QStyleOption* option, QPainter* painter,
                                             const QWidget* widget) const
{
    if (element != QStyle::PE_FrameFocusRect) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}
