// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxslider.h"

#include "look/palette.h"

#include <QColor>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

constexpr int TickWidth = 6; // pixels

// Ends of a tick mark: from the lower edge for those below, from the upper edge for those above.
constexpr int BelowNear = 18;
constexpr int BelowFar = 25;
constexpr int AboveNear = 17;
constexpr int AboveFar = 25;

// How far left of its tick a number begins. The maximum, usually the longest and at the right
// edge, begins further left so that more of it shows.
constexpr int TextOffset = 4;
constexpr int MaximumTextOffset = 8;
// Baseline of the numbers of ticks above: out of sight, which is how these sliders have always
// looked. Screens are laid out for it.
constexpr int AboveTextBaseline = -60;

int clampedToInt(qint64 value)
{
    return int(std::clamp<qint64>(value, std::numeric_limits<int>::min(),
                                  std::numeric_limits<int>::max()));
}

} // namespace

OxSlider::OxSlider(QWidget* parent)
    : QSlider(parent)
{
    initialize();
}

OxSlider::OxSlider(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
{
    initialize();
}

int OxSlider::sliderHandleValue() const
{
    return m_handleValue;
}

OxSlider::ShowText OxSlider::showText() const
{
    return m_showText;
}

void OxSlider::setShowText(OxSlider::ShowText showText)
{
    m_showText = showText;
}

void OxSlider::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (isEnabled() && tickPosition() != QSlider::NoTicks) {
        paintTicks(painter);
    }

    QStyleOptionSlider option;
    initStyleOption(&option);
    // Without SC_SliderTickmarks: the style must not add its own.
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    }
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
}

void OxSlider::mousePressEvent(QMouseEvent* event)
{
    const QRect handle = handleRect();
    const QPoint position = event->position().toPoint();
    if (event->button() != Qt::LeftButton || handle.contains(position)) {
        QSlider::mousePressEvent(event);
        return;
    }
    setValue(valueForTap(position, handle.size()));
    event->accept();
}

void OxSlider::mouseReleaseEvent(QMouseEvent* event)
{
    QSlider::mouseReleaseEvent(event);
    Q_EMIT mouseWasReleasedSignal();
}

void OxSlider::initialize()
{
    setObjectName(QStringLiteral("OxSlider"));
    // Ticks, numbers and taps count from the left, so the handle must too, also on a screen that is
    // read from right to left.
    setLayoutDirection(Qt::LeftToRight);
}

QRect OxSlider::handleRect() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
}

int OxSlider::valueForTap(const QPoint& position, const QSize& handle) const
{
    const bool vertical = orientation() == Qt::Vertical;
    const int length = vertical ? height() : width();
    const int extent = vertical ? handle.height() : handle.width();
    const int along = vertical ? height() - position.y() : position.x();

    // The handle's centre can get no closer to either end than half the handle.
    const double half = extent * 0.5 + 0.5;
    const double end = length - half;
    const double range = double(maximum()) - minimum();
    qint64 offset = 0;
    if (half < end) { // otherwise the handle fills the groove and there is nowhere to tap
        offset = std::llround(range * (std::clamp<double>(along, half, end) - half) / (end - half));
    }

    const qint64 value = minimum() + offset;
    // The mirror of `value` would be maximum + minimum - value. Hosts with an inverted slider have
    // their minimum at 0, where the two agree, or make up for the difference themselves.
    return clampedToInt(invertedAppearance() ? maximum() - value : value);
}

// A horizontal slider with ticks on both sides. W = width, h = height - 1, H = the handle's width;
// rows are counted from the edge that they keep their distance from.
//
//      0                                             W
//      +---------------------------------------------+  0
//      |                                             |
//      |     |          |          |          |      |  17   ticks above: rows 17 to 25, and
//      |     |          |          |          |      |  25   half a pen (3 px) beyond each end
//      |  +-----+                                    |
//      | =|     |=================================== |       groove and handle, where the style
//      |  +-----+                                    |       has them, over the ticks
//      |     |          |          |          |      |  h - 25   ticks below, likewise
//      |     |          |          |          |      |  h - 18
//      |    0          10         20        30       |  h        baseline of the numbers
//      +---------------------------------------------+
//      |<--->|                                |<---->|
//      H/2 - 1      the ticks' centres spread   H/2 + 1
//                   over W - H pixels
//
// A number begins 4 px left of its tick's centre, that of the maximum 8 px. Only x is used, so a
// vertical slider's ticks are not at its values.
void OxSlider::paintTicks(QPainter& painter)
{
    const int step = tickInterval() != 0 ? tickInterval() : pageStep();
    if (step <= 0) { // no interval, no scale
        return;
    }
    painter.setPen(QPen(QColor(QStringLiteral(LOOK_SLIDER_TICK)), TickWidth));

    const QRect handle = handleRect();
    const double halfHandle = handle.width() / 2.0;
    const double range = double(maximum()) - minimum();
    const int span = width() - handle.width();
    const qint64 valueUnderHandle =
        std::llround((handle.left() + halfHandle) * range / width()) + minimum();
    const int baseline = tickPosition() == QSlider::TicksAbove ? AboveTextBaseline : height() - 1;

    const auto paintTickOf = [&](qint64 value) {
        const double fraction = range > 0 ? double(value - minimum()) / range : 0.0;
        const int x = int(std::lround(halfHandle + fraction * span)) - 1;
        paintTick(painter, x);
        if (m_showText == AllText || (m_showText == HandleText && value == valueUnderHandle)) {
            const int offset = value == maximum() ? MaximumTextOffset : TextOffset;
            painter.drawText(x - offset, baseline, QString::number(value));
            m_handleValue = int(value);
        }
    };
    // A range may have millions of ticks. No pixel that has any stays without, and neither does the
    // handle; all the others would be painted over those.
    const qint64 last = (qint64(maximum()) - minimum()) / step;
    const qint64 stride = std::max<qint64>(1, last / std::max(1, std::abs(span)));
    for (qint64 tick = 0; tick < last; tick += stride) {
        paintTickOf(minimum() + tick * step);
    }
    const qint64 handleOffset = valueUnderHandle - minimum();
    if (stride > 1 && handleOffset % step == 0 && handleOffset >= 0 && handleOffset / step < last) {
        paintTickOf(valueUnderHandle);
    }
    paintTickOf(minimum() + last * step);
}

void OxSlider::paintTick(QPainter& painter, int x) const
{
    if ((tickPosition() & QSlider::TicksBelow) != 0) {
        const int h = height() - 1;
        painter.drawLine(x, h - BelowNear, x, h - BelowFar);
    }
    if ((tickPosition() & QSlider::TicksAbove) != 0) {
        painter.drawLine(x, AboveNear, x, AboveFar);
    }
}

#include "moc_oxslider.cpp"
