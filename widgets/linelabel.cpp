// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "linelabel.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QtMath>

namespace {

constexpr int TextGap = 10; // pixels that the rule leaves free in addition to the text

/// Draws the pixels from `left` to `right`. Ends that have passed each other, as they do when the
/// text leaves no room, draw nothing: QPainter would still set a pixel for such a line.
void drawRule(QPainter& painter, int left, int right, int y)
{
    if (left <= right) {
        painter.drawLine(left, y, right, y);
    }
}

} // namespace

LineLabel::LineLabel(const QString& text, QWidget* parent, Qt::WindowFlags f)
    : QLabel(text, parent, f)
{
    setObjectName(QStringLiteral("LineLabel"));
    setLineType(LineBoth);
    setLineColor(QApplication::palette().color(QPalette::Current, QPalette::Text));
}

LineLabel::LineLabel(QWidget* parent)
    : LineLabel(QString(), parent)
{ }

LineLabel::LineType LineLabel::lineType() const
{
    return m_lineType;
}

QColor LineLabel::lineColor() const
{
    return m_lineColor;
}

void LineLabel::setLineType(LineType type)
{
    if (type == m_lineType) {
        return;
    }
    switch (type) {
    case LineLeft:
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        break;
    case LineRight:
        setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        break;
    case LineBoth:
        setAlignment(Qt::AlignCenter);
        break;
    }
    m_lineType = type;
    update();
    Q_EMIT lineTypeChanged(type);
}

void LineLabel::setLineColor(const QColor& color)
{
    if (color == m_lineColor) {
        return;
    }
    m_lineColor = color;
    update();
    Q_EMIT lineColorChanged(color);
}

// The rule and what its ends are computed from (w = width - 1, y = (height - 1) / 2,
// gap = text width + 10), all columns inclusive:
//
//              0                               w
//   LineLeft   |--------------------|    [text]|     rule to w - gap
//   LineRight  |[text]    |--------------------|     rule from gap
//   LineBoth   |----------|  [text]  |---------|     rules to side and from w - side,
//                                                    side = (w + 1 - gap) / 2
//
// LineLeft and LineRight change places for a text that is read from right to left.
void LineLabel::paintEvent(QPaintEvent* event)
{
    paintRule();
    QLabel::paintEvent(event);
}

void LineLabel::paintRule()
{
    QPainter painter(this);
    // Of whole pixels of the screen: otherwise, at a scale with a fraction, rules differ in width
    // depending on where they are.
    const qreal ratio = devicePixelRatioF();
    painter.setPen(QPen(m_lineColor, qMax(1, qFloor(ratio)) / ratio));
    const int gap = fontMetrics().horizontalAdvance(text()) + TextGap;
    const int w = width() - 1;
    const int y = (height() - 1) / 2;
    // A label puts a text that is read from right to left at the other end.
    const bool isMirrored = text().isRightToLeft();
    switch (m_lineType) {
    case LineLeft:
    case LineRight:
        if ((m_lineType == LineLeft) != isMirrored) {
            drawRule(painter, 0, w - gap, y);
        } else {
            drawRule(painter, gap, w, y);
        }
        break;
    case LineBoth: {
        const int side = (w + 1 - gap) / 2;
        drawRule(painter, 0, side, y);
        drawRule(painter, w - side, w, y);
        break;
    }
    }
}

#include "moc_linelabel.cpp"
