// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

//! [panel]
#include <IOxTransparentWidget>

class LayerPanel : public QWidget, public IOxTransparentWidget
{
    Q_OBJECT

public:
    explicit LayerPanel(QWidget* parent = nullptr);

Q_SIGNALS:
    void closeSignal(); // what a panel in front of a dimmed screen must have
};
//! [panel]

class GridPage : public QWidget
{
    Q_OBJECT

public:
    int spacing() const { return m_spacing; }

    void editSpacing();
    void deleteLayer();
    void showLayers();

Q_SIGNALS:
    void layerDeleted();

private:
    int m_spacing = 10;
};

/// The sheet of the house's push buttons.
QString houseButton();

/// The application's style and fonts.
void prepareLook();

class QLabel;
QLabel* createHeading(const QString& text, QWidget* parent);
