// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document.h"

#include <QWidget>

/// The page, as large as fits, for a finger: a tap selects, a drag moves what is selected.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(Document* document, QWidget* parent = nullptr);

    /// The record whose fields the texts show.
    void setRecord(const QSqlRecord& record);
    /// Where the object is, in pixels of this widget.
    QRect rectOf(const Object& object) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// From millimetres on the page to pixels of this widget.
    QTransform toPixels() const;
    /// The number of the object under a finger; 0 if there is none.
    int objectAt(const QPoint& position) const;
    /// Moves in `content` what the finger drags. False if that is nothing, as in a tap.
    bool drag(Content* content) const;

    Document* m_document;
    QSqlRecord m_record;
    bool m_isPressed = false;
    QPoint m_pressed;
    QPoint m_position;
};
