// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QProxyStyle>

/*!
 * \brief A style without the dotted focus rectangle, which means nothing to a finger.
 *
 * Everything else looks as in the style that it stands before, also what some styles show in place
 * of the rectangle, such as the coloured outline of a push button in Fusion. Use it for the whole
 * application, which owns the style that it is given:
 *
 * \code
 * QApplication::setStyle(new FocusRectangleProxyStyle(QStringLiteral("Fusion")));
 * \endcode
 *
 * or for single widgets, which do not own theirs:
 *
 * \code
 * auto* style = new FocusRectangleProxyStyle(QStringLiteral("Fusion"));
 * style->setParent(list);
 * list->setStyle(style);
 * \endcode
 *
 * A proxy takes ownership of the base style that it is constructed over. Never give it a style that
 * something else uses, such as QApplication::style(): that style would die with the proxy.
 * Constructed without a base it makes one of its own, of the kind that the application starts with.
 */
class UTILITYWIDGETS_EXPORT FocusRectangleProxyStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    /// Draws nothing for PE_FrameFocusRect and leaves every other element to the base style.
    void drawPrimitive(QStyle::PrimitiveElement element, const QStyleOption* option,
                       QPainter* painter, const QWidget* widget = nullptr) const override;
};
