// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/translationrecorder.h"
#include "symboldatabasemodel.h"

#include <QStringList>
#include <QTemporaryDir>

/*!
 * A symbol database in a folder of its own, the model that a test is about, and what it reported.
 *
 * What is looked at or prepared behind the model's back goes through a connection of its own.
 */
class SymbolDatabase
{
public:
    enum Content {
        NoFile,
        Schema, ///< the four tables, without rows
        Symbols, ///< what addSymbols() adds
    };
    explicit SymbolDatabase(Content content = NoFile);

    Q_DISABLE_COPY_MOVE(SymbolDatabase)

    SymbolDatabaseModel model;

    QString path() const;
    bool exists() const;
    /// Writes a file beside the database and returns its path.
    QString write(const QString& name, const QByteArray& content) const;
    /// Writes over the database itself.
    void overwrite(const QByteArray& content) const;
    QByteArray read() const;

    /// Runs a statement and returns the rows, their columns joined by "|". Fails the program if the
    /// statement is no good.
    QStringList sql(const QString& statement) const;
    /// Replaces the file by one that these statements make.
    void rebuild(const QStringList& statements) const;

    /// What the model has reported since the last call.
    QStringList takeErrors();

    /// Whether the model's connection is registered.
    bool isConnected();

    /// The model's messages that name its connection.
    QString alreadyExists();
    QString doesNotExist();

private:
    void addSymbols();

    QTemporaryDir m_folder;
    QStringList m_errors;
};

/// "Query:[statement] Failed With:[error]"
QString queryFailed(const QString& statement, const QString& error);

/// A document of the given size, filled with one colour.
QByteArray filledSvg(const QByteArray& colour, int width = 50, int height = 50);
