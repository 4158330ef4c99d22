// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "containertitlebar.h"
#include "oxtitlebar.h"
#include "stage.h"

namespace Gallery {

namespace {

void showOxTitleBar(Stage& stage)
{
    //! [OxTitleBar]
    auto* bar = new OxTitleBar(nullptr, QStringLiteral(":/Navigation/NavigationIcons/exit.png"),
                               QStringLiteral("Measure"));
    // connect(bar, &OxTitleBar::closeButtonClicked, this, &QDialog::reject);
    //! [OxTitleBar]
    stage.addWide(QStringLiteral("With an icon"), bar);
    stage.addWide(QStringLiteral("Without an icon"),
                  new OxTitleBar(nullptr, QString(), QStringLiteral("Measure")));
    stage.addWide(QStringLiteral("Long text"), new OxTitleBar(nullptr, QString(), longText()));
}

void showContainerTitleBar(Stage& stage)
{
    //! [ContainerTitleBar]
    auto* bar = new ContainerTitleBar(nullptr, QStringLiteral("Layers"));
    // connect(bar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::hide);
    //! [ContainerTitleBar]
    stage.addWide(QStringLiteral("With a close button"), bar);
    auto* closed = new ContainerTitleBar(nullptr, QStringLiteral("Layers"));
    closed->hideCloseButton();
    stage.addWide(QStringLiteral("Without"), closed);
    stage.addWide(QStringLiteral("Long text"), new ContainerTitleBar(nullptr, longText()));
}

} // namespace

Family lookFamily()
{
    return {
        QStringLiteral("Look"),
        QStringLiteral(":/gallery/pages/look.cpp"),
        {
            {
                QStringLiteral("OxTitleBar"),
                QStringLiteral("The head of a small dialog: icon, title, close button."),
                showOxTitleBar,
                {},
            },
            {
                QStringLiteral("ContainerTitleBar"),
                QStringLiteral("The head of a large dialog or a panel: title and close button."),
                showContainerTitleBar,
                {},
            },
        },
    };
}

} // namespace Gallery
