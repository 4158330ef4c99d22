// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolfolder.h"

#include "symbolthumbnail.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QThread>

namespace {

/// Files. Enough to keep every thread busy while one drawing takes long, few enough to be held in
/// memory.
constexpr qsizetype MostAhead = 32;

SymbolReader::Symbol readSymbol(const QString& path)
{
    SymbolReader::Symbol symbol;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        symbol.data = file.readAll();
    }
    if (!symbol.data.isEmpty()) {
        symbol.thumbnail = renderSymbolThumbnail(symbol.data);
    }
    return symbol;
}

} // namespace

QStringList SymbolFolder::categories(const QString& folder)
{
    // An empty path would be the current folder.
    return folder.isEmpty()
        ? QStringList()
        : QDir(folder).entryList(QDir::AllDirs | QDir::Hidden | QDir::NoDotAndDotDot,
                                 QDir::Unsorted);
}

QStringList SymbolFolder::files(const QString& folder, const QString& category)
{
    // Not by the name filter of QDir, which tries a regular expression on each name and keeps all
    // there is to know of each file: for a thousand drawings that takes as long as the database.
    QStringList names;
    QDirIterator iterator(folder + QLatin1Char('/') + category, QDir::Files);
    while (iterator.hasNext()) {
        iterator.next();
        const QString name = iterator.fileName();
        if (name.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
            names.append(name);
        }
    }
    return names;
}

QString SymbolFolder::path(const QString& folder, const QString& category, const QString& file)
{
    return folder + QLatin1Char('/') + category + QLatin1Char('/') + file;
}

SymbolReader::SymbolReader(QStringList paths)
    : m_paths(std::move(paths))
{
    const qsizetype most = qMax(1, QThread::idealThreadCount());
    for (qsizetype i = 0; i < qMin(most, m_paths.size()); ++i) {
        m_threads.emplace_back(&SymbolReader::work, this);
    }
}

SymbolReader::~SymbolReader()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopped = true;
    }
    m_changed.notify_all();
    for (std::thread& thread : m_threads) {
        thread.join();
    }
}

SymbolReader::Symbol SymbolReader::next()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_ready.contains(m_taken); });
    Symbol symbol = m_ready.take(m_taken++);
    m_changed.notify_all();
    return symbol;
}

void SymbolReader::work()
{
    std::unique_lock lock(m_mutex);
    while (!m_isStopped && m_started < m_paths.size()) {
        if (m_started >= m_taken + MostAhead) {
            m_changed.wait(lock);
            continue;
        }
        const qsizetype index = m_started++;
        lock.unlock();
        const Symbol symbol = readSymbol(m_paths.at(index));
        lock.lock();
        m_ready.insert(index, symbol);
        m_changed.notify_all();
    }
}
