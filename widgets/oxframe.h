// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QFrame>

/*!
 * \brief A frame that says when it is left.
 *
 * Use it for a panel that shall close or store something once the focus goes elsewhere. A frame
 * takes no focus by itself: give it a focus policy, or the focus. It expects no text and so, other
 * than the fields, calls for no keyboard. It has no object name until the application gives it one.
 *
 * \code
 * auto* panel = new OxFrame(this);
 * panel->setFocusPolicy(Qt::StrongFocus);
 * connect(panel, &OxFrame::focusLost, panel, &QWidget::hide);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT OxFrame : public QFrame
{
    Q_OBJECT

public:
    explicit OxFrame(QWidget* parent = nullptr, Qt::WindowFlags f = {});

Q_SIGNALS:
    /// The frame itself lost the focus, for whatever reason. It says nothing when a widget inside
    /// it loses the focus.
    void focusLost();

protected:
    void focusOutEvent(QFocusEvent* event) override;
};
