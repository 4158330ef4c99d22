// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QList>
#include <QModelIndex>
#include <QString>
#include <QWidget>

class ClickableComboBox;
class DragScrollListView;
class QStandardItem;
class QStandardItemModel;
class SymbolDatabaseModel;
class SymbolsLineEdit;

/*!
 * \brief A small symbol picker to embed: categories, a search by tag, and a narrow list of symbols.
 *
 * A tap on a symbol hands over its document; the menu stays as it is. Use it beside the page that
 * the symbol goes to, and SymbolDatabaseWidget for a whole screen of symbols.
 *
 * \code
 * auto* menu = new SymbolsMenu({}, this);
 * connect(menu, &SymbolsMenu::symbolSignal, this, &Page::insertSvg);
 * \endcode
 *
 * The library is the file "symbols.db" in the working directory of the process, read on the GUI
 * thread, and never made: without it there are no symbols. What the person types finds the symbols
 * of the shown category with a tag that contains it, once Return or the magnifier is pressed or a
 * suggestion is tapped; an empty field finds all.
 */
class UTILITYWIDGETS_EXPORT SymbolsMenu : public QWidget
{
    Q_OBJECT

public:
    /// `categoryNames` are offered in front of the library's categories. One that the library does
    /// not have finds nothing, or, with a text in the search field, the symbols of all categories.
    explicit SymbolsMenu(const QList<QString>& categoryNames, QWidget* parent = nullptr);
    /// Offers the library's categories alone.
    explicit SymbolsMenu(QWidget* parent = nullptr);
    /// Reads another library. With an empty `libraryPath` there is none, and nothing is ever read:
    /// the menu's picture, for a form editor.
    SymbolsMenu(const QList<QString>& categoryNames, const QString& libraryPath, QWidget* parent);

    /// Appends a symbol to those shown, until the next search. It must have an icon and, under
    /// Qt::UserRole + 1, its id in the library. The menu owns it from then on.
    void addSymbol(QStandardItem* item);

public Q_SLOTS:
    /// Hands over the symbol at `index`.
    void symbolSelection(const QModelIndex& index);
    /// Shows what the search field finds in the category in the combo box.
    void searchUpdate();
    /// Shows what the search field finds in `category`.
    void categoryUpdate(const QString& category);

Q_SIGNALS:
    /// The SVG document of the symbol that was tapped. Not emitted for one that the library does
    /// not have.
    void symbolSignal(QByteArray symbolData);

protected:
    void changeEvent(QEvent* event) override;

private:
    bool hasLibrary() const;
    void retranslate();
    void chooseCategory(int index);
    void createSearchField();
    void createCategoryBox(const QList<QString>& categoryNames);
    void createSymbolList();

    ClickableComboBox* m_categoryBox = nullptr;
    int m_allCategoriesIndex = 0;
    DragScrollListView* m_symbolList = nullptr;
    SymbolsLineEdit* m_searchField = nullptr;
    QStandardItemModel* m_itemModel = nullptr;
    SymbolDatabaseModel* m_model = nullptr;
};
