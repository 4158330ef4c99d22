// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "multiitemselectionwidget.h"

#include "dragscrolllistview.h"
#include "logger.h"
#include "oxmessagebox.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>
#include <typeinfo>
#include <utility>
#include <vector>

namespace {

using Items = QList<QStandardItem*>;
using Rows = std::vector<int>;

constexpr int IdRole = Qt::UserRole + 1;
constexpr int ButtonSize = 45; // pixels, square

// --- any number of rows in one step -------------------------------------------------------------
//
// Taking and inserting rows one at a time costs time proportional to the length of the list for
// each of them: 10,000 rows take many seconds. What follows has the same result in one step each.

/// Takes the items out of `count` rows from `first` on, row by row, and leaves the rows empty. To
/// be called with the model's signals blocked, and followed by the removal of the rows.
Items emptyRows(QStandardItemModel* model, int first, int count)
{
    QStandardItem* const root = model->invisibleRootItem();
    const int columns = model->columnCount();
    Items items;
    items.reserve(qsizetype(count) * columns);
    QStandardItem holder;
    for (int row = first; row < first + count; ++row) {
        for (int column = 0; column < columns; ++column) {
            QStandardItem* const item = root->child(row, column);
            // An item that leaves a model searches that model for its own row, starting where it
            // was before the list was sorted. Under a parent that is in no model there is nothing
            // to search.
            if (item != nullptr && !item->hasChildren()) {
                holder.appendRows({ item });
            }
            root->takeChild(row, column);
            holder.takeRow(0);
            items.append(item);
        }
    }
    return items;
}

/// Takes adjacent rows out of `model`; returns their items row by row, null for one without.
Items takeAdjacentRows(QStandardItemModel* model, int first, int count)
{
    Items items;
    const auto take = [&] {
        const QSignalBlocker blocker(model);
        items = emptyRows(model, first, count);
    };
    if (model->signalsBlocked()) {
        take();
        model->removeRows(first, count);
        return items;
    }
    // Connected last: all others who hear of the removal still find the items in their rows.
    const auto connection =
        QObject::connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, model, take);
    model->removeRows(first, count);
    QObject::disconnect(connection);
    return items;
}

/// A model that can bring its rows into any order.
class ListModel : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    /// Whether this is a plain list: one column, an item in each row, none with children.
    bool isPlainList() const
    {
        for (int row = 0; row < rowCount(); ++row) {
            const QStandardItem* rowItem = item(row);
            if (rowItem == nullptr || rowItem->hasChildren()) {
                return false;
            }
        }
        return columnCount() == 1;
    }

    /// Brings the row `order[i]` to row i, for each i. For plain lists only.
    void reorder(const Rows& order)
    {
        const int count = rowCount();
        Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
        {
            const QSignalBlocker blocker(this);
            const Items items = emptyRows(this, 0, count);
            Items ordered;
            ordered.reserve(count);
            Rows newRows(order.size());
            for (const int row : order) {
                newRows[size_t(row)] = int(ordered.size());
                ordered.append(items.at(row));
            }
            // Below the old rows at first: when those go, all persistent indexes move up with the
            // new ones.
            invisibleRootItem()->appendRows(ordered);
            const QModelIndexList before = persistentIndexList();
            QModelIndexList after;
            after.reserve(before.size());
            for (const QModelIndex& old : before) {
                after.append(index(count + newRows[size_t(old.row())], old.column()));
            }
            changePersistentIndexList(before, after);
            removeRows(0, count);
        }
        Q_EMIT layoutChanged({}, VerticalSortHint);
    }

    /// Moves each of `rows`, none of which is the first or last one it would move beyond, by one.
    /// They come in the direction of the move. For plain lists only.
    void moveByOne(const Rows& rows, bool up)
    {
        Rows order(static_cast<size_t>(rowCount()));
        std::iota(order.begin(), order.end(), 0);
        for (const int row : rows) {
            std::swap(order[size_t(row)], order[size_t(up ? row - 1 : row + 1)]);
        }
        reorder(order);
    }
};

bool areAdjacent(const Rows& rows)
{
    return rows.back() - rows.front() + 1 == int(rows.size());
}

