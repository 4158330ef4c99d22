// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QPoint>
#include <QScrollArea>
#include <QSize>

#include <memory>

class QLayout;
class QVBoxLayout;

namespace Touch {
class DragGesture;
}

/*!
 * \brief A column of panels that scrolls when a finger drags over it.
 *
 * Applications place a ToolBoxContainer, which adds the arrow buttons, and reach its tool box
 * through it. Use ToolBox alone only where there is no room for the arrows:
 *
 * \code
 * auto* box = new ToolBox(this);
 * box->initialize(QSize(220, 400), QPoint(0, 0));
 * box->setWidgetResizable(true);
 * box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // each bar would cover a part of the
 * box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);   // column, which has a fixed width
 * box->addPropertiesWidget(new LockWidget(false, box));
 * box->insertSpacerItem();
 * \endcode
 *
 * A drag scrolls from its first pixel on and does not suppress the click of a button that it ends
 * on; panels that need that use DragScrollButton.
 *
 * Until initialize() has been called there is no column, and adding to it does nothing. It then is
 * a QScrollArea that is dragged: in a form it gets its widget, and that a layout, as a QScrollArea
 * does.
 */
class UTILITYWIDGETS_EXPORT ToolBox : public QScrollArea
{
    Q_OBJECT
    // Not for a form, which has no column but a widget with a layout of its own. Not "layoutSpacing":
    // Qt Designer has a property of that name for every container.
    Q_PROPERTY(
        int panelSpacing READ layoutSpacing WRITE setLayoutSpacing DESIGNABLE false STORED false)

public:
    explicit ToolBox(QWidget* parent = nullptr);
    ~ToolBox() override;

    /// Builds an empty column that is as wide as `size`, whose height has no meaning. The column
    /// starts out at the right end of `size` placed at `position`. Calling it again deletes the
    /// column with its panels and starts anew.
    void initialize(QSize size, QPoint position);

    /// Appends `panel`, which the tool box then owns, at the top of an equal share of the spare
    /// height. Null is ignored.
    void addPropertiesWidget(QWidget* panel);
    /// Appends a space that takes what the panels leave free.
    void insertSpacerItem();
    /// Deletes everything in `layout`, nested layouts and widgets included, but not `layout`
    /// itself. Null is ignored.
    void clearLayout(QLayout* layout);
    /// Pixels between two panels; 5 unless set, and 0 while there is no column.
    int layoutSpacing() const;
    void setLayoutSpacing(int spacing);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int nextIndex();

    int m_insertionIndex = 0;
    std::unique_ptr<Touch::DragGesture> m_gesture;
    QPoint m_origin;
    QVBoxLayout* m_columnLayout = nullptr;
    QWidget* m_columnWidget = nullptr;
};
