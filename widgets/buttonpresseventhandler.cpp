// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "buttonpresseventhandler.h"

#include "look/palette.h"

#include <QGraphicsColorizeEffect>
#include <QMouseEvent>
#include <QPushButton>
#include <QVariant>

namespace {

const char tintedProperty[] = "orange";

bool isTinted(const QPushButton& button)
{
    return button.property(tintedProperty).toBool();
}

} // namespace

ButtonPressEventHandler::ButtonPressEventHandler(QObject* parent)
    : QObject(parent)
{ }

void ButtonPressEventHandler::setColorizeEffect(QPushButton* button)
{
    auto* effect = new QGraphicsColorizeEffect;
    effect->setColor(QColor(QStringLiteral(LOOK_TOUCH_TINT)));
    button->setProperty(tintedProperty, true);
    button->setGraphicsEffect(effect);
}

void ButtonPressEventHandler::removeColorizeEffect(QPushButton* button)
{
    button->setProperty(tintedProperty, false);
    button->setGraphicsEffect(nullptr);
}

bool ButtonPressEventHandler::eventFilter(QObject* watched, QEvent* event)
{
    if (auto* button = qobject_cast<QPushButton*>(watched)) {
        switch (event->type()) {
        case QEvent::MouseButtonRelease:
            removeColorizeEffect(button);
            break;
        case QEvent::MouseButtonPress:
            if (button->isEnabled()) {
                setColorizeEffect(button);
            }
            break;
        case QEvent::MouseMove:
            // The button sees the move after the filter: a finger that returns finds it still up
            // at its first move inside, and the tint comes back with the second.
            if (button->isEnabled() && button->isDown()) {
                const QPoint finger = static_cast<QMouseEvent*>(event)->position().toPoint();
                const bool inside = button->rect().contains(finger);
                if (inside && !isTinted(*button)) {
                    setColorizeEffect(button);
                } else if (!inside && isTinted(*button)) {
                    removeColorizeEffect(button);
                }
            }
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}
