// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QPlainTextEdit>

/*!
 * \brief A plain-text field for a screen without a keyboard: it calls for one.
 *
 * When it gains the focus it nudges the device's input system with a posted press of the Control
 * key. It has no signal for losing the focus; where that matters, use OxTextEdit.
 *
 * The class has no meta-object of its own: a style sheet reaches it as "QPlainTextEdit" or by its
 * object name "#OxPlainTextEdit", and qobject_cast does not tell it from a QPlainTextEdit.
 *
 * \code
 * auto* comment = new OxPlainTextEdit(tr("Printed twice", "First comment on a job"), this);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT OxPlainTextEdit : public QPlainTextEdit
{
public:
    explicit OxPlainTextEdit(QWidget* parent = nullptr);
    /// `text` is shown as it stands, HTML included.
    explicit OxPlainTextEdit(const QString& text, QWidget* parent = nullptr);

protected:
    void focusInEvent(QFocusEvent* event) override;
};
