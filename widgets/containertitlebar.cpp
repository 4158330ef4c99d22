// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "containertitlebar.h"

#include "look/palette.h"
#include "look/styledwidgetpainting.h"
#include "look/titlebarclosebutton.h"
#include "look/titlelabel.h"
#include "sharedconstants.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int TitlePointSize = 14;
/// Room for the close button and the beginning of a title, in pixels.
constexpr int MinimumWidth = 120;

} // namespace

ContainerTitleBar::ContainerTitleBar(QWidget* parent, const QString& title)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ContainerTitleBar"));
    setStyleSheet(QStringLiteral("ContainerTitleBar { background-color: " LOOK_TITLE_CHARCOAL
                                 "; border: 1px solid " LOOK_ACCENT_ORANGE "; }\n"
                                 "QLabel { font-size: %1pt; color: white; font-weight: bold; }")
                      .arg(TitlePointSize));

    // Children that are born under a sheet are styled once; those that move there, twice.
    m_titleLabel = new Look::TitleLabel(title, this);
    // The spacer gives its room up before the title is cut.
    m_titleLabel->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    m_closeButton = Look::createTitleBarCloseButton(this, CloseButtonSize);

    auto* layout = new QHBoxLayout;
    layout->setContentsMargins(10, 0, 10, 0);
    layout->addWidget(m_titleLabel, 0, Qt::AlignLeft | Qt::AlignVCenter);
    layout->addItem(new QSpacerItem(185, 30, QSizePolicy::Preferred, QSizePolicy::Preferred));
    layout->addWidget(m_closeButton, 0, Qt::AlignRight | Qt::AlignVCenter);
    setLayout(layout);
    setFixedHeight(46);
    // In place of the layout's, which holds the whole title and would make a dialog that wide.
    setMinimumWidth(MinimumWidth);

    connect(m_closeButton, &QPushButton::clicked, this, &ContainerTitleBar::closeButtonClicked);
}

QString ContainerTitleBar::title() const
{
    return m_titleLabel->text();
}

void ContainerTitleBar::setTitle(const QString& title)
{
    m_titleLabel->setText(title);
}

void ContainerTitleBar::hideCloseButton()
{
    m_closeButton->hide();
}

void ContainerTitleBar::paintEvent(QPaintEvent* /*event*/)
{
    Look::paintStyledWidget(this);
}

#include "moc_containertitlebar.cpp"
