// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QList>
#include <QModelIndex>
#include <QWidget>

class DragScrollListView;
class QLabel;
class QPushButton;
class QStandardItem;
class QStandardItemModel;

/// \name Orders of indexes by their rows, for std::sort()
/// @{
/// Whether `first` stands above `second`.
UTILITYWIDGETS_EXPORT bool ascendingQModelIndexRowCompare(const QModelIndex& first,
                                                          const QModelIndex& second);
/// Whether `first` stands below `second`.
UTILITYWIDGETS_EXPORT bool descendingQModelIndexRowCompare(const QModelIndex& first,
                                                           const QModelIndex& second);
/// @}

/*!
 * \brief Two lists side by side: a person picks items by moving them from the left to the right.
 *
 * Use it where several of many items are to be chosen and the choice must stay in sight; for one
 * item a DragScrollListView alone does. MultiItemSelectionDialog is the same as a dialog.
 *
 * Each item carries an integer, its id, under the role Qt::UserRole + 1. The widget answers with
 * the ids of the right list in the order in which they stand there:
 *
 * \code
 * QList<QStandardItem*> layers;
 * for (const Layer& layer : document.layers()) {
 *     auto* item = new QStandardItem(layer.name());
 *     item->setData(layer.id(), Qt::UserRole + 1);
 *     layers.append(item);
 * }
 * auto* picker = new MultiItemSelectionWidget(this);
 * picker->setAvailableItems(layers);
 * picker->setSelectedItems(document.printedLayerIds());
 * connect(picker, &MultiItemSelectionWidget::selectedItemsChanged, this, &Panel::printLayers);
 * \endcode
 *
 * Both lists are sorted by text unless setManualOrdering() leaves the order of the right one to
 * the person. The widget owns every item it is given and deletes it at the latest with itself. An
 * item may be given once, and must be neither null nor in a model.
 *
 * Any number of items moves in one step, in time proportional to the lengths of the two lists and
 * to what sorting them takes.
 *
 * Everything goes through the virtual functions below, also what the widget does by itself: the
 * button ">>", for example, ends in onAddButtonClicked(). A subclass changes one step by overriding
 * that one.
 */
class UTILITYWIDGETS_EXPORT MultiItemSelectionWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int selectionLimit READ getSelectionLimit WRITE setSelectionLimit)
    Q_PROPERTY(bool manualOrdering READ isManualOrdering WRITE setManualOrdering)

public:
    explicit MultiItemSelectionWidget(QWidget* parent = nullptr);

    /// How many items a person may select; below 1, and so at first: any number.
    int getSelectionLimit() const;
    /*!
     * Applies from the next tap on: whatever would exceed `limit` is refused as a whole, with a
     * message. setSelectedItems() does not ask for it, and items selected already stay.
     */
    void setSelectionLimit(int limit);

    /*!
     * Whether the person orders the selected items, with two more buttons, instead of the widget
     * sorting both lists; off at first. The present order is not changed.
     */
    void setManualOrdering(bool manual);
    bool isManualOrdering() const;

    /// \name The two lists
    /// Owned by the widget, as are their models. For their look and for their selection: change
    /// the items by this class only.
    /// @{
    DragScrollListView* getAvailableListView() const;
    DragScrollListView* getSelectedListView() const;
    /// @}

    // The virtual functions stand in one fixed order, so that the layout of the virtual table
    // stays what subclasses were compiled with.

public Q_SLOTS:
    /*!
     * Deletes all items of both lists and shows `items` on the left, sorted by text. Emits nothing.
     * An empty list, though, leaves the left list as it is and only empties the right one.
     */
    virtual void setAvailableItems(QList<QStandardItem*> items);
    /*!
     * Makes the items with these ids the selected ones, in the order of the left list, whatever the
     * selection limit. Emits nothing. When there are not as many of them as `ids`, a line in the
     * log says so, and those that were found are selected.
     */
    virtual void setSelectedItems(QList<int> ids);

public:
    /// The ids of the selected items from the first to the last.
    virtual QList<int> getSelectedItemIds();

public Q_SLOTS:
    /// Appends `item` to the left list, without sorting it. Emits nothing.
    virtual void addAvailableItem(QStandardItem* item);

private Q_SLOTS:
    virtual void onAddButtonClicked();
    virtual void onAddAllButtonClicked();
    virtual void onRemoveButtonClicked();
    virtual void onRemoveAllButtonClicked();
    virtual void onUpButtonClicked();
    virtual void onDownButtonClicked();

protected:
    void changeEvent(QEvent* event) override;
    /// Appends each of `items` to `model` as a row of its own. Nothing happens if `model` is null.
    virtual void addItemsToModel(QList<QStandardItem*> items, QStandardItemModel* model);
    /// Deletes the items of `model` and adds `items`. Nothing happens if `items` is empty or
    /// `model` null.
    virtual void setItemsForModel(QList<QStandardItem*> items, QStandardItemModel* model);
    /*!
     * Takes the rows of `indexes` out of `from` and appends their items to `to`, in the order of
     * `indexes`. Nothing happens if a model is null; indexes that are not of the top level of
     * `from` are left out, and so is a row's second index.
     */
    virtual void moveItemsFromModelToModel(QList<QModelIndex> indexes, QStandardItemModel* from,
                                           QStandardItemModel* to);
    /// Exchanges the selected item in `row` with the one above it when `up`, else below it. Nothing
    /// happens if one of the two does not exist.
    virtual void moveItem(int row, bool up);

Q_SIGNALS:
    /*!
     * A person moved items to the right or to the left; `ids` is getSelectedItemIds(). Also emitted
     * when nothing was marked and so nothing moved. Not emitted when the selection limit refuses
     * them, when the person changes the order, and by no function of this class.
     */
    void selectedItemsChanged(const QList<int>& ids);

private:
    void retranslate();
    void createButtons();
    void createLists();
    void createLayout();
    void connectButtons();
    void sortUnlessManual(QStandardItemModel* model) const;
    void moveMarkedItems(bool up);

    QLabel* m_availableLabel = nullptr;
    QLabel* m_selectedLabel = nullptr;
    DragScrollListView* m_availableView = nullptr;
    DragScrollListView* m_selectedView = nullptr;
    QPushButton* m_addButton = nullptr;
    QPushButton* m_removeButton = nullptr;
    QPushButton* m_addAllButton = nullptr;
    QPushButton* m_removeAllButton = nullptr;
    QStandardItemModel* m_availableModel = nullptr;
    QStandardItemModel* m_selectedModel = nullptr;
    QPushButton* m_upButton = nullptr;
    QPushButton* m_downButton = nullptr;
    int m_selectionLimit = 0;
    bool m_manualOrdering = false;
};
