// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "plugin.h"

#include "formwidgets.h"

Designer::Plugin::Plugin(QObject* parent)
    : QObject(parent)
    , m_widgets(formWidgets())
{ }

Designer::Plugin::~Plugin() = default;

QList<QDesignerCustomWidgetInterface*> Designer::Plugin::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface*> widgets;
    for (const std::unique_ptr<FormWidgetBase>& widget : m_widgets) {
        widgets.append(widget.get());
    }
    return widgets;
}

#include "moc_plugin.cpp"
