// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

namespace Look {

/*!
 * What stands for the colour `color` in a style sheet: `color` itself, letter for letter, or
 * "none" when it is no colour.
 *
 * Every colour that an application gives as text goes through here before it becomes part of a
 * sheet. Anything that is not exactly one colour could end the declaration that it is pasted into
 * and begin rules of its own, or make Qt drop the whole sheet; with "none" the declaration is
 * understood and sets no colour.
 *
 * Colours are what style sheets know: a hexadecimal colour, a colour name, "transparent", rgb(),
 * rgba(), hsv(), hsva(), hsl() and hsla() with all their numbers in range, and palette().
 */
QString sheetColor(const QString& color);

} // namespace Look
