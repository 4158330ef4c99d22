// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "containerdialog.h"

#include "containertitlebar.h"
#include "look/housedialog.h"
#include "look/sheets.h"

#include <QGridLayout>

ContainerDialog::ContainerDialog()
{
    setObjectName(QStringLiteral("ContainerDialog"));
    setWindowFlags(Qt::FramelessWindowHint);
    Look::prepareHouseDialog(this);
    // Of the class, not of the object: an application's dialogs inside this one have the frame too.
    setStyleSheet(Look::framedPanel(QStringLiteral("QDialog")));

    m_titleBar = new ContainerTitleBar(this);

    auto* layout = new QGridLayout;
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_titleBar, 0, 0, 1, 2);
    layout->addWidget(&m_containedArea, 1, 0, 1, 2);
    setLayout(layout);

    connect(m_titleBar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::hide);
}

void ContainerDialog::setContainedWidget(QLayout* layout)
{
    m_containedArea.setLayout(layout);
}

QString ContainerDialog::headerLabelText() const
{
    return m_titleBar->title();
}

void ContainerDialog::setHeaderLabelText(const QString& text)
{
    m_titleBar->setTitle(text);
}

#include "moc_containerdialog.cpp"
