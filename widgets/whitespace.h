// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

class QRegularExpression;
class QString;

/*!
 * \brief Tells a text that a person can see from one that is empty or blank.
 *
 * \code
 * if (WhiteSpace::isWhiteSpace(name->text())) {
 *     OxMessageBox::warning(this, tr("ERROR", "Title"), tr("Please enter a name.", "Warning"));
 * }
 * \endcode
 */
class UTILITYWIDGETS_EXPORT WhiteSpace
{
public:
    /// True when `text` is empty, null included, or holds nothing but white space: blanks, tabs,
    /// line breaks and the spaces of other scripts. May be called from any thread.
    static bool isWhiteSpace(const QString& text);

private:
    static const QRegularExpression m_whiteSpace;
};
