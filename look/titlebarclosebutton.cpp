// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/titlebarclosebutton.h"

#include "look/icons.h"
#include "look/images.h"
#include "look/palette.h"

#include <QCoreApplication>
#include <QEvent>
#include <QIcon>
#include <QPushButton>

namespace {

class CloseButton : public QPushButton
{
public:
    explicit CloseButton(QWidget* parent)
        : QPushButton(parent)
    {
        retranslate();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QPushButton::changeEvent(event);
        if (event->type() == QEvent::LanguageChange) {
            retranslate();
        }
    }

private:
    void retranslate()
    {
        setAccessibleName(QCoreApplication::translate(
            "TitleBar", "Close", "Accessible name of the close button of a title bar."));
    }
};

} // namespace

QPushButton* Look::createTitleBarCloseButton(QWidget* parent, const QSize& size)
{
    auto* button = new CloseButton(parent);
    button->setFlat(true);
    button->setIcon(icon(QStringLiteral(LOOK_IMAGE_CLOSE)));
    button->setIconSize(size);
    button->setFixedSize(size);
    // Its own sheet, so that the rules for a dialog's push buttons neither frame nor stretch it: any
    // of these sizes would win over the fixed one.
    button->setStyleSheet(
        QStringLiteral("QPushButton { border: none; background: none; margin: 0px; padding: 0px;"
                       " width: %1px; height: %2px; min-width: %1px; min-height: %2px;"
                       " max-width: %1px; max-height: %2px; }\n"
                       "QPushButton:pressed { background-color: " LOOK_ACCENT_ORANGE "; }")
            .arg(size.width())
            .arg(size.height()));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}
