// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

/*!
 * \brief What a panel implements to be shown in front of a dimmed screen.
 *
 * A panel derives from QWidget, or a class derived from it, and from this one, and declares the
 * signal `closeSignal()`, which it emits when it wants to be closed. See OxTransparentContainer.
 *
 * \code
 * class ColorPanel : public QWidget, public IOxTransparentWidget
 * {
 *     Q_OBJECT
 *
 * Q_SIGNALS:
 *     void closeSignal();
 * };
 * \endcode
 */
class UTILITYWIDGETS_EXPORT IOxTransparentWidget
{
public:
    virtual ~IOxTransparentWidget();
};
