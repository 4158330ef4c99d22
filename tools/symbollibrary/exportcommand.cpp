// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "library.h"

#include <QDir>
#include <QSaveFile>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>

namespace {

/// A name as it can be one of a file or folder; whatever it is, it leads nowhere else.
QString fileName(QString name)
{
    name.replace(QLatin1Char('/'), QLatin1Char('_')).replace(QChar(), QLatin1Char('_'));
    const bool isPlace =
        name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..");
    return isPlace ? QLatin1Char('_') + name : name;
}

/// The path of a symbol's file, which no other symbol of this export has.
QString pathOf(const Library::Symbol& symbol, const QString& ending, QSet<QString>& taken)
{
    QString base = symbol.name;
    if (base.endsWith(QLatin1String(".svg"))) {
        base.chop(4);
    }
    QString start = fileName(symbol.category) + QLatin1Char('/') + fileName(base);
    // More than once if another symbol is called like one with its id.
    while (taken.contains(start + ending)) {
        start += QStringLiteral(" (%1)").arg(symbol.id);
    }
    QString path = start + ending;
    taken.insert(path);
    return path;
}

/// Why the file could not be written; empty if it was.
QString write(const QString& path, const QByteArray& content, bool mayOverwrite)
{
    if (!mayOverwrite && (QFileInfo::exists(path) || QFileInfo(path).isSymLink())) {
        return QStringLiteral("exists; see --force");
    }
    QSaveFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path())) {
        return QStringLiteral("cannot make the folder");
    }
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        return file.errorString();
    }
    return {};
}

} // namespace

int Commands::exportSymbols(const CommandLine& line)
{
    Library library(line.arguments.at(0));
    const QString folder = line.arguments.at(1);
    if (!library.open(Library::Read, line.category)) {
        return Console::Failure;
    }
    const auto symbols = library.symbols(line.category);
    if (!symbols) {
        return Console::Failure;
    }

    const bool isPng = line.has("thumbnails");
    QSqlQuery query(library.model().database());
    query.setForwardOnly(true);
    query.prepare(isPng ? QStringLiteral("SELECT Thumbnail FROM Image WHERE Id = :Id")
                        : QStringLiteral("SELECT Data FROM Image WHERE Id = :Id"));
    Progress progress(QStringLiteral("Exporting"));
    QSet<QString> taken;
    int written = 0;
    for (const Library::Symbol& symbol : *symbols) {
        const QString path = folder + QLatin1Char('/')
            + pathOf(symbol, isPng ? QStringLiteral(".png") : QStringLiteral(".svg"), taken);
        query.bindValue(QStringLiteral(":Id"), symbol.id);
        QString failure;
        if (!query.exec() || !query.next()) {
            failure = query.lastError().databaseText();
        } else {
            failure = write(path, query.value(0).toByteArray(), line.has("force"));
        }
        if (failure.isEmpty()) {
            ++written;
        } else {
            Console::complain(Console::printable(path) + QStringLiteral(": ") + failure);
        }
        if (!line.has("quiet")) {
            progress.show(written, symbols->size());
        }
    }
    if (!line.has("quiet")) {
        Console::print(
            QStringLiteral("%1 of %2 symbols written").arg(written).arg(symbols->size()));
    }
    return written == symbols->size() ? Console::Success : Console::Failure;
}
