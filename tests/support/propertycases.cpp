// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/propertycases.h"

#include "colorlistcombo.h"
#include "colormenu.h"
#include "containerdialog.h"
#include "containertitlebar.h"
#include "dragscrolllistview.h"
#include "dragscrolllistwidget.h"
#include "dragscrolltableview.h"
#include "dragscrolltreeview.h"
#include "linelabel.h"
#include "lockwidget.h"
#include "multiitemselectionwidget.h"
#include "navigationbar.h"
#include "oxcollapsiblewidgetcontainer.h"
#include "oxiconitemdelegate.h"
#include "oxinfowidget.h"
#include "oxslider.h"
#include "oxtitlebar.h"
#include "sharedconstants.h"
#include "suffixdoublevalidator.h"
#include "suffixintvalidator.h"
#include "symboldatabasemodel.h"
#include "toolbox.h"
#include "toolboxcontainer.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QPushButton>
#include <QScrollBar>
#include <QStringList>

namespace {

template <typename Subject> std::unique_ptr<QObject> plain()
{
    return std::make_unique<Subject>();
}

std::unique_ptr<QObject> comboWithColors()
{
    const QStringList names { QStringLiteral("One"), QStringLiteral("Two") };
    const QStringList colors { QStringLiteral("red"), QStringLiteral("white") };
    return std::make_unique<ColorListCombo>(names, colors, colors);
}

std::unique_ptr<QObject> menuWithColors()
{
    auto menu = std::make_unique<ColorMenu>();
    menu->setColors({ QStringLiteral("red"), QStringLiteral("transparent") });
    return menu;
}

std::unique_ptr<QObject> initializedToolBox()
{
    auto box = std::make_unique<ToolBox>();
    box->initialize(QSize(200, 300), QPoint());
    return box;
}

/// Shown nowhere, with a column that is higher than itself.
std::unique_ptr<QObject> initializedContainer()
{
    auto container = std::make_unique<ToolBoxContainer>();
    container->initialize(QSize(200, 300), QPoint());
    container->getToolBox()->verticalScrollBar()->setRange(0, 500);
    container->setAboveButtonVisible(true);
    container->setBelowButtonVisible(true);
    return container;
}

std::unique_ptr<QObject> about()
{
    return std::make_unique<OxInfoWidget>(QStringLiteral("1.0"));
}

template <typename View> PropertyCase dragScrollView(const char* className)
{
    return { className, "horizontalMovementEnabled", false, true, plain<View> };
}

QList<PropertyCase> casesOfPanels()
{
    const QStringList words { QStringLiteral("red"), QStringLiteral("blue") };
    const QString text = QStringLiteral("Some text");
    return {
        { "LockWidget", "lockState", false, true, plain<LockWidget> },
        { "LockWidget", "readOnlyState", false, true, plain<LockWidget> },
        { "LockWidget", "userBackgroundState", false, true, plain<LockWidget> },
        { "MultiItemSelectionWidget", "selectionLimit", 0, 3, plain<MultiItemSelectionWidget> },
        { "MultiItemSelectionWidget", "manualOrdering", false, true,
          plain<MultiItemSelectionWidget> },
        { "NavigationBar", "barEnabled", true, false, plain<NavigationBar> },
        { "NavigationBar", "lastRecord", 0, 11, plain<NavigationBar> },
        { "NavigationBar", "currentRecord", 0, 4, plain<NavigationBar> },
        { "NavigationBar", "searchByTerms", QStringList(), words, plain<NavigationBar> },
        { "NavigationBar", "searchCompletions", QStringList(), words, plain<NavigationBar> },
        { "NavigationBar", "searchPlaceholder", QStringLiteral("Enter Search Parameters"), text,
          plain<NavigationBar> },
        { "OxCollapsibleWidgetContainer", "titleString", QString(), text,
          plain<OxCollapsibleWidgetContainer> },
        { "OxCollapsibleWidgetContainer", "expanded", false, true,
          plain<OxCollapsibleWidgetContainer> },
        { "OxInfoWidget", "versionNumber", QStringLiteral("1.0"), text, about },
        { "OxTitleBar", "iconPath", QString(), text, plain<OxTitleBar> },
        { "OxTitleBar", "title", QString(), text, plain<OxTitleBar> },
        { "ToolBox", "panelSpacing", 5, 12, initializedToolBox, false },
        { "ToolBoxContainer", "columnWidth", 0, 180, plain<ToolBoxContainer> },
        { "ToolBoxContainer", "panelSpacing", 5, 12, initializedContainer },
        { "ToolBoxContainer", "aboveButtonVisible", true, false, initializedContainer, false },
        { "ToolBoxContainer", "belowButtonVisible", true, false, initializedContainer, false },
        { "ToolBoxContainer", "toolBoxVerticalScrollValue", 0, 70, initializedContainer, false },
    };
}

} // namespace

QList<PropertyCase> propertyCases()
{
    const QStringList words { QStringLiteral("red"), QStringLiteral("blue") };
    const QString text = QStringLiteral("Some text");
    const QColor textColor = QApplication::palette().color(QPalette::Current, QPalette::Text);
    QList<PropertyCase> cases {
        { "ColorListCombo", "colorIndex", 0, 1, comboWithColors, false },
        { "ColorMenu", "maxColumnCount", 4, 7, plain<ColorMenu> },
        { "ColorMenu", "colors", QStringList(), words, plain<ColorMenu> },
        { "ColorMenu", "selectedColor", QString(), QStringLiteral("red"), menuWithColors },
        { "ColorMenu", "transparentColorVisible", false, true, menuWithColors },
        { "ContainerDialog", "headerLabelText", QString(), text, plain<ContainerDialog> },
        { "ContainerTitleBar", "title", QString(), text, plain<ContainerTitleBar> },
        dragScrollView<DragScrollListView>("DragScrollListView"),
        dragScrollView<DragScrollListWidget>("DragScrollListWidget"),
        dragScrollView<DragScrollTableView>("DragScrollTableView"),
        dragScrollView<DragScrollTreeView>("DragScrollTreeView"),
        { "LineLabel", "lineType", QVariant::fromValue(LineLabel::LineBoth),
          QVariant::fromValue(LineLabel::LineRight), plain<LineLabel> },
        { "LineLabel", "lineColor", textColor, QColor(1, 2, 3), plain<LineLabel> },
        { "OxIconItemDelegate", "fixedIconSize", IconButtonSize, QSize(20, 30),
          plain<OxIconItemDelegate> },
        { "OxSlider", "showText", QVariant::fromValue(OxSlider::NoText),
          QVariant::fromValue(OxSlider::AllText), plain<OxSlider> },
        { "SuffixDoubleValidator", "suffix", QString(), text, plain<SuffixDoubleValidator> },
        { "SuffixIntValidator", "suffix", QString(), text, plain<SuffixIntValidator> },
        { "SymbolDatabaseModel", "DatabasePath", QString(), text, plain<SymbolDatabaseModel> },
    };
    return cases + casesOfPanels();
}