/*!
 * Makes the ascending `rows` adjacent; the others keep their order. Returns where the first of them
 * stands then: between the others that are above and those that are below the `current` row.
 * When a current row is removed, the row above it becomes current, or else the one below it; so this
 * place makes that the same one as when rows go one by one.
 */
int gather(ListModel* model, const Rows& rows, int current)
{
    const int count = model->rowCount();
    const int place = current >= 0 ? current : rows.front();
    Rows above;
    Rows below;
    auto gathered = rows.begin();
    for (int row = 0; row < count; ++row) {
        if (gathered != rows.end() && *gathered == row) {
            ++gathered;
        } else {
            (row < place ? above : below).push_back(row);
        }
    }
    const int first = int(above.size());
    Rows order = std::move(above);
    order.insert(order.end(), rows.begin(), rows.end());
    order.insert(order.end(), below.begin(), below.end());
    model->reorder(order);
    return first;
}

/// Takes the ascending `rows`, at least one, out of `model`; returns their items row by row.
Items takeRows(QStandardItemModel* model, const Rows& rows, int current)
{
    auto* list = dynamic_cast<ListModel*>(model);
    if (!areAdjacent(rows) && list != nullptr && list->isPlainList()) {
        return takeAdjacentRows(list, gather(list, rows, current), int(rows.size()));
    }
    // From the last on, so that the numbers of the rows before stay right.
    std::vector<Items> parts;
    for (auto end = rows.end(); end != rows.begin();) {
        auto begin = end - 1;
        while (begin != rows.begin() && *(begin - 1) == *begin - 1) {
            --begin;
        }
        parts.push_back(takeAdjacentRows(model, *begin, int(end - begin)));
        end = begin;
    }
    Items items;
    std::for_each(parts.rbegin(), parts.rend(), [&](const Items& part) { items += part; });
    return items;
}

/// Whether `items` can be appended in one step, which takes them without a look at where they are.
bool areFreeAndDifferent(const Items& items)
{
    const bool free = std::all_of(items.begin(), items.end(), [](const QStandardItem* item) {
        return item != nullptr && item->model() == nullptr && item->parent() == nullptr
            && !item->hasChildren();
    });
    Items sorted = items;
    std::sort(sorted.begin(), sorted.end());
    return free && std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end();
}

/// Whether sorting `model` would change nothing, as when all items of a sorted list have been moved
/// to an empty one. Asking costs a fraction of sorting.
bool isSorted(const QStandardItemModel& model)
{
    const QStandardItem* previous = nullptr;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QStandardItem* item = model.item(row);
        if (item == nullptr || item->hasChildren() || (previous != nullptr && *item < *previous)) {
            return false;
        }
        previous = item;
    }
    return true;
}

QItemSelection selectionOfRows(const QStandardItemModel& model, const Rows& ascending)
{
    QItemSelection selection;
    for (auto begin = ascending.begin(); begin != ascending.end();) {
        auto last = begin;
        while (last + 1 != ascending.end() && *(last + 1) == *last + 1) {
            ++last;
        }
        selection.select(model.index(*begin, 0), model.index(*last, 0));
        begin = last + 1;
    }
    return selection;
}

QPushButton* createButton(const QString& text)
{
    auto* button = new QPushButton(text);
    button->setFixedSize(ButtonSize, ButtonSize);
    button->setAutoDefault(false); // in a dialog, Enter must not move anything
    return button;
}

DragScrollListView* createView(QStandardItemModel* model)
{
    auto* view = new DragScrollListView;
    view->setModel(model);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return view;
}

} // namespace

bool ascendingQModelIndexRowCompare(const QModelIndex& first, const QModelIndex& second)
{
    return first.row() < second.row();
}

bool descendingQModelIndexRowCompare(const QModelIndex& first, const QModelIndex& second)
{
    return first.row() > second.row();
}

MultiItemSelectionWidget::MultiItemSelectionWidget(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("MultiItemSelectionWidget"));
    setStyleSheet(QStringLiteral("QPushButton { font-size: 20px; font-weight: bold; "
                                 "text-align: center center; } \n"));
    m_availableLabel = new QLabel;
    m_selectedLabel = new QLabel;
    createButtons();
    createLists();
    retranslate();
    createLayout();
    connectButtons();
}

int MultiItemSelectionWidget::getSelectionLimit() const
{
    return m_selectionLimit;
}

