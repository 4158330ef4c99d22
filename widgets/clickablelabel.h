// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QLabel>

/*!
 * \brief A label that can be pressed.
 *
 * Use it for a picture or a text that reacts to the finger without looking like a button. Where the
 * release shall count, use a button.
 *
 * \code
 * auto* preview = new ClickableLabel(this);
 * preview->setPixmap(picture);
 * connect(preview, &ClickableLabel::clicked, this, &Page::openPreview);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT ClickableLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget* parent = nullptr, Qt::WindowFlags f = {});
    /// `text` is plain or rich, as in any QLabel. One whose links can be tapped reports those taps
    /// too.
    explicit ClickableLabel(const QString& text, QWidget* parent = nullptr, Qt::WindowFlags f = {});

Q_SIGNALS:
    /// The label was pressed, with any mouse button; a double tap counts twice. Emitted on the
    /// press, before the label itself and then its parent see it: a slot must not delete the label
    /// at once, deleteLater() is allowed.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
};
