// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symboldatabaseworker.h"

#include "logger.h"
#include "symboldatabasemodel.h"

#include <QFile>
#include <QStandardItem>

SymbolDatabaseWorker::SymbolDatabaseWorker() = default;

SymbolDatabaseWorker::~SymbolDatabaseWorker()
{
    dropResults();
}

QList<QStandardItem*> SymbolDatabaseWorker::getResults()
{
    const QMutexLocker lock(&m_mutex);
    m_ownsResults = false;
    return m_results;
}

QList<QStandardItem*> SymbolDatabaseWorker::takeResults()
{
    const QMutexLocker lock(&m_mutex);
    m_ownsResults = false;
    return std::exchange(m_results, {});
}

bool SymbolDatabaseWorker::getSuccessLoad()
{
    const QMutexLocker lock(&m_mutex);
    return m_successLoad;
}

bool SymbolDatabaseWorker::getSuccessAdd()
{
    const QMutexLocker lock(&m_mutex);
    return m_successAdd;
}

QByteArray SymbolDatabaseWorker::getDataFromSymbolId(int symbolId)
{
    const QMutexLocker lock(&m_mutex);
    return model().getDataFromSymbolId(symbolId);
}

QStandardItem* SymbolDatabaseWorker::getItemFromSymbolId(int symbolId)
{
    const QMutexLocker lock(&m_mutex);
    return model().getItemFromSymbolId(symbolId);
}

void SymbolDatabaseWorker::getStartupItems(const QString& databasePath)
{
    QStringList categories;
    {
        const QMutexLocker lock(&m_mutex);
        createModel(databasePath);
        categories = model().categories();
        categories.sort();
        search(QString());
    }
    Q_EMIT startupReady(categories);
}

void SymbolDatabaseWorker::getStartupItemsAndCreate(const QString& databasePath)
{
    {
        const QMutexLocker lock(&m_mutex);
        createModel(databasePath);
        if (QFile::exists(databasePath) || makeDatabase()) {
            search(QString());
        } else {
            m_successLoad = false;
        }
        // Direct, because the plain calls report on the thread that makes them.
        connect(m_model.get(), &SymbolDatabaseModel::errorOccured, this,
                &SymbolDatabaseWorker::databaseErrorOccured, Qt::DirectConnection);
    }
    Q_EMIT startupReady({});
}

void SymbolDatabaseWorker::getItemsBySearch(const QString& category)
{
    {
        const QMutexLocker lock(&m_mutex);
        search(category);
    }
    Q_EMIT resultReady();
}

void SymbolDatabaseWorker::addSymbol(const QByteArray& symbolData, const QByteArray& thumbnailData,
                                     const QString& symbolName, const QString& symbolCategory)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_successAdd = model().addSymbol(symbolData, thumbnailData, symbolName, symbolCategory);
    }
    getItemsBySearch(QString());
}

void SymbolDatabaseWorker::deleteSymbol(int symbolId)
{
    {
        const QMutexLocker lock(&m_mutex);
        model().removeSymbol(symbolId);
    }
    getItemsBySearch(QString());
}

void SymbolDatabaseWorker::databaseErrorOccured(const QString& error)
{
    CuteMessageLogger(loggerInstance(), CuteMessageLogger::Error,
                      "widgets_symbols/symboldatabaseworker", __LINE__,
                      "void SymbolDatabaseWorker::databaseErrorOccured(QString)")
        .write("Error: %s", error.toLocal8Bit().constData());
}

void SymbolDatabaseWorker::createModel(const QString& databasePath)
{
    m_model = std::make_unique<SymbolDatabaseModel>();
    m_model->setDatabasePath(databasePath);
}

/// Without a file before one of the start-up slots was called.
SymbolDatabaseModel& SymbolDatabaseWorker::model()
{
    if (!m_model) {
        createModel(QString());
    }
    return *m_model;
}

bool SymbolDatabaseWorker::makeDatabase()
{
    if (!model().createSchema()) {
        return false;
    }
    // The category is added whatever the test says, so that one failure does not cause the other.
    const bool isValid = model().isValidSchema();
    return model().addCategory(QStringLiteral("USER")) && isValid;
}

void SymbolDatabaseWorker::search(const QString& category)
{
    dropResults();
    m_results = model().getItemsBySearch(category, QString(), false);
    m_ownsResults = true;
}

void SymbolDatabaseWorker::dropResults()
{
    if (m_ownsResults) {
        qDeleteAll(m_results);
    }
    m_results.clear();
}

#include "moc_symboldatabaseworker.cpp"
