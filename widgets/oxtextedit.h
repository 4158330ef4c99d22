// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QTextEdit>

/*!
 * \brief A rich-text field for a screen without a keyboard: it calls for one and says when it is
 * left.
 *
 * When it gains the focus it nudges the device's input system with a posted press of the Control
 * key. For text without formats OxPlainTextEdit is cheaper, but that one does not say when it is
 * left.
 *
 * \code
 * auto* note = new OxTextEdit(this);
 * connect(note, &OxTextEdit::focusLostSignal, this, &NotePanel::storeNote);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT OxTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit OxTextEdit(QWidget* parent = nullptr);
    /// `text` is read as HTML.
    explicit OxTextEdit(const QString& text, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The field lost the focus, for whatever reason, a popup of its own included.
    void focusLostSignal();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};
