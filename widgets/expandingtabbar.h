// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QTabBar>

/*!
 * \brief A tab bar whose tabs share its whole width in equal parts and can carry a colour swatch.
 *
 * Where tabs are as wide as their texts, use QTabBar.
 *
 * \code
 * auto* bar = new ExpandingTabBar(this);
 * bar->setIconSize(QSize(28, 28)); // tabs high enough for a finger
 * bar->addTab(tr("Pen"));
 * bar->setTabColorRect(bar->addTab(tr("Fill")), QStringLiteral("#fd7800"));
 * \endcode
 *
 * Only the current tab takes one of the pixels that do not divide evenly: with n tabs, up to n - 2
 * pixels at the end of the bar stay empty. Icon and text are centred together; a text too long for
 * its tab is cut off at both ends unless setElideMode() says otherwise, and an "&" in it is drawn
 * as it is. Horizontal shapes only.
 */
class UTILITYWIDGETS_EXPORT ExpandingTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit ExpandingTabBar(QWidget* parent = nullptr);

    /// Depends on the bar's current width; with no tabs it is as wide as the bar.
    QSize tabSizeHint(int index) const override;

    /*!
     * Makes a swatch of the bar's iconSize() the icon of the tab at `index`: a square filled with
     * `color` and framed in black.
     *
     * `color` is what QColor::setNamedColor() accepts, or "transparent" for a chequered square. An
     * empty text removes the icon; so does one that is no colour. A later setIconSize() does not
     * redraw the swatch. An `index` out of range is ignored.
     */
    void setTabColorRect(int index, const QString& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintTab(QPainter* painter, int index);
};
