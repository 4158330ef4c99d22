// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documentpainter.h"

#include <QWidget>

/// The page as a finger works on it: a tap selects, a drag moves an object or the corner of the
/// selected one, and beside all objects the page itself.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    static constexpr int LeastZoom = 25; ///< percent of the real size, as this screen tells it
    static constexpr int MostZoom = 400;

    explicit Canvas(Document* document, QWidget* parent = nullptr);

    /// The record whose fields the texts show.
    void setRecord(const QSqlRecord& record);
    /// Where the object is, in pixels of this widget.
    QRect rectOf(const Object& object) const;
    /// What a finger resizes it with, at its bottom right corner.
    QRect handleOf(const Object& object) const;

public Q_SLOTS:
    void setZoom(int percent);
    void zoomToFit();

Q_SIGNALS:
    void zoomChanged(int percent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum Drag { NoDrag, Pan, Move, Resize };

    double pixelsPerMillimetre() const;
    QPointF origin() const;
    /// The number of the object under a finger; 0 if there is none.
    int objectAt(const QPoint& position) const;
    /// Whether one single object is selected that can be resized.
    bool hasHandle() const;
    /// How far the finger has moved what it drags, in millimetres; not at all within a tap.
    QPointF dragged() const;
    Content draggedContent() const;

    Document* m_document;
    DocumentPainter m_painter;
    QSqlRecord m_record;
    int m_zoom = 100;
    QPointF m_center; ///< what of the page is in the middle of the widget, in millimetres
    Drag m_drag = NoDrag;
    QPoint m_pressed;
    QPoint m_position;
};
