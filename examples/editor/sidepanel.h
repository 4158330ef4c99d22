// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document.h"
#include "ui_sidepanel.h"

/// What is beside the page: the properties of the selected objects, those of the lowest one shown
/// and those of all changed, and the page with its layers, the top one first. Its form connects the
/// controls to the slots.
class SidePanel : public QWidget
{
    Q_OBJECT

public:
    explicit SidePanel(Document* document, QWidget* parent = nullptr);

private Q_SLOTS:
    void showObject();
    void showPage();
    void setPage();
    void addLayer();
    void raiseLayer();
    void showOrHideLayer();

private:
    void setUpProperties();
    void setUpColors();

    Document* m_document;
    Ui::SidePanel m_ui;
    QList<QPair<OxDoubleSpinBox*, double Object::*>> m_lengths;
};
