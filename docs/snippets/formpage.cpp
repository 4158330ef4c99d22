// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "formpage.h"

//! [formsource]
#include "ui_formpage.h"

FormPage::FormPage(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::FormPage>())
{
    m_ui->setupUi(this);
    connect(m_ui->nameEdit, &OxLineEdit::focusLost, this, &FormPage::storeName);
}

FormPage::~FormPage() = default;

void FormPage::storeName()
{
    m_name = m_ui->nameEdit->text();
}
//! [formsource]
