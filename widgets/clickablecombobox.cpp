// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "clickablecombobox.h"

#include "oxlineedit.h"

#include <QStyledItemDelegate>

ClickableComboBox::ClickableComboBox(QWidget* parent)
    : OxComboBox(parent)
{
    setObjectName(QStringLiteral("ClickableComboBox"));

    // Makes the box editable. Before the delegate, which makes the popup: that is then made for an
    // editable box once, and not made for another first.
    auto* lineEdit = new OxLineEdit(this);
    setLineEdit(lineEdit);
    connect(lineEdit, &OxLineEdit::mousePressedSignal, this,
            &ClickableComboBox::lineEditMousePressEvent);
    // After setLineEdit(), which installs one.
    setCompleter(nullptr);
    setInsertPolicy(QComboBox::NoInsert);

    // A combo box paints its rows with a delegate of its own that follows the style; with this one
    // the rows obey the style sheet's item rules. The view takes no ownership of it, and a later
    // setItemDelegate() leaves it alone: the box is given it afterwards.
    auto* delegate = new QStyledItemDelegate;
    setItemDelegate(delegate);
    delegate->setParent(this);
}

void ClickableComboBox::showPopup()
{
    OxComboBox::showPopup();
}

void ClickableComboBox::hidePopup()
{
    if (!m_popupOpenedFromLineEdit) {
        OxComboBox::hidePopup();
    }
    m_popupOpenedFromLineEdit = false;
}

void ClickableComboBox::lineEditMousePressEvent()
{
    m_popupOpenedFromLineEdit = true;
    showPopup();
}

#include "moc_clickablecombobox.cpp"
