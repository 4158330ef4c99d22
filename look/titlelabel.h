// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace Look {

/*!
 * The title in a title bar: a label that ends in an ellipsis where there is no room for its text.
 *
 * A plain label insists on its whole width, and a long title would push the bar's close button, and
 * with it the dialog's other buttons, off the screen.
 */
class TitleLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Look
