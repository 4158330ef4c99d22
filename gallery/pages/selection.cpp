// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "dragscrolllistview.h"
#include "multiitemselectiondialog.h"
#include "multiitemselectionwidget.h"
#include "navigationbar.h"
#include "sharedconstants.h"
#include "stage.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>

namespace Gallery {

namespace {

constexpr int IdRole = Qt::UserRole + 1;
constexpr QSize RowSize(100, 35); // a finger's

QList<QStandardItem*> createLayers(const QStringList& names)
{
    QList<QStandardItem*> layers;
    for (const QString& name : names) {
        auto* layer = new QStandardItem(name);
        layer->setData(int(layers.size()), IdRole);
        layer->setSizeHint(RowSize);
        layers.append(layer);
    }
    return layers;
}

QStringList layerNames()
{
    QStringList names { QStringLiteral("Background"), QStringLiteral("Contour"),
                        QStringLiteral("Cut marks"),  QStringLiteral("Drawing"),
                        QStringLiteral("Guides"),     QStringLiteral("Photograph"),
                        QStringLiteral("Shadows"),    QStringLiteral("Title"),
                        QStringLiteral("White ink") };
    names.append(longText());
    return names;
}

void showMultiItemSelectionWidget(Stage& stage)
{
    //! [MultiItemSelectionWidget]
    auto* layers = new MultiItemSelectionWidget;
    // Each item has its id under Qt::UserRole + 1.
    layers->setAvailableItems(createLayers(layerNames()));
    layers->setSelectedItems({ 3, 7 });
    layers->setSelectionLimit(4);
    // connect(layers, &MultiItemSelectionWidget::selectedItemsChanged,
    //         this, &Panel::print);
    //! [MultiItemSelectionWidget]
    stage.addWide(QStringLiteral("Sorted, at most 4"), layers);

    auto* ordered = new MultiItemSelectionWidget;
    ordered->setManualOrdering(true);
    ordered->setAvailableItems(createLayers(layerNames()));
    ordered->setSelectedItems({ 1, 2, 5, 6 });
    ordered->getSelectedListView()->setCurrentIndex(
        ordered->getSelectedListView()->model()->index(2, 0));
    stage.addWide(QStringLiteral("Ordered by the person"), ordered);

    auto* disabled = new MultiItemSelectionWidget;
    disabled->setAvailableItems(createLayers(layerNames()));
    disabled->setSelectedItems({ 0 });
    disabled->setEnabled(false);
    stage.addWide(QStringLiteral("Disabled"), disabled);
}

void showDialog()
{
    //! [MultiItemSelectionDialog]
    MultiItemSelectionDialog dialog; // without a parent: it has no window frame
    MultiItemSelectionWidget* lists = dialog.getSelectionWidget();
    lists->setAvailableItems(createLayers(layerNames()));
    lists->setSelectedItems({ 3 });
    if (dialog.exec() == QDialog::Accepted) {
        // print(lists->getSelectedItemIds());
    }
    //! [MultiItemSelectionDialog]
}

void showDialogWithImport()
{
    MultiItemSelectionDialog dialog;
    dialog.getSelectionWidget()->setManualOrdering(true);
    dialog.getSelectionWidget()->setAvailableItems(createLayers(layerNames()));
    dialog.getSelectionWidget()->setSelectedItems({ 1, 2, 5 });
    dialog.showAddButton(true);
    const auto buttons = dialog.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    QObject::connect(buttons.constFirst(), &QPushButton::clicked, &dialog, [&dialog] {
        dialog.addAvailableItem(createLayers({ QStringLiteral("Imported") }).constFirst());
    });
    dialog.exec();
}

NavigationBar* createBar()
{
    //! [NavigationBar]
    auto* bar = new NavigationBar;
    bar->setSearchByTerms({ QStringLiteral("Name"), QStringLiteral("City") });
    bar->setSearchCompletions({ QStringLiteral("Ada"), QStringLiteral("Adele") });
    bar->setRecordNumberSlot(4); // the last index
    bar->setCurrentRecordSlot(2); // the third record
    // connect(bar, &NavigationBar::nextLabelSignal, this, &Browser::showNext);
    //! [NavigationBar]
    return bar;
}

/// Lets the arrows and the field lead from record to record.
void browse(NavigationBar* bar)
{
    constexpr int Count = 5;
    bar->setProperty("index", 2);
    const auto show = [bar](int index) {
        bar->setProperty("index", qBound(0, index, Count - 1));
        bar->setCurrentRecordSlot(bar->property("index").toInt());
    };
    QObject::connect(bar, &NavigationBar::nextLabelSignal, bar,
                     [bar, show] { show(bar->property("index").toInt() + 1); });
    QObject::connect(bar, &NavigationBar::previousLabelSignal, bar,
                     [bar, show] { show(bar->property("index").toInt() - 1); });
    QObject::connect(bar, &NavigationBar::navigateEditSignal, bar,
                     [show](const QString& number) { show(number.toInt() - 1); });
}

/// Shows `bar` at the foot of the gallery's window, as wide as the screen, until it is closed.
void showAtTheFoot(NavigationBar* bar)
{
    QWidget* window = QApplication::activeWindow();
    // Nothing is active after a window that had no parent.
    const QRect area = window != nullptr ? window->geometry() : QRect(QPoint(), ScreenSize);
    QDialog dialog(window, Qt::FramelessWindowHint);
    dialog.setWindowTitle(QStringLiteral("NavigationBar")); // for screen readers
    auto* layout = new QHBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(bar);
    dialog.setFixedWidth(area.width());
    dialog.move(area.left(), area.bottom() + 1 - dialog.sizeHint().height());
    browse(bar);
    QObject::connect(bar, &NavigationBar::closeSignal, &dialog, &QDialog::reject);
    dialog.exec();
}

void showWholeBar()
{
    showAtTheFoot(createBar());
}

void showFirstRecord()
{
    NavigationBar* bar = createBar();
    bar->setCurrentRecordSlot(0);
    showAtTheFoot(bar);
}

void showDisabledBar()
{
    NavigationBar* bar = createBar();
    bar->setBarEnabled(false);
    showAtTheFoot(bar);
}

void showBarWithAddon()
{
    NavigationBar* bar = createBar();
    auto* addon = new QHBoxLayout;
    auto* print = new QPushButton(QStringLiteral("Print"));
    print->setFixedSize(80, 35);
    print->setAutoDefault(false);
    addon->addWidget(print);
    bar->installAddon(addon);
    bar->setSearchPlaceholder(longText());
    showAtTheFoot(bar);
}

void showNavigationBar(Stage& stage)
{
    auto* bar = new NavigationBar;
    auto* pages = new QHBoxLayout;
    auto* label = new QLabel(QStringLiteral("Page 1 of 3"));
    label->setStyleSheet(QStringLiteral("color: white"));
    pages->addWidget(label);
    bar->installNavigationReplacement(pages);
    stage.addWide(QStringLiteral("Search and records replaced"), bar);

    auto* bare = new NavigationBar;
    bare->hideZoomButtons();
    bare->installNavigationReplacement(new QHBoxLayout);
    stage.addWide(QStringLiteral("Close alone"), bare);
}

} // namespace

Family selectionFamily()
{
    return {
        QStringLiteral("Selection"),
        QStringLiteral(":/gallery/pages/selection.cpp"),
        {
            {
                QStringLiteral("MultiItemSelectionWidget"),
                QStringLiteral("Two lists: a person picks by moving items to the right."),
                showMultiItemSelectionWidget,
                {},
            },
            {
                QStringLiteral("MultiItemSelectionDialog"),
                QStringLiteral("The two lists with OK and Cancel."),
                {},
                {
                    { QStringLiteral("plain"), QStringLiteral("Dialog"), showDialog },
                    { QStringLiteral("import"), QStringLiteral("With an import, ordered"),
                      showDialogWithImport },
                },
            },
            {
                QStringLiteral("NavigationBar"),
                QStringLiteral("Searches and pages through records, zooms and closes."),
                showNavigationBar,
                {
                    { QStringLiteral("whole"), QStringLiteral("Whole bar"), showWholeBar },
                    { QStringLiteral("first"), QStringLiteral("First record"), showFirstRecord },
                    { QStringLiteral("disabled"), QStringLiteral("Disabled"), showDisabledBar },
                    { QStringLiteral("addon"), QStringLiteral("With an add-on"), showBarWithAddon },
                },
            },
        },
    };
}

} // namespace Gallery
