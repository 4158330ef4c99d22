// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxcollapsiblewidgetcontainer.h"

#include "applicationfont.h"
#include "dragscrollbutton.h"
#include "linelabel.h"
#include "look/images.h"
#include "sharedconstants.h"

#include <QEvent>
#include <QGridLayout>

namespace {

QString collapseButtonSheet()
{
    return QStringLiteral(
        "QPushButton { border-image: url(" LOOK_IMAGE_COLLAPSE "); } "
        "QPushButton::pressed { border-image: url(" LOOK_IMAGE_COLLAPSE_PRESSED "); } "
        "QPushButton::checked { border-image: url(" LOOK_IMAGE_EXPAND "); } "
        "QPushButton::checked::pressed { border-image: url(" LOOK_IMAGE_EXPAND_PRESSED "); }");
}

} // namespace

OxCollapsibleWidgetContainer::OxCollapsibleWidgetContainer(QWidget* parent)
    : OxCollapsibleWidgetContainer(nullptr, QString(), parent)
{ }

OxCollapsibleWidgetContainer::OxCollapsibleWidgetContainer(QWidget* containedWidget,
                                                           const QString& title, QWidget* parent)
    : QWidget(parent)
    , m_containedWidget(containedWidget)
{
    setObjectName(QStringLiteral("OxCollapsibleWidgetContainer"));

    m_titleLabel = new LineLabel(title, this);
    m_titleLabel->setFont(ApplicationFont::getWidgetFont(true));
    m_collapseButton = new DragScrollButton(this);
    m_collapseButton->setStyleSheet(collapseButtonSheet());
    m_collapseButton->setCheckable(true);
    m_collapseButton->setFixedSize(IconButtonSize);
    retranslate();
    createLayout();

    connect(m_collapseButton, &QPushButton::toggled, this,
            &OxCollapsibleWidgetContainer::hideShowContainedWidget);
}

QWidget* OxCollapsibleWidgetContainer::getContainedWidget() const
{
    return m_containedWidget;
}

QString OxCollapsibleWidgetContainer::titleString() const
{
    return m_titleLabel->text();
}

void OxCollapsibleWidgetContainer::setTitleString(const QString& title)
{
    m_titleLabel->setText(title);
}

bool OxCollapsibleWidgetContainer::isExpanded() const
{
    return m_collapseButton->isChecked();
}

void OxCollapsibleWidgetContainer::setExpanded(bool expanded)
{
    m_collapseButton->setChecked(expanded);
}

void OxCollapsibleWidgetContainer::setContainedWidget(QWidget* widget)
{
    if (m_containedWidget != nullptr) {
        m_layout->removeWidget(m_containedWidget);
    }
    m_containedWidget = widget;
    addContainedWidget();
    if (m_containedWidget != nullptr && !m_collapseButton->isChecked()) {
        m_containedWidget->hide();
    }
}

void OxCollapsibleWidgetContainer::hideShowContainedWidget()
{
    if (m_containedWidget != nullptr) {
        m_containedWidget->setVisible(m_collapseButton->isChecked());
    }
    Q_EMIT collapseButtonPressed(m_containedWidget);
}

void OxCollapsibleWidgetContainer::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void OxCollapsibleWidgetContainer::retranslate()
{
    m_collapseButton->setAccessibleName(
        tr("Show or hide", "Accessible name of the button that folds a section."));
}

void OxCollapsibleWidgetContainer::createLayout()
{
    m_layout = new QGridLayout;
    m_layout->setSpacing(2);
    m_layout->setContentsMargins(11, 0, 11, 0);
    m_layout->addWidget(m_collapseButton, 0, 0);
    m_layout->addWidget(m_titleLabel, 0, 1);
    addContainedWidget();
    setLayout(m_layout);
}

void OxCollapsibleWidgetContainer::addContainedWidget()
{
    if (m_containedWidget != nullptr) {
        m_layout->addWidget(m_containedWidget, 1, 0, 1, 2, Qt::AlignCenter);
    }
}

#include "moc_oxcollapsiblewidgetcontainer.cpp"
