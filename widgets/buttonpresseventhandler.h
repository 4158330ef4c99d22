// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QObject>

class QPushButton;

/*!
 * \brief Tints a push button orange for as long as a finger holds it down.
 *
 * Use it on buttons whose own look does not show that they are pressed. It is an event filter; one
 * handler serves any number of buttons:
 *
 * \code
 * auto* tint = new ButtonPressEventHandler(this);
 * okButton->installEventFilter(tint);
 * cancelButton->installEventFilter(tint);
 * \endcode
 *
 * The tint comes with the press on an enabled button, goes when the finger slides off, comes back
 * when it returns and goes with the release. The button works as without the handler. Whether the
 * tint is on stands in the button's dynamic property "orange" (bool), which a button that was never
 * pressed does not have.
 *
 * The tint is the button's graphics effect. A button that shall keep an effect of its own must not
 * be watched: the first release, also on a disabled button, deletes it. Installed on anything but a
 * QPushButton the handler does nothing.
 */
class UTILITYWIDGETS_EXPORT ButtonPressEventHandler : public QObject
{
public:
    explicit ButtonPressEventHandler(QObject* parent = nullptr);

    /// Tints `button`, which must not be null, replaces the effect that it had and sets "orange".
    /// The button owns the new effect.
    void setColorizeEffect(QPushButton* button);
    /// Deletes the effect of `button`, which must not be null, and clears "orange".
    void removeColorizeEffect(QPushButton* button);

    /// Always false: every event goes on to the button.
    bool eventFilter(QObject* watched, QEvent* event) override;
};
