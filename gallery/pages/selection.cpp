// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "dragscrolllistview.h"
#include "multiitemselectiondialog.h"
#include "multiitemselectionwidget.h"
#include "stage.h"

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
        },
    };
}

} // namespace Gallery
