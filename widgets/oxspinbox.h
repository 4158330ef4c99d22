// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QSpinBox>

/*!
 * \brief A whole-number field for a screen without a keyboard: it calls for one and says when it is
 * left.
 *
 * When it gains the focus it nudges the device's input system with a posted press of the Control
 * key, so that an on-screen keyboard can appear.
 *
 * \code
 * auto* copies = new OxSpinBox(this);
 * copies->setRange(1, 99);
 * connect(copies, &OxSpinBox::returnPressed, this, &PrintPanel::printSlot);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT OxSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit OxSpinBox(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The field lost the focus, for whatever reason; value() already holds what was typed.
    void focusLost();
    /// Return, or Enter on the number pad, was pressed; value() already holds what was typed. The
    /// key press goes on to the parent all the same, where it may trigger a default button.
    void returnPressed();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
