// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filedialogmodel.h"

#include <QAbstractFileIconProvider>
#include <QDir>
#include <QSet>

#include <algorithm>

namespace {

/// More changes at once than this, counted in runs of rows, are no longer told one by one: each
/// costs the view some work of its own, however few its rows are. The list then loses its selection.
constexpr int MaximumRuns = 500;

/// For each of `entries`, whether `others` has it too.
QList<bool> presence(const FileDialogEntries& entries, const FileDialogEntries& others)
{
    QSet<QString> names[2]; // of files and of folders
    for (const FileDialogEntry& other : others) {
        names[other.isFolder ? 1 : 0].insert(other.name);
    }
    QList<bool> present;
    present.reserve(entries.size());
    for (const FileDialogEntry& entry : entries) {
        present.append(names[entry.isFolder ? 1 : 0].contains(entry.name));
    }
    return present;
}

/// How many times in a row `present` is false for one or more.
qsizetype countRuns(const QList<bool>& present)
{
    qsizetype runs = 0;
    for (qsizetype i = 0; i < present.size(); ++i) {
        runs += !present.at(i) && (i == 0 || present.at(i - 1)) ? 1 : 0;
    }
    return runs;
}

} // namespace

FileDialogModel::FileDialogModel(const QAbstractFileIconProvider& icons, QObject* parent)
    : QAbstractListModel(parent)
    , m_folderIcon(icons.icon(QFileInfo(QStringLiteral("/"))))
    , m_fileIcon(icons.icon(QFileInfo()))
    , m_reader(new FileDialogReader)
{
    m_thread.setObjectName(QStringLiteral("FileDialogReader"));
    m_reader->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_reader, &QObject::deleteLater);
    connect(m_reader, &FileDialogReader::entriesRead, this, &FileDialogModel::onEntriesRead);
    m_thread.start();
}

// Waits for no more than the next entry of a folder that is being read.
FileDialogModel::~FileDialogModel()
{
    m_reader->setWanted(0);
    m_thread.quit();
    m_thread.wait();
}

int FileDialogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant FileDialogModel::data(const QModelIndex& index, int role) const
{
    if (index.isValid() && role == Qt::DisplayRole) {
        return m_entries.at(index.row()).name;
    }
    if (index.isValid() && role == Qt::DecorationRole) {
        return isFolder(index) ? m_folderIcon : m_fileIcon;
    }
    return {};
}

void FileDialogModel::setFolder(const QString& path)
{
    const QString folder = QDir(path).absolutePath();
    if (folder != m_request.folder) {
        m_request.folder = folder;
        reset({});
    }
    request();
}

void FileDialogModel::setNamePatterns(const QStringList& patterns)
{
    if (patterns != m_request.patterns) {
        m_request.patterns = patterns;
        request();
    }
}

void FileDialogModel::setFoldersOnly()
{
    if (!m_request.foldersOnly) {
        m_request.foldersOnly = true;
        request();
    }
}

QString FileDialogModel::filePath(const QModelIndex& index) const
{
    return index.isValid() ? QDir(m_request.folder).filePath(m_entries.at(index.row()).name)
                           : QString();
}

bool FileDialogModel::isFolder(const QModelIndex& index) const
{
    return index.isValid() && m_entries.at(index.row()).isFolder;
}

void FileDialogModel::request()
{
    if (m_request.folder.isEmpty()) {
        return; // there will be one
    }
    ++m_request.serial;
    m_reader->setWanted(m_request.serial);
    QMetaObject::invokeMethod(m_reader,
                              [reader = m_reader, request = m_request] { reader->read(request); });
}

void FileDialogModel::onEntriesRead(int serial, const FileDialogEntries& entries)
{
    if (serial != m_request.serial) {
        return;
    }
    const QList<bool> kept = presence(m_entries, entries);
    const QList<bool> present = presence(entries, m_entries);
    if (countRuns(kept) + countRuns(present) > MaximumRuns) {
        reset(entries);
    } else {
        removeRowsExcept(kept);
        insertRowsExcept(present, entries);
    }
    Q_EMIT folderRead();
}

void FileDialogModel::reset(const FileDialogEntries& entries)
{
    beginResetModel();
    m_entries = entries;
    endResetModel();
}

void FileDialogModel::removeRowsExcept(const QList<bool>& kept)
{
    for (qsizetype last = kept.size() - 1; last >= 0; --last) {
        qsizetype first = last + 1;
        while (first > 0 && !kept.at(first - 1)) {
            --first;
        }
        if (first <= last) {
            beginRemoveRows({}, int(first), int(last));
            m_entries.remove(first, last - first + 1);
            endRemoveRows();
            last = first;
        }
    }
}

/// What is in the list already is in the order of `entries`: both have been sorted alike.
void FileDialogModel::insertRowsExcept(const QList<bool>& present, const FileDialogEntries& entries)
{
    for (qsizetype first = 0; first < present.size(); ++first) {
        qsizetype end = first;
        while (end < present.size() && !present.at(end)) {
            ++end;
        }
        if (first < end) {
            beginInsertRows({}, int(first), int(end) - 1);
            m_entries.insert(first, end - first, {});
            std::copy(entries.cbegin() + first, entries.cbegin() + end, m_entries.begin() + first);
            endInsertRows();
            first = end;
        }
    }
}

#include "moc_filedialogmodel.cpp"
