// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "symboldatabasemodel.h"

#include <QSqlQuery>
#include <QStringList>

#include <functional>
#include <optional>

/*!
 * A symbol library that a command works on: open while it lives.
 *
 * What the model reports is complained about, headed by the library's path. Queries must be gone
 * before the library is.
 */
class Library
{
public:
    enum Access { Read, Write };

    struct Symbol
    {
        int id = 0;
        QString category; ///< empty if its category is missing
        QString name;
    };

    explicit Library(QString path);
    ~Library();

    Q_DISABLE_COPY_MOVE(Library)

    const QString& path() const { return m_path; }
    SymbolDatabaseModel& model() { return m_model; }

    /// Makes an empty library where there is no file.
    bool create();
    /// Complains and returns false if that is no library, or a broken one, or has no such category.
    bool open(Access access, const QString& category = QString());
    void close();

    /// All symbols, or those of a category, by category, name and id; none if they cannot be read.
    std::optional<QList<Symbol>> symbols(const QString& category = QString());
    /// Calls `use` with each row of a statement, of which only one is in memory. Complains and
    /// returns false if it fails, maybe in the middle.
    bool forEachRow(const QString& statement, const std::function<void(const QSqlQuery&)>& use);

    /// While it is on, messages of the model are kept for takeMessages() instead.
    void holdMessages(bool on);
    QStringList takeMessages();

    /// Complains, headed by the library's path.
    void complain(const QString& what) const;
    /// Whether anything was complained about.
    bool hasFailed() const { return m_hasFailed; }

private:
    const QString m_path;
    SymbolDatabaseModel m_model;
    QStringList m_messages;
    bool m_isHolding = false;
    bool m_isOpen = false;
    mutable bool m_hasFailed = false;
};
