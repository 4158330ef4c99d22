// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QFont>

/*!
 * \brief The four font sizes that every widget of an application draws its text with.
 *
 * Each function returns the family of the application font (QApplication::font()) in one of four
 * sizes. Use these instead of a literal size, so that a device with another screen changes one
 * table and not every widget:
 *
 * \code
 * label->setFont(ApplicationFont::getWidgetFontLarge(true)); // large and bold
 * \endcode
 *
 * A device that must choose the fonts themselves builds the library with its own class of this
 * name (see the CMake option UTILITYWIDGETS_APPLICATION_FONT).
 *
 * GUI thread only.
 */
class UTILITYWIDGETS_EXPORT ApplicationFont
{
public:
    /// Sizes in points, all greater than zero.
    struct Sizes
    {
        int tiny = 8;
        int small = 10;
        int normal = 12;
        int large = 14;
    };

    /// \name Fonts
    /// In the size of that name in the table, and plain unless `bold`, whatever size and weight the
    /// application font itself has. Copies: a later setSizes() does not reach them.
    /// @{
    static QFont getWidgetFont(bool bold = false);
    static QFont getWidgetFontLarge(bool bold = false);
    static QFont getWidgetFontSmall(bool bold = false);
    static QFont getWidgetFontTiny(bool bold = false);
    /// @}

    /// The table that the four functions read.
    static Sizes sizes();

    /// Replaces the table. Widgets that already exist keep the fonts they were given, so call it
    /// before the first widget is made. A size that is not greater than zero keeps its old value.
    static void setSizes(const Sizes& sizes);
};
