// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QWidget>

/*!
 * \brief A frameless black window of the size of the screen, at 30 % opacity: it dims what is
 * behind it.
 *
 * To show a panel in front of a dimmed screen use OxTransparentContainer, which makes, places and
 * deletes one. By itself:
 *
 * \code
 * OxTransparentOverlay overlay;
 * overlay.move(0, 60); // below the bar that stays bright
 * overlay.show();
 * \endcode
 *
 * It takes every touch that falls on it and does nothing with it.
 */
class UTILITYWIDGETS_EXPORT OxTransparentOverlay : public QWidget
{
    Q_OBJECT

public:
    /// `flags` are replaced by Qt::FramelessWindowHint. With a parent the overlay is therefore no
    /// window but a child, and as such opaque: only windows have an opacity.
    explicit OxTransparentOverlay(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
};
