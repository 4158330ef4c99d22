// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtitlebar.h"

#include "look/icons.h"
#include "look/palette.h"
#include "look/styledwidgetpainting.h"
#include "look/titlebarclosebutton.h"
#include "look/titlelabel.h"
#include "sharedconstants.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QWidgetItem>

namespace {

/// A layout cell that never gets wider than its widget. A box layout otherwise gives an aligned
/// widget its share of the spare width, and in a wide bar the title would drift away from the icon.
class SnugItem : public QWidgetItem
{
public:
    using QWidgetItem::QWidgetItem;

    QSize maximumSize() const override
    {
        return { sizeHint().width(), QWidgetItem::maximumSize().height() };
    }
};

} // namespace

OxTitleBar::OxTitleBar(QWidget* parent, const QString& iconPath, const QString& title)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("TitleBarWidget"));
    setStyleSheet(barStyle());

    // Children that are born under a sheet are styled once; those that move there, twice.
    m_iconLabel = new QLabel(this);
    m_iconLabel->setFixedSize(29, 28);
    m_iconLabel->setAlignment(Qt::AlignCenter);
    setIconPath(iconPath);
    m_titleLabel = new Look::TitleLabel(title, this);
    m_closeButton = Look::createTitleBarCloseButton(this, CloseButtonSize);

    auto* layout = new QHBoxLayout;
    layout->setContentsMargins(7, 0, 7, 0);
    auto* iconItem = new SnugItem(m_iconLabel);
    iconItem->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    layout->addItem(iconItem);
    layout->addWidget(m_titleLabel, 0, Qt::AlignLeft | Qt::AlignVCenter);
    layout->addSpacing(185);
    layout->addWidget(m_closeButton, 0, Qt::AlignRight | Qt::AlignVCenter);
    setLayout(layout);
    setFixedHeight(40);

    connect(m_closeButton, &QPushButton::clicked, this, &OxTitleBar::closeButtonClicked);
}

QString OxTitleBar::iconPath() const
{
    return m_iconPath;
}

void OxTitleBar::setIconPath(const QString& iconPath)
{
    m_iconPath = iconPath;
    m_iconLabel->setPixmap(Look::picture(iconPath, devicePixelRatioF()));
}

QString OxTitleBar::title() const
{
    return m_titleLabel->text();
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
