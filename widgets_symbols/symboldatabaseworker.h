// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QMutex>
#include <QObject>
#include <QStringList>
#include <QThread>

#include <memory>

class QStandardItem;
class SymbolDatabaseModel;

/*!
 * \brief Searches and changes a symbol database on another thread, so that no screen waits for it.
 *
 * Move it to a thread of yours, tell it by queued signals what to do, and fetch the results with a
 * plain call once it has signalled them. For simple programs, and for tools without a screen,
 * SymbolDatabaseModel alone is enough.
 *
 * \code
 * m_worker->moveToThread(&m_thread);
 * connect(this, &Browser::opened, m_worker, &SymbolDatabaseWorker::getStartupItems);
 * connect(this, &Browser::categoryChosen, m_worker, &SymbolDatabaseWorker::getItemsBySearch);
 * connect(m_worker, &SymbolDatabaseWorker::resultReady, this,
 *         [this] { m_symbols.appendColumn(m_worker->getResults()); });
 * m_thread.start();
 * Q_EMIT opened(path);
 * \endcode
 *
 * Call one of the two start-up slots once, before anything else; until then there is nothing to be
 * found. Stop the thread and wait for it before the worker is destroyed; an interruption requested
 * of the thread, QThread::requestInterruption(), cuts a search short.
 *
 * The plain calls may come from any thread: they wait for the slot that is running. Results carry
 * their thumbnail as PNG bytes under Qt::UserRole + 2 and no icon, since icons belong to the GUI
 * thread; see SymbolDatabaseModel::getItemsBySearch().
 */
class UTILITYWIDGETS_EXPORT SymbolDatabaseWorker : public QObject
{
    Q_OBJECT

public:
    SymbolDatabaseWorker();
    /// The items of the last search stay with whoever took them, and die with the worker if nobody
    /// did.
    ~SymbolDatabaseWorker() override;

    /// The items of the last search, which then belong to the caller. The worker does not know
    /// whether they still exist: take them once per resultReady() or startupReady().
    QList<QStandardItem*> getResults();
    /// The same, except that the worker forgets them: until the next search there are none.
    QList<QStandardItem*> takeResults();
    /// False once a new database could not be made.
    bool getSuccessLoad();
    /// Whether the last addSymbol() stored its symbol; false before.
    bool getSuccessAdd();
    QByteArray getDataFromSymbolId(int symbolId);
    /// A new item, which the caller owns. It carries an icon: for the GUI thread only.
    QStandardItem* getItemFromSymbolId(int symbolId);

public Q_SLOTS:
    /// Opens a library that exists, for reading; afterwards its symbols are the results. Failures
    /// leave it empty and are not logged.
    void getStartupItems(const QString& databasePath);
    /// Opens the person's own database, which is made, with the category "USER", if there is no
    /// such file; afterwards its symbols are the results. What fails later is logged.
    void getStartupItemsAndCreate(const QString& databasePath);
    /// An empty category means all.
    void getItemsBySearch(const QString& category);
    /// Then searches again, through all categories.
    void addSymbol(const QByteArray& symbolData, const QByteArray& thumbnailData,
                   const QString& symbolName, const QString& symbolCategory);
    /// Then searches again, through all categories.
    void deleteSymbol(int symbolId);
    /// Writes the error into the log.
    void databaseErrorOccured(const QString& error);

Q_SIGNALS:
    /// The database is open, or could not be opened. The library's categories, sorted; none for the
    /// person's own database.
    void startupReady(QStringList categories);
    /// A search has ended, also one that followed a change.
    void resultReady();

private:
    void createModel(const QString& databasePath);
    SymbolDatabaseModel& model();
    bool makeDatabase();
    void search(const QString& category);
    void dropResults();

    // Not started: the worker lives on a thread of its owner's.
    QThread m_thread;
    std::unique_ptr<SymbolDatabaseModel> m_model;
    QList<QStandardItem*> m_results;
    /// Whether nobody has taken them: then they are the worker's.
    bool m_ownsResults = false;
    bool m_successLoad = true;
    bool m_successAdd = false;
    /// Protects all of the above, the model's connection above all: it has one name, whichever
    /// thread opens it. Never held while a signal is emitted.
    QMutex m_mutex;
};
