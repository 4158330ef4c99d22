// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "oxcombobox.h"
#include "utilitywidgets_export.h"

/*!
 * \brief An editable combo box whose list opens by a tap on its text, not only on its arrow.
 *
 * Use it where a person either picks or types. Typed text never becomes an item, and nothing is
 * completed while typing. For a choice among items alone, a plain OxComboBox does.
 *
 * \code
 * auto* zoom = new ClickableComboBox(this);
 * zoom->addItems({QStringLiteral("50 %"), QStringLiteral("100 %")});
 * connect(zoom, &QComboBox::textActivated, this, &Page::setZoom);
 * \endcode
 *
 * A tap on the text opens the list with the press, so the finger lifts over an open list, which
 * would close it again. The first request to hide that follows such a tap is therefore ignored, and
 * the next one hides. The box calls for the keyboard twice when it gains the focus, because the
 * field inside it is an OxLineEdit.
 */
class UTILITYWIDGETS_EXPORT ClickableComboBox : public OxComboBox
{
    Q_OBJECT

public:
    explicit ClickableComboBox(QWidget* parent = nullptr);

    /// Opens the list. A tap on the text calls this, so that an override sees it as well.
    void showPopup() override;
    /// Hides the list, unless this is the first request since a tap on the text.
    void hidePopup() override;

private Q_SLOTS:
    void lineEditMousePressEvent();

private:
    /// From a tap on the text until the next request to hide.
    bool m_popupOpenedFromLineEdit = false;
};
