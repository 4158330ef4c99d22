// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "applicationfont.h"
#include "dragscrollbutton.h"
#include "dragscrollgroupbox.h"
#include "dragscrolllistview.h"
#include "dragscrolllistwidget.h"
#include "dragscrolltableview.h"
#include "dragscrolltreeview.h"
#include "look/images.h"
#include "stage.h"

#include <QHeaderView>
#include <QListWidget>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace Gallery {

namespace {

constexpr int Height = 150; // of each list: low enough for a drag to have somewhere to go
constexpr int ColumnWidth = 220; // of three columns
constexpr QSize RowSize(100, 35); // a finger's

QStringList layerNames(int count)
{
    QStringList names;
    for (int number = 1; number <= count; ++number) {
        names.append(QStringLiteral("Layer %1").arg(number));
    }
    names.insert(2, longText());
    return names;
}

QStandardItemModel* createLayers(QObject* parent)
{
    auto* model = new QStandardItemModel(parent);
    const QStringList names = layerNames(40);
    for (const QString& name : names) {
        auto* item = new QStandardItem(name);
        item->setSizeHint(QSize(600, RowSize.height()));
        model->appendRow(item);
    }
    return model;
}

QStandardItemModel* createTable(QObject* parent)
{
    constexpr int Size = 30;
    auto* model = new QStandardItemModel(Size, Size, parent);
    for (int row = 0; row < Size; ++row) {
        for (int column = 0; column < Size; ++column) {
            model->setItem(row, column,
                           new QStandardItem(QStringLiteral("%1 x %2").arg(row).arg(column)));
        }
    }
    return model;
}

QStandardItemModel* createTree(QObject* parent)
{
    auto* model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels({ QStringLiteral("Symbols") });
    for (const char* name : { "Arrows", "Gears", "Pipes", "Screws" }) {
        auto* category = new QStandardItem(QString::fromLatin1(name));
        for (int number = 1; number <= 8; ++number) {
            category->appendRow(new QStandardItem(
                QStringLiteral("%1 %2").arg(QString::fromLatin1(name)).arg(number)));
            category->child(number - 1)->setSizeHint(RowSize);
        }
        category->setSizeHint(RowSize);
        model->appendRow(category);
    }
    return model;
}

template <typename View> View* prepared(View* view)
{
    view->setFixedHeight(Height);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    return view;
}

template <typename Widget> Widget* disabled(Widget* widget)
{
    widget->setEnabled(false);
    return widget;
}

void showDragScrollListView(Stage& stage)
{
    //! [DragScrollListView]
    auto* list = new DragScrollListView;
    list->setModel(createLayers(list));
    list->setHorizontalMovementEnabled(true);
    // connect(list, &QListView::clicked, this, &Layers::show);
    //! [DragScrollListView]
    auto* other = new DragScrollListView;
    other->setModel(createLayers(other));
    stage.setColumns(2);
    stage.add(QStringLiteral("Both directions"), prepared(list));
    stage.add(QStringLiteral("Disabled"), disabled(prepared(other)));
}

void showDragScrollListWidget(Stage& stage)
{
    //! [DragScrollListWidget]
    auto* list = new DragScrollListWidget;
    list->addItems(layerNames(40));
    // connect(list, &QListWidget::itemClicked, this, &Layers::show);
    //! [DragScrollListWidget]
    for (int row = 0; row < list->count(); ++row) {
        list->item(row)->setCheckState(Qt::Unchecked);
        list->item(row)->setSizeHint(RowSize);
    }
    auto* other = new DragScrollListWidget;
    other->addItems(layerNames(40));
    for (int row = 0; row < other->count(); ++row) {
        other->item(row)->setSizeHint(RowSize);
    }
    stage.setColumns(2);
    stage.add(QStringLiteral("With check boxes"), prepared(list));
    stage.add(QStringLiteral("Disabled"), disabled(prepared(other)));
}

void showDragScrollTableView(Stage& stage)
{
    //! [DragScrollTableView]
    auto* table = new DragScrollTableView;
    table->setModel(createTable(table));
    table->setHorizontalMovementEnabled(true);
    table->setTabKeyNavigation(false); // Tab leaves it, arrows move in it
    //! [DragScrollTableView]
    auto* other = new DragScrollTableView;
    other->setModel(createTable(other));
    stage.setColumns(2);
    stage.add(QStringLiteral("Both directions"), prepared(table));
    stage.add(QStringLiteral("Disabled"), disabled(prepared(other)));
}

void showDragScrollTreeView(Stage& stage)
{
    //! [DragScrollTreeView]
    auto* tree = new DragScrollTreeView;
    tree->setModel(createTree(tree));
    // Presses fold nothing by themselves.
    QObject::connect(tree, &QTreeView::clicked, tree, &QTreeView::expand);
    //! [DragScrollTreeView]
    tree->expand(tree->model()->index(0, 0));
    auto* other = new DragScrollTreeView;
    other->setModel(createTree(other));
    stage.setColumns(2);
    stage.add(QStringLiteral("A tap unfolds"), prepared(tree));
    stage.add(QStringLiteral("Disabled"), disabled(prepared(other)));
}

void showDragScrollButton(Stage& stage)
{
    //! [DragScrollButton]
    auto* list = new DragScrollListWidget;
    for (int number = 1; number <= 20; ++number) {
        auto* item = new QListWidgetItem(list);
        auto* button = new DragScrollButton(QStringLiteral("Category %1").arg(number));
        item->setSizeHint(QSize(200, 35));
        list->setItemWidget(item, button);
    }
    //! [DragScrollButton]
    stage.add(QStringLiteral("In a list: tap or drag"), prepared(list));
    stage.add(QStringLiteral("Enabled"), new DragScrollButton(QStringLiteral("Arrows")));
    stage.add(QStringLiteral("Disabled"), disabled(new DragScrollButton(QStringLiteral("Arrows"))));
    for (const QString& text : { QStringLiteral("Arrows"), longText() }) {
        auto* fitted =
            new DragScrollButton(QIcon(QStringLiteral(LOOK_IMAGE_FAVORITE_FOLDER)), text);
        fitted->setFont(ApplicationFont::getWidgetFontLarge(true));
        fitted->setFixedSize(ColumnWidth, 48);
        DragScrollButton::fitButtonText(fitted, 8, 4);
        stage.add(QStringLiteral("fitButtonText"), fitted);
    }
}

void showDragScrollGroupBox(Stage& stage)
{
    //! [DragScrollGroupBox]
    auto* list = new DragScrollListWidget;
    for (const char* name : { "Arrows", "Gears", "Pipes", "Screws" }) {
        auto* box = new DragScrollGroupBox(QString::fromLatin1(name));
        auto* layout = new QVBoxLayout(box);
        layout->addWidget(new DragScrollButton(QStringLiteral("All of them")));
        auto* item = new QListWidgetItem(list);
        item->setSizeHint(QSize(200, 90));
        list->setItemWidget(item, box);
    }
    //! [DragScrollGroupBox]
    stage.add(QStringLiteral("In a list: drag it anywhere"), prepared(list));
    stage.setColumns(3);
    for (const QString& title : { QStringLiteral("Arrows"), longText() }) {
        auto* box = new DragScrollGroupBox(title);
        box->setCheckable(true);
        box->setFixedSize(ColumnWidth, 50);
        stage.add(QStringLiteral("Taps do not toggle"), box);
    }
    auto* other = disabled(new DragScrollGroupBox(QStringLiteral("Arrows")));
    other->setCheckable(true);
    other->setFixedSize(ColumnWidth, 50);
    stage.add(QStringLiteral("Disabled"), other);
}

} // namespace

