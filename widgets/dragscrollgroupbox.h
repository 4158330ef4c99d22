// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QGroupBox>

/*!
 * \brief A group box that a finger can drag away: every mouse event passes on to its parent.
 *
 * Use it instead of QGroupBox inside a container that is scrolled by dragging, so that a drag may
 * start on the box's title or between its children.
 *
 * \code
 * auto* box = new DragScrollGroupBox(tr("Arrows", "Category of symbols"));
 * box->setLayout(layoutOfButtons);
 * list->setIndexWidget(index, box);
 * \endcode
 *
 * The box itself never reacts to the mouse: a checkable one is toggled by the keyboard and by code
 * alone. The object name is "NoClickGroupBox".
 */
class UTILITYWIDGETS_EXPORT DragScrollGroupBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit DragScrollGroupBox(QWidget* parent = nullptr);
    explicit DragScrollGroupBox(const QString& title, QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};
