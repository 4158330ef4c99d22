// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "form.h"

//! [field]
#include <OxLineEdit> // or "oxlineedit.h"

//! [field]
Form::Form(QWidget* parent)
    : QWidget(parent)
{
    //! [field]
    auto* name = new OxLineEdit(this);
    connect(name, &OxLineEdit::focusLost, this, &Form::storeName);
    //! [field]
}
