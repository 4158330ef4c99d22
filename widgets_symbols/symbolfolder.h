// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

/*!
 * A folder of drawings: its subfolders are categories, the "*.svg" files in them are symbols.
 *
 * Names come in the order of the file system. A folder that is not there has none.
 */
namespace SymbolFolder {

QStringList categories(const QString& folder);
/// Without their folder.
QStringList files(const QString& folder, const QString& category);
QString path(const QString& folder, const QString& category, const QString& file);

} // namespace SymbolFolder

/*!
 * Reads drawings and makes their thumbnails on as many threads as there are processors, a few files
 * ahead of the thread that takes the results in their order.
 */
class SymbolReader
{
public:
    struct Symbol
    {
        QByteArray data;
        /// Null if the file is empty or cannot be read.
        QByteArray thumbnail;
    };

    explicit SymbolReader(QStringList paths);
    ~SymbolReader();

    Q_DISABLE_COPY_MOVE(SymbolReader)

    /// The symbol of the next path; to be called once for each.
    Symbol next();

private:
    void work();

    const QStringList m_paths;
    std::mutex m_mutex; ///< protects what follows, up to the threads
    std::condition_variable m_changed;
    QHash<qsizetype, Symbol> m_ready;
    qsizetype m_started = 0;
    qsizetype m_taken = 0;
    bool m_isStopped = false;
    std::vector<std::thread> m_threads;
};
