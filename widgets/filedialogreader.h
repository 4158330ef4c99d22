// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileSystemWatcher>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <atomic>

/// One row of the file dialog's list.
struct FileDialogEntry
{
    QString name;
    bool isFolder = false; // or a link to one
};

Q_DECLARE_TYPEINFO(FileDialogEntry, Q_RELOCATABLE_TYPE); // cheap to insert into a long list

using FileDialogEntries = QList<FileDialogEntry>;

/// What the file dialog's list is to show.
struct FileDialogRequest
{
    /// Which request this is, counted up from 1.
    int serial = 0;
    QString folder;
    /// Files that match none of them are left out; empty for all files.
    QStringList patterns;
    bool foldersOnly = false;
};

/*!
 * Reads the entries of folders, and reads them again when they change.
 *
 * Lives on a thread of its own: whatever touches the file system happens there, so that neither a
 * folder of many files nor a slow medium holds up a finger.
 */
class FileDialogReader : public QObject
{
    Q_OBJECT

public:
    FileDialogReader();
    ~FileDialogReader() override;

    /// From now on only the request with this number is wanted: one that is being read is given up.
    /// May be called on any thread.
    void setWanted(int serial) { m_wanted.store(serial, std::memory_order_relaxed); }

    /// Folders first, each in the order in which people count: "Label 2" before "Label 10", small
    /// and capital letters mixed. One that is there twice is left out once: a folder that changes
    /// while it is read can give a name again.
    static void sort(FileDialogEntries& entries);

public Q_SLOTS:
    /// Reads what is asked for, now and whenever it changes, until the next call.
    void read(const FileDialogRequest& request);

Q_SIGNALS:
    /// These are all entries, sorted, of the request with this number: none, if it has no folder.
    void entriesRead(int serial, const FileDialogEntries& entries);

private:
    void readAgain();
    bool isWanted() const { return m_wanted.load(std::memory_order_relaxed) == m_request.serial; }

    std::atomic<int> m_wanted = 0;
    FileDialogRequest m_request;
    QFileSystemWatcher m_watcher { this };
    QTimer m_settling { this };
};
