// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtitlebar.h"

#include "look/palette.h"
#include "look/styledwidgetpainting.h"
#include "look/titlebarclosebutton.h"
#include "sharedconstants.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>

OxTitleBar::OxTitleBar(QWidget* parent, const QString& iconPath, const QString& title)
    : QWidget(parent)
    , m_iconLabel(new QLabel)
    , m_titleLabel(new QLabel(title))
    , m_closeButton(Look::createTitleBarCloseButton(CloseButtonSize))
{
    setObjectName(QStringLiteral("TitleBarWidget"));
    setStyleSheet(barStyle());

    m_iconLabel->setFixedSize(29, 28);
    m_iconLabel->setAlignment(Qt::AlignCenter);
    setIconPath(iconPath);

    auto* layout = new QHBoxLayout;
    layout->setContentsMargins(7, 0, 7, 0);
    layout->addWidget(m_iconLabel, 0, Qt::AlignLeft | Qt::AlignVCenter);
    layout->addWidget(m_titleLabel, 0, Qt::AlignLeft | Qt::AlignVCenter);
    layout->addSpacing(185);
    layout->addWidget(m_closeButton, 0, Qt::AlignRight | Qt::AlignVCenter);
    setLayout(layout);
    setFixedHeight(40);

    connect(m_closeButton, &QPushButton::clicked, this, &OxTitleBar::closeButtonClicked);
}

void OxTitleBar::setIconPath(const QString& iconPath)
{
    m_iconLabel->setPixmap(QPixmap(iconPath));
}

void OxTitleBar::setTitle(const QString& title)
{
    m_titleLabel->setText(title);
}

QString OxTitleBar::barStyle()
{
    return QStringLiteral("OxTitleBar { background-color: " LOOK_TITLE_CHARCOAL
                          "; border: 1px solid " LOOK_ACCENT_ORANGE "; }\n"
                          "QLabel { font-size: 20px; color: white; font-weight: bold; }\n");
}

void OxTitleBar::paintEvent(QPaintEvent* /*event*/)
{
    Look::paintStyledWidget(this);
}

#include "moc_oxtitlebar.cpp"
