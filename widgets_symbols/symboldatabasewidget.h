// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>
#include <QModelIndex>
#include <QPointer>
#include <QStringList>

#include <memory>

class ContainerTitleBar;
class DragScrollListView;
class LockWidget;
class QAbstractButton;
class QButtonGroup;
class QLayout;
class QPushButton;
class QStandardItem;
class QStandardItemModel;
class QStyle;
class SymbolDatabaseModel;
class ToolBoxContainer;

/*!
 * \brief The dialog in which a person picks a symbol, by category, to insert it or to put it in the
 * place of another.
 *
 * It shows the product's library, `DatabasesPath + "symbols.db"`, and the symbols of the person's
 * own, `HomeFolderPath + "databases/userSymbols.db"`; either may be missing. Where there is room
 * only for a small picker, use SymbolsMenu.
 *
 * \code
 * SymbolDatabaseWidget browser;
 * browser.setInsertMode(true);
 * connect(&browser, &SymbolDatabaseWidget::importSymbolRequestedSignal, this, &Page::importSymbol);
 * if (browser.exec() == QDialog::Accepted) {
 *     insertSvg(browser.getSelectedSymbol());
 * }
 * \endcode
 *
 * Make it without a parent: the flags that it gives itself would turn one with a parent into a part
 * of that parent instead of a window of its own.
 *
 * The library is read on another thread. The dialog starts busy and empty, and shows categories and
 * symbols as soon as they have been read; a tap on a category is ignored until the one before has
 * been answered. A library that is missing or holds no symbols shows nothing, and a line in the log
 * says so. Names of categories hold underscores, which the buttons show as blanks; "All" and "User
 * Symbols", in the language of the screen, are taken.
 *
 * It may be destroyed at any moment. It then cuts the reading short and waits for that, but never
 * longer than a tenth of a second: reading that goes on because the medium is slow or the file
 * locked ends in the background, at the latest before the application object is gone, which waits
 * for it.
 */
class UTILITYWIDGETS_EXPORT SymbolDatabaseWidget : public QDialog
{
    Q_OBJECT

public:
    /// Begins to read the library at once.
    explicit SymbolDatabaseWidget(QWidget* parent = nullptr);
    ~SymbolDatabaseWidget() override;

    /// The protections of the object that is being edited, to be set before and read after; a part
    /// of the dialog.
    LockWidget* getLockWidget() const;

    /// The SVG document of the selected symbol, also after the dialog has been closed; empty unless
    /// exactly one is selected. Read from the database by this call.
    QByteArray getSelectedSymbol();

public Q_SLOTS:
    /// Whether the dialog inserts a symbol or, otherwise, edits one, with the lock widget shown.
    /// Until it is called, it does neither: the title is neutral and the lock widget is shown.
    void setInsertMode(bool insert);

    /// Accepts the dialog if a symbol is selected.
    void acceptSlot();
    /// Accepts the dialog if `index` is a symbol.
    void onDoubleClicked(const QModelIndex& index);
    /// Asks for the import of a symbol. The dialog stays open.
    void importSlot();

    /// Shows the category of the button that calls it.
    void onCategoryClicked();
    /// The library has been opened: makes the buttons and shows all symbols.
    void handleSymbolManagerStartup(const QStringList& categoryNames);
    /// The worker has found the symbols of a category: shows them.
    void handleSymbolItemsList();
    /// Reads the person's own symbols and appends them to those that are shown.
    void getUserSymbolItemsList();

Q_SIGNALS:
    /// Has the library at a path read. The dialog emits it once, in its constructor, for the
    /// product's library; emit it to have another one shown in its place.
    void startSymbolManager(QString databasePath);
    /// Has the symbols of a category read, of all for an empty one.
    void getItemByCategory(QString category);
    /// The person wants to insert a symbol from a file. Show a file dialog, add the symbol to the
    /// person's database or insert it as it is, and close the browser if it is no longer needed.
    void importSymbolRequestedSignal();
    /// For applications to emit; the dialog itself does not.
    void operate(const QString& parameter);

protected:
    void changeEvent(QEvent* event) override;

private:
    class LibraryThread;
    enum class Mode {
        Unset,
        Insert,
        Edit,
    };

    void retranslate();
    void showMode();
    void connectWorker();
    QLayout* createContent();
    QLayout* createButtonRow();
    QPushButton* createButton(int minimumWidth);
    void createCategoryButtons(const QStringList& categoryNames, bool withUserSymbols);
    QAbstractButton* createCategoryButton(const QString& text);
    void beginRequest();
    bool endRequest();
    QList<QStandardItem*> readUserSymbols();
    void logEmptyLibrary() const;
    void logUserError(const QString& error) const;

    ContainerTitleBar* m_titleBar = nullptr;
    ToolBoxContainer* m_categoryContainer = nullptr;
    QPushButton* m_acceptButton = nullptr;
    QPushButton* m_importButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    DragScrollListView* m_symbolView = nullptr;
    QStandardItemModel* m_itemModel = nullptr;
    LockWidget* m_lockWidget = nullptr;
    QButtonGroup* m_categoryButtons = nullptr;
    QStyle* m_categoryStyle = nullptr;
    /// The button of the category that is shown or being read. Maybe one of the application's.
    QPointer<QAbstractButton> m_currentButton;
    QPointer<QAbstractButton> m_allButton;
    QPointer<QAbstractButton> m_userSymbolsButton;
    /// As they stand on the buttons, whatever language has been chosen since.
    QString m_allLabel;
    QString m_userSymbolsLabel;
    std::unique_ptr<LibraryThread> m_libraryThread;
    std::unique_ptr<SymbolDatabaseModel> m_userModel;
    QString m_libraryPath;
    Mode m_mode = Mode::Unset;
    bool m_userSymbolsShown = false;
    bool m_allShown = false;
    /// Requests that the worker has not answered yet. Busy means that there are any.
    int m_requests = 0;
};
