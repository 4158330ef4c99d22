// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QFrame>

/*!
 * \brief A frame that can be pressed.
 *
 * Use it to make an area with widgets of its own react to the finger as a whole. For something that
 * looks like a button and reacts to the release, use a button. It has no object name until the
 * application gives it one.
 *
 * \code
 * auto* swatch = new ClickableFrame(this);
 * connect(swatch, &ClickableFrame::clicked, this, &ColourPanel::chooseColour);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT ClickableFrame : public QFrame
{
    Q_OBJECT

public:
    explicit ClickableFrame(QWidget* parent = nullptr, Qt::WindowFlags f = {});

Q_SIGNALS:
    /// The frame was pressed, with any mouse button; a double tap counts twice. Emitted on the
    /// press, before the frame itself and then its parent see it: a slot must not delete the frame
    /// at once, deleteLater() is allowed.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
};
