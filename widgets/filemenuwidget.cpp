// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filemenuwidget.h"

#include "look/sheets.h"

#include <QVBoxLayout>

FileMenuWidget::FileMenuWidget(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("FileMenuWidget"));
    m_layout = new QVBoxLayout;
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    setLayout(m_layout);
    setStyleSheet(Look::framedPanel(QStringLiteral("#FileMenuWidget")));
}

void FileMenuWidget::addMenuItem(QWidget* item)
{
    m_layout->addWidget(item, 1, Qt::AlignCenter);
}

void FileMenuWidget::focusOutEvent(QFocusEvent* event)
{
    QFrame::focusOutEvent(event);
    Q_EMIT focusLost();
}

#include "moc_filemenuwidget.cpp"