Family scrollingFamily()
{
    return {
        QStringLiteral("Touch scrolling"),
        QStringLiteral(":/gallery/pages/scrolling.cpp"),
        {
            {
                QStringLiteral("DragScrollListView"),
                QStringLiteral("A list view that is scrolled by dragging a finger over it."),
                showDragScrollListView,
                {},
            },
            {
                QStringLiteral("DragScrollListWidget"),
                QStringLiteral("A list widget that is scrolled by dragging a finger over it."),
                showDragScrollListWidget,
                {},
            },
            {
                QStringLiteral("DragScrollTableView"),
                QStringLiteral("A table view that is scrolled by dragging a finger over it."),
                showDragScrollTableView,
                {},
            },
            {
                QStringLiteral("DragScrollTreeView"),
                QStringLiteral("A tree view that is scrolled by dragging a finger over it."),
                showDragScrollTreeView,
                {},
            },
            {
                QStringLiteral("DragScrollButton"),
                QStringLiteral("A push button that a finger can drag away."),
                showDragScrollButton,
                {},
            },
            {
                QStringLiteral("DragScrollGroupBox"),
                QStringLiteral("A group box that passes every touch on to its parent."),
                showDragScrollGroupBox,
                {},
            },
        },
    };
}

} // namespace Gallery
