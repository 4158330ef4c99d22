// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QProxyStyle>

/*!
 * \brief A style that breaks the text of a push button into several lines where it is too long.
 *
 * Use it on buttons of fixed width whose translated texts may not fit; it breaks between words
 * only. A size hint still asks for the whole text in one line, so the button needs a width and a
 * height from its layout or the application. It works with a style sheet on the button, whichever
 * of the two is set first.
 *
 * \code
 * auto* style = new OxPushButtonStyleProxy(QStyleFactory::create(QStringLiteral("Fusion")));
 * style->setParent(button);
 * button->setStyle(style);
 * \endcode
 *
 * The proxy takes ownership of the base style that it is constructed over. Never give it a style
 * that something else uses, such as QApplication::style(): that style would die with the proxy. A
 * widget, on the other hand, takes no ownership of the style that it is given: give the proxy a
 * parent, or another owner that keeps it for as long as its widgets live. It may be shared by any
 * number of buttons.
 */
class UTILITYWIDGETS_EXPORT OxPushButtonStyleProxy : public QProxyStyle
{
public:
    /// Without a base `style` the proxy makes one of its own, of the kind that the application
    /// starts with.
    explicit OxPushButtonStyleProxy(QStyle* style = nullptr);

    /// Adds Qt::TextWordWrap to `flags`, for whatever widget asks: it is meant for buttons only.
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;
};
