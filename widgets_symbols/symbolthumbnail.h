// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/*!
 * Draws an SVG document into a square of 50 x 50 pixels on white and returns it as PNG.
 *
 * The whole document is stretched to the square. What is no SVG document gives a white square; what
 * is dangerous in one is left out (see SvgGate). Any thread.
 */
QByteArray renderSymbolThumbnail(const QByteArray& svg);