void MultiItemSelectionWidget::setSelectionLimit(int limit)
{
    m_selectionLimit = limit;
}

bool MultiItemSelectionWidget::isManualOrdering() const
{
    return m_manualOrdering;
}

void MultiItemSelectionWidget::setManualOrdering(bool manual)
{
    m_manualOrdering = manual;
    m_upButton->setVisible(manual);
    m_downButton->setVisible(manual);
}

DragScrollListView* MultiItemSelectionWidget::getAvailableListView() const
{
    return m_availableView;
}

DragScrollListView* MultiItemSelectionWidget::getSelectedListView() const
{
    return m_selectedView;
}

void MultiItemSelectionWidget::setAvailableItems(QList<QStandardItem*> items)
{
    m_selectedModel->clear();
    setItemsForModel(std::move(items), m_availableModel);
    sortUnlessManual(m_availableModel);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is part of the interface
void MultiItemSelectionWidget::setSelectedItems(QList<int> ids)
{
    m_selectedView->selectAll();
    moveItemsFromModelToModel(m_selectedView->selectionModel()->selectedIndexes(), m_selectedModel,
                              m_availableModel);

    const QSet<int> wanted(ids.cbegin(), ids.cend());
    QModelIndexList found;
    for (int row = 0; row < m_availableModel->rowCount(); ++row) {
        const QStandardItem* item = m_availableModel->item(row);
        if (item != nullptr && wanted.contains(item->data(IdRole).toInt())) {
            found.append(m_availableModel->index(row, 0));
        }
    }
    if (found.size() != ids.size()) {
        // Fixed, as those who filter the log know it.
        CuteMessageLogger(loggerInstance(), CuteMessageLogger::Warning, "multiitemselectionwidget",
                          241,
                          "virtual void MultiItemSelectionWidget::setSelectedItems(QList<int>)")
            .write("Indexes Found: %d Ids to Select: %d", int(found.size()), int(ids.size()));
    }
    moveItemsFromModelToModel(found, m_availableModel, m_selectedModel);
    sortUnlessManual(m_availableModel);
    sortUnlessManual(m_selectedModel);
}

QList<int> MultiItemSelectionWidget::getSelectedItemIds()
{
    QList<int> ids;
    ids.reserve(m_selectedModel->rowCount());
    for (int row = 0; row < m_selectedModel->rowCount(); ++row) {
        if (const QStandardItem* item = m_selectedModel->item(row)) {
            ids.append(item->data(IdRole).toInt());
        }
    }
    return ids;
}

void MultiItemSelectionWidget::addAvailableItem(QStandardItem* item)
{
    addItemsToModel({ item }, m_availableModel);
}

void MultiItemSelectionWidget::onAddButtonClicked()
{
    const QModelIndexList marked = m_availableView->selectionModel()->selectedIndexes();
    if (m_selectionLimit >= 1 && m_selectedModel->rowCount() + marked.size() > m_selectionLimit) {
        OxMessageBox::warning(
            nullptr, tr("ERROR", "The title of an error dialog window."),
            tr("Selection Limit: %1.", "Label showing the limit for items selected.")
                .arg(m_selectionLimit),
            QMessageBox::Ok, QMessageBox::NoButton);
        return;
    }
    moveItemsFromModelToModel(marked, m_availableModel, m_selectedModel);
    sortUnlessManual(m_selectedModel);
    Q_EMIT selectedItemsChanged(getSelectedItemIds());
}

void MultiItemSelectionWidget::onAddAllButtonClicked()
{
    m_availableView->selectAll();
    onAddButtonClicked();
}

void MultiItemSelectionWidget::onRemoveButtonClicked()
{
    moveItemsFromModelToModel(m_selectedView->selectionModel()->selectedIndexes(), m_selectedModel,
                              m_availableModel);
    sortUnlessManual(m_availableModel);
    Q_EMIT selectedItemsChanged(getSelectedItemIds());
}

void MultiItemSelectionWidget::onRemoveAllButtonClicked()
{
    m_selectedView->selectAll();
    onRemoveButtonClicked();
}

void MultiItemSelectionWidget::onUpButtonClicked()
{
    moveMarkedItems(true);
}

void MultiItemSelectionWidget::onDownButtonClicked()
{
    moveMarkedItems(false);
}

void MultiItemSelectionWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void MultiItemSelectionWidget::addItemsToModel(QList<QStandardItem*> items,
                                               QStandardItemModel* model)
{
    if (model == nullptr || items.isEmpty()) {
        return;
    }
    if (areFreeAndDifferent(items)) {
        if (model->columnCount() == 0) {
            model->setColumnCount(1);
        }
        model->invisibleRootItem()->appendRows(items);
        return;
    }
    for (QStandardItem* item : std::as_const(items)) {
        model->appendRow(item);
    }
}

void MultiItemSelectionWidget::setItemsForModel(QList<QStandardItem*> items,
                                                QStandardItemModel* model)
{
    if (model == nullptr || items.isEmpty()) {
        return;
    }
    model->clear();
    addItemsToModel(std::move(items), model);
}

void MultiItemSelectionWidget::moveItemsFromModelToModel(QList<QModelIndex> indexes,
                                                         QStandardItemModel* from,
                                                         QStandardItemModel* to)
{
    if (from == nullptr || to == nullptr || indexes.isEmpty()) {
        return;
    }
    Rows reported;
    std::vector<bool> isReported(size_t(from->rowCount()));
    for (const QModelIndex& index : std::as_const(indexes)) {
        if (index.isValid() && index.model() == from && !index.parent().isValid()
            && !isReported[size_t(index.row())]) {
            isReported[size_t(index.row())] = true;
            reported.push_back(index.row());
        }
    }
    if (reported.empty()) {
        return;
    }
    Rows rows = reported;
    std::sort(rows.begin(), rows.end());
    const auto columns = size_t(from->columnCount());
    const QListView* view = from == m_availableModel ? m_availableView
        : from == m_selectedModel                    ? m_selectedView
                                                     : nullptr;
    const int current = view != nullptr ? view->currentIndex().row() : -1;
    std::vector<size_t> positions(isReported.size()); // of a row's items among those taken
    for (size_t i = 0; i < rows.size(); ++i) {
        positions[size_t(rows[i])] = i * columns;
    }
    const Items taken = takeRows(from, rows, current);
    Items ordered;
    ordered.reserve(taken.size());
    for (const int row : reported) {
        ordered += taken.mid(qsizetype(positions[size_t(row)]), qsizetype(columns));
    }
    addItemsToModel(ordered, to);
}

void MultiItemSelectionWidget::moveItem(int row, bool up)
{
    const int target = up ? row - 1 : row + 1;
    if (m_selectedModel->item(row) == nullptr || m_selectedModel->item(target) == nullptr) {
        return;
    }
    m_selectedModel->insertRow(target, m_selectedModel->takeRow(row));
}

void MultiItemSelectionWidget::retranslate()
{
    m_availableLabel->setText(tr("Available:", "Label for showing number of available items."));
    m_selectedLabel->setText(tr("Selected:", "Label for showing number of selected items."));
    m_addAllButton->setAccessibleName(
        tr("Add all", "Accessible name of the button that selects all items."));
    m_addButton->setAccessibleName(tr("Add", "Accessible name of the button that selects items."));
    m_removeAllButton->setAccessibleName(
        tr("Remove all", "Accessible name of the button that takes back all selected items."));
    m_removeButton->setAccessibleName(
        tr("Remove", "Accessible name of the button that takes back selected items."));
    m_upButton->setAccessibleName(tr("Up", "Accessible name of the button that moves items up."));
    m_downButton->setAccessibleName(
        tr("Down", "Accessible name of the button that moves items down."));
    m_availableView->setAccessibleName(
        tr("Available", "Accessible name of the list of available items."));
    m_selectedView->setAccessibleName(
        tr("Selected", "Accessible name of the list of selected items."));
}

void MultiItemSelectionWidget::createButtons()
{
    m_addAllButton = createButton(QStringLiteral(">>"));
    m_addButton = createButton(QStringLiteral(">"));
    m_removeAllButton = createButton(QStringLiteral("<<"));
    m_removeButton = createButton(QStringLiteral("<"));
    m_upButton = createButton(QStringLiteral("▲"));
    m_downButton = createButton(QStringLiteral("▼"));
    m_upButton->hide();
    m_downButton->hide();
}

void MultiItemSelectionWidget::createLists()
{
    m_availableModel = new ListModel(this);
    m_selectedModel = new ListModel(this);
    m_availableView = createView(m_availableModel);
    m_selectedView = createView(m_selectedModel);
}

void MultiItemSelectionWidget::createLayout()
{
    auto* buttons = new QVBoxLayout;
    buttons->setSizeConstraint(QLayout::SetFixedSize);
    for (QPushButton* button : { m_addButton, m_removeButton, m_addAllButton, m_removeAllButton,
                                 m_upButton, m_downButton }) {
        buttons->addWidget(button, 0, Qt::AlignCenter);
    }

    auto* grid = new QGridLayout;
    grid->addWidget(m_availableLabel, 0, 0);
    grid->addWidget(m_selectedLabel, 0, 2);
    grid->addWidget(m_availableView, 1, 0);
    grid->addLayout(buttons, 1, 1, Qt::AlignVCenter);
    grid->addWidget(m_selectedView, 1, 2);
    setLayout(grid);
}

void MultiItemSelectionWidget::connectButtons()
{
    connect(m_addButton, &QPushButton::clicked, this,
            &MultiItemSelectionWidget::onAddButtonClicked);
    connect(m_addAllButton, &QPushButton::clicked, this,
            &MultiItemSelectionWidget::onAddAllButtonClicked);
    connect(m_removeButton, &QPushButton::clicked, this,
            &MultiItemSelectionWidget::onRemoveButtonClicked);
    connect(m_removeAllButton, &QPushButton::clicked, this,
            &MultiItemSelectionWidget::onRemoveAllButtonClicked);
    connect(m_upButton, &QPushButton::clicked, this, &MultiItemSelectionWidget::onUpButtonClicked);
    connect(m_downButton, &QPushButton::clicked, this,
            &MultiItemSelectionWidget::onDownButtonClicked);
}

void MultiItemSelectionWidget::sortUnlessManual(QStandardItemModel* model) const
{
    if (!m_manualOrdering && !isSorted(*model)) {
        model->sort(0, Qt::AscendingOrder);
    }
}

void MultiItemSelectionWidget::moveMarkedItems(bool up)
{
    QItemSelectionModel* const selection = m_selectedView->selectionModel();
    QModelIndexList marked = selection->selectedIndexes();
    if (marked.isEmpty()) {
        return;
    }
    // In the direction of the move, so that each finds the place next to it already free.
    std::sort(marked.begin(), marked.end(),
              up ? ascendingQModelIndexRowCompare : descendingQModelIndexRowCompare);
    const int end = up ? 0 : m_selectedModel->rowCount() - 1;
    if (marked.constFirst().row() == end) {
        return;
    }
    Items items;
    Rows rows;
    for (const QModelIndex& index : std::as_const(marked)) {
        items.append(m_selectedModel->item(index.row()));
        rows.push_back(index.row());
    }
    // Nothing is marked or current while the rows move: each time the current one goes, the whole
    // list would be laid out to show its neighbour.
    selection->clear();
    auto* list = static_cast<ListModel*>(m_selectedModel);
    // A subclass may have a moveItem() of its own, which must see each row move. Rows without items
    // are those of a model that the application has put into the view instead.
    if (rows.size() > 1 && typeid(*this) == typeid(MultiItemSelectionWidget)
        && !items.contains(nullptr) && list->isPlainList()) {
        list->moveByOne(rows, up);
    } else {
        for (size_t i = 0; i < rows.size(); ++i) {
            const QStandardItem* item = items.at(qsizetype(i));
            moveItem(item != nullptr ? item->row() : rows[i], up);
        }
    }
    rows.clear();
    for (const QStandardItem* item : std::as_const(items)) {
        if (item != nullptr) {
            rows.push_back(item->row());
        }
    }
    std::sort(rows.begin(), rows.end());
    selection->select(selectionOfRows(*m_selectedModel, rows),
                      QItemSelectionModel::Select | QItemSelectionModel::Current);
    // The first of them would otherwise leave the visible part of the list in a few taps.
    if (!rows.empty()) {
        m_selectedView->scrollTo(m_selectedModel->index(up ? rows.front() : rows.back(), 0));
    }
}

#include "moc_multiitemselectionwidget.cpp"
