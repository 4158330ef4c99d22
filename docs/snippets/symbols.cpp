// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbols.h"

#include <OxFileDialog>
#include <OxMessageBox>
#include <SymbolDatabaseModel>
#include <SymbolDatabaseWidget>
#include <SymbolsMenu>

#include "sharedconstants.h"

#include <QDir>

//! [update]
bool updateLibrary(const QString& database, const QString& folder, QStringList* failed)
{
    SymbolDatabaseModel library;
    library.setDatabasePath(database);
    library.setUpdateObserver([failed](const SymbolDatabaseModel::UpdateStep& step) {
        if (failed != nullptr && step.outcome == SymbolDatabaseModel::UpdateStep::Failed) {
            failed->append(step.category + QLatin1Char('/') + step.name);
        }
    });
    const bool isUpdated =
        (library.isValidSchema() || library.createSchema()) && library.updateDatabase(folder);
    library.close(); // which updateDatabase() leaves to its caller
    return isUpdated;
}
//! [update]

//! [browse]
void SymbolPage::insertSymbol()
{
    SymbolDatabaseWidget browser; // no parent: it is a window of its own
    browser.setInsertMode(true);
    connect(&browser, &SymbolDatabaseWidget::importSymbolRequestedSignal, this,
            &SymbolPage::importSymbol);
    if (browser.exec() == QDialog::Accepted) {
        insertSvg(browser.getSelectedSymbol());
    }
}
//! [browse]

//! [import]
void SymbolPage::importSymbol()
{
    const QString path = OxFileDialog::getOpenFileName(
        this, {}, {}, tr("Drawings (*.svg)", "Format of the symbols to import."));
    if (path.isEmpty()) {
        return;
    }
    const QString category = QStringLiteral("USER"); // the one that the person's own symbols have
    QDir().mkpath(HomeFolderPath + QStringLiteral("databases"));
    SymbolDatabaseModel own;
    own.setDatabasePath(HomeFolderPath + QStringLiteral("databases/userSymbols.db"));
    if (!QFile::exists(own.databasePath())) {
        own.createSchema();
        own.addCategory(category);
    }
    if (!own.addSymbol(path, QFileInfo(path).completeBaseName(), category, {})) {
        OxMessageBox::warning(this, tr("ERROR", "The title of an error dialog window."),
                              tr("The symbol could not be imported.", "Message."));
    }
}
//! [import]

SymbolsMenu* SymbolPage::createMenu()
{
    //! [menu]
    auto* menu = new SymbolsMenu(this); // reads "symbols.db" in the working directory
    connect(menu, &SymbolsMenu::symbolSignal, this, &SymbolPage::insertSvg);
    //! [menu]
    return menu;
}
