// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QSlider>

class QPainter;

/*!
 * \brief A slider for a finger: a tap on the groove moves the handle there at once.
 *
 * Use it wherever an application would use QSlider. It tells when the finger is lifted, which is
 * the moment for work that is too slow for every valueChanged(), and draws thick tick marks of its
 * own, with their values if asked to.
 *
 * \code
 * auto* zoom = new OxSlider(Qt::Horizontal, this);
 * zoom->setRange(0, 420);
 * zoom->setTickPosition(QSlider::TicksBelow);
 * zoom->setTickInterval(100);
 * zoom->setShowText(OxSlider::AllText);
 * zoom->setMinimumHeight(70);
 * connect(zoom, &OxSlider::mouseWasReleasedSignal, this, &Panel::applyZoom);
 * \endcode
 *
 * The marks need room that QSlider's size hint does not ask for: 28 pixels above the lower edge
 * for those below, the upper 28 pixels for those above. The number at the maximum has half the
 * handle's width and 9 pixels before the slider's edge cuts it off; a small font helps, and so does
 * a maximum that is no tick. The marks are made for a horizontal slider that is not inverted, show
 * only while the slider is enabled, and stand at every tickInterval(), or pageStep() when that is
 * 0. Each one is painted at each repaint: choose an interval that leaves a finger's room between
 * them.
 *
 * With invertedAppearance(), a tap reaches the mirrored value only when the minimum is 0.
 */
class UTILITYWIDGETS_EXPORT OxSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(ShowText showText READ showText WRITE setShowText)

public:
    /// Which ticks show their value.
    enum ShowText : int {
        NoText = 0,
        HandleText = 1, ///< The tick whose value is the one under the handle's centre, if any.
        AllText = 2,
    };
    Q_ENUM(ShowText)

    /// A vertical slider, as QSlider is by default.
    explicit OxSlider(QWidget* parent = nullptr);
    explicit OxSlider(Qt::Orientation orientation, QWidget* parent = nullptr);

    /// The value that was drawn last beside a tick: with HandleText, the last tick that the handle
    /// stood on; 0 until one has been drawn. Painting sets it, so read it once the slider shows.
    int sliderHandleValue() const;

    ShowText showText() const;
    /// Takes effect at the next repaint, which it does not cause. With QSlider::TicksAbove the
    /// values lie outside the slider and are not seen.
    void setShowText(OxSlider::ShowText showText);

Q_SIGNALS:
    /// A mouse button was released, whether it dragged, tapped the groove or did neither; emitted
    /// after the value has been set.
    void mouseWasReleasedSignal();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void initialize();
    QRect handleRect() const;
    int valueForTap(const QPoint& position, const QSize& handle) const;
    void paintTicks(QPainter& painter);
    void paintTick(QPainter& painter, int x) const;

    ShowText m_showText = NoText;
    int m_handleValue = 0;
};
