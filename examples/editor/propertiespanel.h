// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document.h"

#include <ToolBoxContainer>

#include <memory>

class OxDoubleSpinBox;

namespace Ui {
class PropertiesPanel;
}

/// The properties of the selected objects: shows those of the lowest one, changes those of all.
class PropertiesPanel : public ToolBoxContainer
{
    Q_OBJECT

public:
    PropertiesPanel(Document* document, QSize size, QWidget* parent = nullptr);
    ~PropertiesPanel() override;

private:
    void addSection(QWidget* content);
    void setUpFields();
    void setUpColors();
    void showObject();

    template <typename Value>
    void set(Object::Aspect aspect, Value Object::*field, const Value& value)
    {
        m_document->changeSelected(aspect, [=](Object& object) { object.*field = value; });
    }

    Document* m_document;
    std::unique_ptr<Ui::PropertiesPanel> m_ui;
    QList<QPair<OxDoubleSpinBox*, double Object::*>> m_lengths;
};
