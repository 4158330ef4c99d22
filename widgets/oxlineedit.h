// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QLineEdit>

/*!
 * \brief A line edit for a screen without a keyboard: it calls for one and says when it is left.
 *
 * Use it wherever an application would use QLineEdit. When it gains the focus it nudges the
 * device's input system with a posted press of the Control key, so that an on-screen keyboard can
 * appear.
 *
 * \code
 * auto* name = new OxLineEdit(this);
 * connect(name, &OxLineEdit::focusLost, this, &Form::storeName);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT OxLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit OxLineEdit(QWidget* parent = nullptr);
    explicit OxLineEdit(const QString& text, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The field was pressed, with any mouse button; emitted after the cursor has been placed.
    void mousePressedSignal();
    /// The field lost the focus, for whatever reason, a popup of its own included.
    void focusLost();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};
