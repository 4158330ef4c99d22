// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QObject>

/*!
 * \brief Keeps the Return and Enter keys from the widget that it watches.
 *
 * Use it on a field inside a dialog whose default button shall not be triggered from there: the
 * press reaches neither the field nor the dialog. So the field does not report it either, such as
 * QLineEdit::returnPressed().
 *
 * \code
 * searchField->installEventFilter(new IgnoreEnterEventHandler(searchField));
 * \endcode
 */
class UTILITYWIDGETS_EXPORT IgnoreEnterEventHandler : public QObject
{
    Q_OBJECT

public:
    explicit IgnoreEnterEventHandler(QObject* parent = nullptr);

    /// True, which swallows the event, for the press of Return or Enter with whatever modifiers,
    /// auto-repeated ones included. The release passes.
    bool eventFilter(QObject* watched, QEvent* event) override;
};
