// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "multiitemselectiondialog.h"

#include "look/housedialog.h"
#include "look/sheets.h"
#include "multiitemselectionwidget.h"
#include "sharedconstants.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

MultiItemSelectionDialog::MultiItemSelectionDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setObjectName(QStringLiteral("MultiItemSelectionDialog"));
    setWindowFlags(Qt::FramelessWindowHint);
    Look::prepareHouseDialog(this);
    // Without a window frame it would have no edge on a grey application.
    setStyleSheet(Look::framedPanel(QStringLiteral("#MultiItemSelectionDialog")));

    m_importButton = new QPushButton;
    m_okButton = new QPushButton;
    m_cancelButton = new QPushButton;
    retranslate();
    for (QPushButton* button : { m_importButton, m_okButton, m_cancelButton }) {
        button->setMinimumHeight(IconButtonSize.height()); // a finger's, whatever the style
    }
    m_selectionWidget = new MultiItemSelectionWidget;
    m_selectionWidget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    createLayout();
    m_importButton->hide();
    // Enter is OK's: without a default button the dialog would choose its first one.
    m_okButton->setDefault(true);

    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

void MultiItemSelectionDialog::showAddButton(bool show)
{
    m_importButton->setVisible(show);
}

MultiItemSelectionWidget* MultiItemSelectionDialog::getSelectionWidget()
{
    return m_selectionWidget;
}

void MultiItemSelectionDialog::addAvailableItem(QStandardItem* item)
{
    m_selectionWidget->addAvailableItem(item);
}

void MultiItemSelectionDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void MultiItemSelectionDialog::retranslate()
{
    m_importButton->setText(tr("Import", "Button text for importing a file."));
    m_okButton->setText(tr("OK", "Button text for accepting the selection dialog."));
    m_cancelButton->setText(tr("Cancel", "Button text for canceling selection dialog."));
}

void MultiItemSelectionDialog::createLayout()
{
    auto* answers = new QHBoxLayout;
    answers->addWidget(m_okButton, 0, Qt::AlignRight);
    answers->addWidget(m_cancelButton, 0, Qt::AlignRight);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_importButton, 0, Qt::AlignLeft);
    buttons->addItem(new QSpacerItem(0, 0, QSizePolicy::MinimumExpanding, QSizePolicy::Minimum));
    buttons->addLayout(answers);

    auto* layout = new QVBoxLayout;
    layout->addWidget(m_selectionWidget);
    layout->addLayout(buttons);
    setLayout(layout);
}

#include "moc_multiitemselectiondialog.cpp"
