// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "linelabel.h"
#include "lockwidget.h"
#include "oxcollapsiblewidgetcontainer.h"
#include "oxlineedit.h"
#include "stage.h"
#include "toolbox.h"
#include "toolboxcontainer.h"

#include <QVBoxLayout>

namespace Gallery {

namespace {

constexpr QSize ToolBoxSize(220, 200); // three of them fit

/// A panel as settings have them: a head and some fields.
QWidget* createPanel(const QString& title, int fields)
{
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->addWidget(new LineLabel(title, panel));
    for (int i = 1; i <= fields; ++i) {
        auto* field = new OxLineEdit(QStringLiteral("Field %1").arg(i), panel);
        field->setAccessibleName(field->text());
        layout->addWidget(field);
    }
    return panel;
}

void showToolBoxContainer(Stage& stage)
{
    //! [ToolBoxContainer]
    auto* tools = new ToolBoxContainer;
    tools->initialize(QSize(220, 200), QPoint(0, 0));
    tools->addPropertiesWidget(createPanel(QStringLiteral("Position"), 2));
    tools->addPropertiesWidget(createPanel(QStringLiteral("Size"), 3));
    tools->addPropertiesWidget(new LockWidget(false, tools));
    //! [ToolBoxContainer]
    tools->setFixedHeight(ToolBoxSize.height());
    stage.add(QStringLiteral("Too high: drag, or tap an arrow"), tools);

    auto* fits = new ToolBoxContainer;
    fits->initialize(ToolBoxSize, QPoint());
    fits->addPropertiesWidget(createPanel(QStringLiteral("Position"), 1));
    fits->insertSpacerItem();
    fits->setFixedHeight(ToolBoxSize.height());
    stage.add(QStringLiteral("All fits: no arrows"), fits);

    auto* disabled = new ToolBoxContainer;
    disabled->initialize(ToolBoxSize, QPoint());
    disabled->addPropertiesWidget(createPanel(longText(), 5));
    disabled->setFixedHeight(ToolBoxSize.height());
    disabled->setEnabled(false);
    stage.add(QStringLiteral("Disabled, long text"), disabled);
}

void showToolBox(Stage& stage)
{
    //! [ToolBox]
    auto* box = new ToolBox;
    box->initialize(QSize(220, 200), QPoint(0, 0));
    box->setWidgetResizable(true);
    // The column is as wide as the box: bars would cover a part of it.
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->addPropertiesWidget(createPanel(QStringLiteral("Position"), 2));
    box->addPropertiesWidget(createPanel(QStringLiteral("Size"), 3));
    //! [ToolBox]
    box->setFixedHeight(ToolBoxSize.height());
    stage.add(QStringLiteral("Drag a panel"), box);
}

void showOxCollapsibleWidgetContainer(Stage& stage)
{
    //! [OxCollapsibleWidgetContainer]
    auto* section = new OxCollapsibleWidgetContainer(createPanel(QStringLiteral("Position"), 2),
                                                     QStringLiteral("Placement"));
    //! [OxCollapsibleWidgetContainer]
    stage.add(QStringLiteral("New: open, button unchecked"), section);

    auto* folded = new OxCollapsibleWidgetContainer(nullptr, QStringLiteral("Placement"));
    folded->setContainedWidget(createPanel(QStringLiteral("Position"), 2));
    stage.add(QStringLiteral("Folded"), folded);

    auto* disabled = new OxCollapsibleWidgetContainer(nullptr, longText().left(20));
    disabled->setEnabled(false);
    stage.add(QStringLiteral("Disabled, long text"), disabled);
}

} // namespace

Family panelsFamily()
{
    return {
        QStringLiteral("Panels"),
        QStringLiteral(":/gallery/pages/panels.cpp"),
        {
            {
                QStringLiteral("ToolBoxContainer"),
                QStringLiteral("A column of panels between two arrow buttons that scroll it."),
                showToolBoxContainer,
                {},
            },
            {
                QStringLiteral("ToolBox"),
                QStringLiteral("A column of panels that scrolls when a finger drags over it."),
                showToolBox,
                {},
            },
            {
                QStringLiteral("OxCollapsibleWidgetContainer"),
                QStringLiteral("A section of a settings panel that folds away under its title."),
                showOxCollapsibleWidgetContainer,
                {},
            },
        },
    };
}

} // namespace Gallery
