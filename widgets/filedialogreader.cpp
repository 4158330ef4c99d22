// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filedialogreader.h"

#include <QCollator>
#include <QDirIterator>

#include <algorithm>
#include <vector>

namespace {

/// Milliseconds from the first change of a folder until it is read again. Changes rarely come
/// alone, and each costs as much as the whole folder.
constexpr int SettlingTime = 100;

QDir::Filters filtersOf(const FileDialogRequest& request)
{
    const QDir::Filters folders = QDir::Dirs | QDir::AllDirs | QDir::NoDotAndDotDot;
    return request.foldersOnly ? folders : folders | QDir::Files;
}

/// Locales without an order of their own, "C" for one, compare texts byte by byte.
QCollator createCollator()
{
    const QLocale locale = QLocale().collation();
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

/// An entry and what makes comparing it many times cheap.
struct SortableEntry
{
    QCollatorSortKey key;
    FileDialogEntry entry;

    friend bool operator<(const SortableEntry& a, const SortableEntry& b)
    {
        if (a.entry.isFolder != b.entry.isFolder) {
            return a.entry.isFolder;
        }
        const int order = a.key.compare(b.key);
        return order != 0 ? order < 0 : a.entry.name < b.entry.name;
    }
};

} // namespace

FileDialogReader::FileDialogReader()
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(SettlingTime);
    connect(&m_settling, &QTimer::timeout, this, &FileDialogReader::readAgain);
    // Not started anew by each change: a folder that never rests is read all the same.
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        if (!m_settling.isActive()) {
            m_settling.start();
        }
    });
}

FileDialogReader::~FileDialogReader() = default;

void FileDialogReader::sort(FileDialogEntries& entries)
{
    const QCollator collator = createCollator();
    std::vector<SortableEntry> sortable;
    sortable.reserve(std::size_t(entries.size()));
    for (FileDialogEntry& entry : entries) {
        sortable.push_back({ collator.sortKey(entry.name), std::move(entry) });
    }
    std::sort(sortable.begin(), sortable.end());
    const auto end = std::unique(sortable.begin(), sortable.end(),
                                 [](const SortableEntry& a, const SortableEntry& b) {
                                     return !(a < b); // and not b < a, as they are sorted
                                 });
    entries.resize(end - sortable.begin());
    std::transform(sortable.begin(), end, entries.begin(),
                   [](SortableEntry& each) { return std::move(each.entry); });
}

void FileDialogReader::read(const FileDialogRequest& request)
{
    m_request = request;
    if (!isWanted()) {
        return;
    }
    // Before it is read, for no change to fall in between; none of what was read before counts.
    m_settling.stop();
    const QStringList watched = m_watcher.directories();
    if (watched != QStringList(request.folder)) {
        if (!watched.isEmpty()) {
            m_watcher.removePaths(watched);
        }
        m_watcher.addPath(request.folder);
    }
    readAgain();
}

void FileDialogReader::readAgain()
{
    FileDialogEntries entries;
    QDirIterator folder(m_request.folder, m_request.patterns, filtersOf(m_request));
    while (isWanted() && folder.hasNext()) {
        folder.next();
        entries.append({ folder.fileName(), folder.fileInfo().isDir() });
    }
    if (!isWanted()) {
        return;
    }
    sort(entries);
    Q_EMIT entriesRead(m_request.serial, entries);
}

#include "moc_filedialogreader.cpp"
