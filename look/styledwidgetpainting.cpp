// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/styledwidgetpainting.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

void Look::paintStyledWidget(QWidget* widget)
{
    QStyleOption option;
    option.initFrom(widget);
    QPainter painter(widget);
    widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, widget);
}
