// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/symboldatabase.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {

const QString OwnConnection = QStringLiteral("behind the model's back");

} // namespace

SymbolDatabase::SymbolDatabase(Content content)
{
    QObject::connect(&model, &SymbolDatabaseModel::errorOccured, &model,
                     [this](const QString& error) { m_errors.append(error); });
    model.setDatabasePath(path());
    if (content != NoFile && !model.createSchema()) {
        qFatal("no schema: %s", qPrintable(m_errors.join(QLatin1Char('\n'))));
    }
    if (content == Symbols) {
        addSymbols();
    }
}

void SymbolDatabase::addSymbols()
{
    sql(QStringLiteral("INSERT INTO Category (Name) VALUES ('Signs'), ('Animals'), ('Empty')"));
    sql(QStringLiteral("INSERT INTO Tag (Name) "
                       "VALUES ('arrow'), ('large arrow'), ('Arrow'), ('warning'), ('pet')"));
    const QStringList names { QStringLiteral("up"), QStringLiteral("danger"),
                              QStringLiteral("cat") };
    for (const QString& name : names) {
        const QByteArray svg = filledSvg(name == QLatin1String("cat") ? "green" : "red");
        if (!model.addSymbol(svg, model.getThumbnailDataFromRawData(svg), name,
                             name == QLatin1String("cat") ? QStringLiteral("Animals")
                                                          : QStringLiteral("Signs"))) {
            qFatal("no symbol: %s", qPrintable(m_errors.join(QLatin1Char('\n'))));
        }
    }
    // up: arrow, large arrow and Arrow; danger: warning; cat: pet and Arrow
    sql(QStringLiteral("INSERT INTO Image_Tag (ImageId, TagId) "
                       "VALUES (1, 1), (1, 2), (1, 3), (2, 4), (3, 5), (3, 3)"));
}

QString SymbolDatabase::path() const
{
    return m_folder.filePath(QStringLiteral("symbols.db"));
}

bool SymbolDatabase::exists() const
{
    return QFile::exists(path());
}

QString SymbolDatabase::write(const QString& name, const QByteArray& content) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return file.fileName();
}

void SymbolDatabase::overwrite(const QByteArray& content) const
{
    write(QStringLiteral("symbols.db"), content);
}

QByteArray SymbolDatabase::read() const
{
    QFile file(path());
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList SymbolDatabase::sql(const QString& statement) const
{
    QStringList rows;
    {
        QSqlDatabase connection =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), OwnConnection);
        connection.setDatabaseName(path());
        QSqlQuery query(connection.open() ? connection : QSqlDatabase());
        if (!query.exec(statement)) {
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
        }
        while (query.next()) {
            QStringList columns;
            for (int i = 0; i < query.record().count(); ++i) {
                columns.append(query.value(i).toString());
            }
            rows.append(columns.join(QLatin1Char('|')));
        }
    }
    QSqlDatabase::removeDatabase(OwnConnection);
    return rows;
}

void SymbolDatabase::rebuild(const QStringList& statements) const
{
    QFile::remove(path());
    for (const QString& statement : statements) {
        sql(statement);
    }
}

QStringList SymbolDatabase::takeErrors()
{
    return std::exchange(m_errors, {});
}

bool SymbolDatabase::isConnected()
{
    return QSqlDatabase::contains(model.connectionName());
}

QString SymbolDatabase::alreadyExists()
{
    return QLatin1Char('[') + model.connectionName()
        + QStringLiteral("]: Connection already exists, possible failure to remove connection");
}

QString SymbolDatabase::doesNotExist()
{
    return QLatin1Char('[') + model.connectionName()
        + QStringLiteral("]: Connection does not exist, can not close database");
}

QString queryFailed(const QString& statement, const QString& error)
{
    return QStringLiteral("Query:[") + statement + QStringLiteral("] Failed With:[") + error
        + QLatin1Char(']');
}

QByteArray filledSvg(const QByteArray& colour, int width, int height)
{
    const QByteArray size =
        "width='" + QByteArray::number(width) + "' height='" + QByteArray::number(height) + "'";
    return "<svg xmlns='http://www.w3.org/2000/svg' " + size + "><rect " + size + " fill='" + colour
        + "'/></svg>";
}
