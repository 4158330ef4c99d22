// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolsmenu.h"

#include "clickablecombobox.h"
#include "dragscrolllistview.h"
#include "look/icons.h"
#include "look/images.h"
#include "look/sheets.h"
#include "symboldatabasemodel.h"
#include "symbolitem.h"
#include "symbolslineedit.h"
#include "symbolview.h"

#include <QCompleter>
#include <QEvent>
#include <QIcon>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace {

constexpr int IdRole = Qt::UserRole + 1;
constexpr QSize GridSize(50, 50);
constexpr int ListWidth = 160; // pixels
constexpr int ListHeight = 210; // pixels
/// What a finger hits.
constexpr int SuggestionHeight = 35; // pixels

/// Milliseconds that each statement waits for another process that is writing the symbols: they are
/// read while the person waits.
constexpr int LockTimeout = 250;

/// The rows of suggestions, as high as those of a combo box.
class SuggestionDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, SuggestionHeight));
    }
};

/// Suggestions that scroll and are tapped like all lists of the house. A finger that goes down on
/// one does not select it, because the field shows what is selected here: that is for the arrow keys.
class SuggestionList : public DragScrollListView
{
protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override
    {
        return dynamic_cast<const QMouseEvent*>(event) != nullptr
            ? QItemSelectionModel::NoUpdate
            : DragScrollListView::selectionCommand(index, event);
    }
};

} // namespace

// Deliberately without a folder, unlike the browser's.
SymbolsMenu::SymbolsMenu(const QList<QString>& categoryNames, QWidget* parent)
    : SymbolsMenu(categoryNames, QStringLiteral("symbols.db"), parent)
{ }

SymbolsMenu::SymbolsMenu(const QList<QString>& categoryNames, const QString& libraryPath,
                         QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("SymbolsMenu"));
    m_itemModel = new QStandardItemModel(this);
    m_model = new SymbolDatabaseModel(this);
    m_model->setDatabasePath(libraryPath);
    m_model->setLockTimeout(LockTimeout);
    createSearchField();
    createCategoryBox(categoryNames);
    createSymbolList();
    retranslate();

    auto* layout = new QVBoxLayout;
    layout->addWidget(m_categoryBox);
    layout->addWidget(m_searchField);
    layout->addWidget(m_symbolList);
    setLayout(layout);
    m_categoryBox->setCurrentIndex(0);
    chooseCategory(0);

    connect(m_symbolList, &QListView::clicked, this, &SymbolsMenu::symbolSelection);
    connect(m_searchField, &QLineEdit::returnPressed, this, &SymbolsMenu::searchUpdate);
    // Not currentTextChanged(): of an editable combo box, that one comes while typing, too.
    connect(m_categoryBox, &QComboBox::currentIndexChanged, this, &SymbolsMenu::chooseCategory);
}

SymbolsMenu::SymbolsMenu(QWidget* parent)
    : SymbolsMenu(QList<QString>(), parent)
{ }

void SymbolsMenu::addSymbol(QStandardItem* item)
{
    item->setEditable(false);
    m_itemModel->appendRow(item);
}

void SymbolsMenu::symbolSelection(const QModelIndex& index)
{
    const QByteArray symbolData = m_model->getDataFromSymbolId(index.data(IdRole).toInt());
    if (!symbolData.isEmpty()) {
        Q_EMIT symbolSignal(symbolData);
    }
}

void SymbolsMenu::searchUpdate()
{
    categoryUpdate(m_categoryBox->currentText());
}

void SymbolsMenu::categoryUpdate(const QString& category)
{
    m_itemModel->clear();
    if (hasLibrary()) {
        appendSymbols(*m_itemModel,
                      m_model->getItemsBySearch(category, m_searchField->text(), true));
    }
}

bool SymbolsMenu::hasLibrary() const
{
    return !m_model->databasePath().isEmpty();
}

void SymbolsMenu::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void SymbolsMenu::retranslate()
{
    m_categoryBox->setAccessibleName(tr("Category", "Accessible name of the symbols' categories."));
    // The same entry in other words: nobody is told, and what is being typed stays.
    const QSignalBlocker blocker(m_categoryBox);
    const QString former = m_categoryBox->itemText(m_allCategoriesIndex);
    const QString typed = m_categoryBox->currentText();
    const int cursor = m_categoryBox->lineEdit()->cursorPosition();
    m_categoryBox->setItemText(m_allCategoriesIndex,
                               tr("All Categories", "Categories header for showing all symbols."));
    if (m_categoryBox->currentIndex() == m_allCategoriesIndex) {
        const bool isEntry = typed == former;
        m_categoryBox->setEditText(isEntry ? m_categoryBox->itemText(m_allCategoriesIndex) : typed);
        m_categoryBox->lineEdit()->setCursorPosition(isEntry ? 0 : cursor);
    }
    nameSymbolView(m_symbolList);
}

void SymbolsMenu::chooseCategory(int index)
{
    // A name that is too long for the box shows its beginning.
    m_categoryBox->lineEdit()->setCursorPosition(0);
    categoryUpdate(m_categoryBox->itemText(index));
}

void SymbolsMenu::createSearchField()
{
    m_searchField = new SymbolsLineEdit(this);
    m_searchField->setWindowIcon(Look::icon(QStringLiteral(LOOK_IMAGE_SEARCH_WINDOW)));

    auto* completer = new QCompleter(hasLibrary() ? m_model->tags() : QStringList(), m_searchField);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    auto* suggestions = new SuggestionList;
    completer->setPopup(suggestions);
    suggestions->setItemDelegate(new SuggestionDelegate(suggestions));
    m_searchField->setCompleter(completer);
    // A finger has no Return key at hand: a suggestion that is picked is what it searches for.
    connect(completer, qOverload<const QString&>(&QCompleter::activated), this,
            [this](const QString& tag) {
                m_searchField->setText(tag);
                searchUpdate();
            });
}

void SymbolsMenu::createCategoryBox(const QList<QString>& categoryNames)
{
    m_categoryBox = new ClickableComboBox(this);
    m_categoryBox->setStyleSheet(Look::whiteComboBox());
    // A long name must not make the menu a wide one.
    m_categoryBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_categoryBox->addItems(categoryNames);
    if (hasLibrary()) {
        m_categoryBox->addItems(m_model->categories());
    }
    m_allCategoriesIndex = m_categoryBox->count();
    m_categoryBox->addItem(QString());
}

void SymbolsMenu::createSymbolList()
{
    m_symbolList = new DragScrollListView(this);
    m_symbolList->setMaximumWidth(ListWidth);
    m_symbolList->setFixedHeight(ListHeight);
    prepareSymbolView(m_symbolList, GridSize);
    m_symbolList->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_symbolList->setModel(m_itemModel);
}

#include "moc_symbolsmenu.cpp"
