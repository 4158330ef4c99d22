// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document.h"

#include <QWidget>

#include <memory>

namespace Ui {
class LayersPanel;
}

/// The size of the page, its layers, the top one first, and the objects of the current layer.
class LayersPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LayersPanel(Document* document, QWidget* parent = nullptr);
    ~LayersPanel() override;

private:
    void showContent();
    void setPage();
    void addLayer();
    void raiseLayer();
    void showOrHideLayer();

    Document* m_document;
    std::unique_ptr<Ui::LayersPanel> m_ui;
};
