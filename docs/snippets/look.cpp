// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look.h"

#include <ApplicationFont>
#include <ContainerDialog>
#include <ContainerTitleBar>
#include <FocusRectangleProxyStyle>
#include <OxMessageBox>
#include <OxSpinBox>
#include <OxTransparentContainer>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

//! [button]
QString houseButton()
{
    return QStringLiteral("QPushButton { border: 1px solid #fd7800; color: white; font: bold; \n"
                          "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,"
                          " stop: 0 #5a5959, stop: 1 #060606);\n"
                          "border-radius: 6px; outline: 0;\n"
                          "min-height: 35px; }\n"
                          "QPushButton:pressed { background-color: #fd7800; color: white; }\n");
}
//! [button]

void prepareLook()
{
    //! [style]
    QApplication::setStyle(new FocusRectangleProxyStyle(QStringLiteral("Fusion")));
    QApplication::setFont(ApplicationFont::getWidgetFont());
    //! [style]
}

QLabel* createHeading(const QString& text, QWidget* parent)
{
    //! [font]
    auto* heading = new QLabel(text, parent);
    heading->setFont(ApplicationFont::getWidgetFontLarge(true)); // bold
    //! [font]
    return heading;
}

//! [dialog]
void GridPage::editSpacing()
{
    auto* label = new QLabel(tr("Spacing in millimetres", "Label of a field."));
    auto* spacing = new OxSpinBox;
    spacing->setRange(1, 100);
    spacing->setValue(m_spacing);
    spacing->setMinimumHeight(37);
    label->setBuddy(spacing);
    auto* done = new QPushButton(tr("Done", "Button that ends a dialog."));
    done->setStyleSheet(houseButton());
    done->setFixedWidth(140);

    auto* form = new QVBoxLayout;
    form->setContentsMargins(10, 10, 10, 10);
    form->addWidget(label);
    form->addWidget(spacing);
    form->addWidget(done, 0, Qt::AlignRight);

    ContainerDialog dialog;
    dialog.setHeaderLabelText(tr("GRID", "Title of the dialog for the grid."));
    dialog.setContainedWidget(form); // which the dialog owns from now on
    connect(done, &QPushButton::clicked, &dialog, &QDialog::accept);
    if (dialog.exec() == QDialog::Accepted) {
        m_spacing = spacing->value();
    }
}
//! [dialog]

//! [question]
void GridPage::deleteLayer()
{
    const auto answer = OxMessageBox::question(this, tr("DELETE", "Title of a question."),
                                               tr("Delete the layer?", "Question."),
                                               QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer == QMessageBox::Yes) {
        Q_EMIT layerDeleted();
    }
}
//! [question]

//! [panelsource]
LayerPanel::LayerPanel(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("LayerPanel"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(
        QStringLiteral("#LayerPanel { background-color: #f2f2f2; border: 1px solid #fd7800; }"));
    setFixedSize(360, 300);

    auto* titleBar = new ContainerTitleBar(this, tr("LAYERS", "Title of a panel."));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(titleBar);
    layout->addStretch();
    connect(titleBar, &ContainerTitleBar::closeButtonClicked, this, &LayerPanel::closeSignal);
}

void GridPage::showLayers()
{
    auto* container = new OxTransparentContainer(nullptr, Qt::FramelessWindowHint);
    container->setAttribute(Qt::WA_DeleteOnClose);
    container->setWindowModality(Qt::ApplicationModal); // what is dimmed takes no touches
    container->setCenterWindow(new LayerPanel);
    container->show();
}
//! [panelsource]
