// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QComboBox>

/*!
 * \brief A combo box that calls for the keyboard of the device and says when it is left.
 *
 * Use it wherever an application would use QComboBox; for an editable one whose list also opens by
 * a tap on the text, use ClickableComboBox. When it gains the focus it nudges the device's input
 * system with a posted press of the Control key.
 *
 * \code
 * auto* unit = new OxComboBox(this);
 * unit->addItems({QStringLiteral("mm"), QStringLiteral("inch")});
 * connect(unit, &OxComboBox::focusLostSignal, this, &UnitPanel::storeUnit);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT OxComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit OxComboBox(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The box lost the focus, for whatever reason: also when its own list opens.
    void focusLostSignal();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};
