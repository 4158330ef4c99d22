// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrollbutton.h"

#include "look/icons.h"
#include "touch/draggesture.h"

#include <QCoreApplication>
#include <QFontInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>

namespace {

/// What the frame of a push button takes from its width and from its height, in pixels.
constexpr int FrameExtent = 8;

/// Draws `text` into `rect` of the transparent `canvas` with the font and colour of `button`, in the
/// largest size up to the font's own in which the text is narrower than the canvas.
void drawFittingText(QPixmap& canvas, const QRect& rect, const QString& text,
                     const QPushButton& button)
{
    QFont font = button.font();
    if (font.pointSize() < 0) { // given in pixels
        font.setPointSizeF(QFontInfo(font).pointSizeF());
    }
    const int width = canvas.deviceIndependentSize().toSize().width();
    for (;;) {
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        painter.setBackground(Qt::NoBrush);
        painter.setPen(button.palette().color(QPalette::ButtonText));
        painter.setFont(font);
        QRect bounding;
        const auto side = button.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
        painter.drawText(rect, side | Qt::AlignAbsolute | Qt::AlignVCenter, text, &bounding);
        // Compared with the whole canvas, although the text begins beside the icon: a text that
        // is cut a little is preferred to a much smaller one.
        if (width > bounding.right() - bounding.left() || font.pointSize() <= 1) {
            return;
        }
        font.setPointSize(font.pointSize() - 1);
    }
}

} // namespace

DragScrollButton::DragScrollButton(QWidget* parent)
    : DragScrollButton(QIcon(), QString(), parent)
{ }

DragScrollButton::DragScrollButton(const QString& text, QWidget* parent)
    : DragScrollButton(QIcon(), text, parent)
{ }

DragScrollButton::DragScrollButton(const QIcon& icon, const QString& text, QWidget* parent)
    : QPushButton(icon, text, parent)
    , m_gesture(std::make_unique<Touch::DragGesture>())
{
    setObjectName(QStringLiteral("DragScrollButton"));
    setAutoRepeat(false);
}

DragScrollButton::~DragScrollButton() = default;

void DragScrollButton::fitButtonText(QPushButton* button, int spacing, int leftMargin)
{
    const QSize size = button->size() - QSize(FrameExtent, FrameExtent);
    if (size.isEmpty()) {
        return;
    }
    const QString text = button->text();
    const qreal ratio = button->devicePixelRatio();
    const QSize iconSize = Look::shownSize(button->icon(), size, ratio);
    const QPixmap icon = button->icon().pixmap(iconSize, ratio, QIcon::Normal, QIcon::Off);
    if (button->accessibleName().isEmpty()) {
        button->setAccessibleName(text);
    }
    button->setText(QString());

    QPixmap canvas(size * ratio);
    canvas.setDevicePixelRatio(ratio);
    const QRect textRect(iconSize.width() + spacing + leftMargin, 0,
                         size.width() - iconSize.width(), size.height());
    const QRect iconRect(QPoint(leftMargin, (size.height() - iconSize.height()) / 2), iconSize);
    const auto visualRect = [&](const QRect& logical) {
        return QStyle::visualRect(button->layoutDirection(), QRect(QPoint(), size), logical);
    };
    drawFittingText(canvas, visualRect(textRect), text, *button);
    QPainter(&canvas).drawPixmap(visualRect(iconRect).topLeft(), icon);
    button->setIconSize(size);
    button->setIcon(canvas);
}

bool DragScrollButton::event(QEvent* event)
{
    if (m_gesture->isInProgress() && Touch::losesFinger(*this, *event)) {
        m_gesture->end();
        liftSilently();
    }
    return QPushButton::event(event);
}

// NOLINTBEGIN(bugprone-parent-virtual-call): QPushButton's own handlers are passed over on purpose.
//
// Every handler leaves its event ignored, so that the container below follows the finger too. In
// each, a slot may have deleted the button when the base class returns; the base has accepted the
// event then, and nobody goes on from the dead button to its parent.

void DragScrollButton::mousePressEvent(QMouseEvent* event)
{
    beginGesture(*event);
    const QPointer<QWidget> self(this);
    QAbstractButton::mousePressEvent(event);
    if (self) {
        QWidget::mousePressEvent(event);
    }
}

void DragScrollButton::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->ignore();
    beginGesture(*event);
    // Twice on purpose: QWidget makes a press of a double click, and the button, which has not
    // seen it as one, counts two.
    const QPointer<QWidget> self(this);
    QWidget::mouseDoubleClickEvent(event);
    if (self) {
        QWidget::mouseDoubleClickEvent(event);
    }
}

void DragScrollButton::mouseMoveEvent(QMouseEvent* event)
{
    setAutoRepeat(false);
    if (m_gesture->isInProgress()) {
        const QPoint position = event->globalPosition().toPoint();
        const Qt::Orientations counted = Qt::Vertical | Qt::Horizontal;
        m_gesture->moveTo(position, counted);
        if (m_gesture->isBeyondTapRange(position, counted)) {
            event->ignore();
            return;
        }
    }
    const QPointer<QWidget> self(this);
    const bool wasDown = isDown();
    QAbstractButton::mouseMoveEvent(event);
    if (self) {
        m_slippedAway = !isDown() && (wasDown || m_slippedAway);
        QWidget::mouseMoveEvent(event);
    }
}

void DragScrollButton::mouseReleaseEvent(QMouseEvent* event)
{
    const bool wasInProgress = m_gesture->isInProgress();
    if (m_gesture->end()) {
        liftSilently();
    } else if (wasInProgress) {
        setAutoRepeat(m_autoRepeatAtPress);
        if (m_slippedAway && hitButton(event->position().toPoint())) {
            // The last move left the button, but the container then scrolled it back under the
            // finger: a tap near an edge.
            setDown(true);
        }
    }

    const QPointer<QWidget> self(this);
    const QPointer<QWidget> parent(parentWidget());
    const QPointF positionInParent = mapToParent(event->position());
    QAbstractButton::mouseReleaseEvent(event);
    if (self) {
        QWidget::mouseReleaseEvent(event);
    } else if (parent) {
        // The container's gesture must end even though the button did not survive its click.
        QMouseEvent release(event->type(), positionInParent, event->scenePosition(),
                            event->globalPosition(), event->button(), event->buttons(),
                            event->modifiers(), event->pointingDevice());
        QCoreApplication::sendEvent(parent, &release);
    }
}

// NOLINTEND(bugprone-parent-virtual-call)

void DragScrollButton::beginGesture(const QMouseEvent& event)
{
    if (!m_gesture->isInProgress()) {
        m_gesture->begin(event.globalPosition().toPoint());
        m_autoRepeatAtPress = autoRepeat();
        m_slippedAway = false;
    }
}

/// Ends the press without a click. A button that is not down takes none from the release: neither
/// its check state changes nor does its button group hear of it, as behind blocked signals both
/// would.
void DragScrollButton::liftSilently()
{
    setDown(false);
    setAutoRepeat(m_autoRepeatAtPress);
}
