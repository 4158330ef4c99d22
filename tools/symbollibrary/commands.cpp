// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "commands.h"

#include "console.h"
#include "library.h"
#include "remarks.h"
#include "symbolinspection.h"

#include <QImage>
#include <QSet>
#include <QSqlDatabase>

namespace {

void printSymbols(const QList<Library::Symbol>& symbols)
{
    for (const Library::Symbol& symbol : symbols) {
        Console::print(QStringLiteral("%1\t%2\t%3")
                           .arg(QString::number(symbol.id), Console::printable(symbol.category),
                                Console::printable(symbol.name)));
    }
}

/// The ids of the symbols with a tag that contains `text`.
QSet<int> taggedSymbols(Library& library, const QString& text)
{
    QSet<int> ids;
    library.forEachRow(QStringLiteral("SELECT Image_Tag.ImageId, Tag.Name FROM Image_Tag "
                                      "INNER JOIN Tag ON Image_Tag.TagId = Tag.Id"),
                       [&](const QSqlQuery& row) {
                           if (row.value(1).toString().contains(text, Qt::CaseInsensitive)) {
                               ids.insert(row.value(0).toInt());
                           }
                       });
    return ids;
}

QString whatIsWrongWith(const QByteArray& thumbnail)
{
    const QImage image = QImage::fromData(thumbnail);
    if (image.isNull()) {
        return QStringLiteral("the thumbnail is no picture");
    }
    if (image.size() != QSize(50, 50)) {
        return QStringLiteral("the thumbnail has %1 x %2 pixels")
            .arg(image.width())
            .arg(image.height());
    }
    return {};
}

/// Complains about thumbnails that are damaged and reports blank ones.
void checkSymbols(Library& library, bool isQuiet)
{
    Progress progress(QStringLiteral("Checking"));
    qsizetype total = 0;
    library.forEachRow(QStringLiteral("SELECT count(*) FROM Image"),
                       [&](const QSqlQuery& row) { total = row.value(0).toInt(); });
    qsizetype done = 0;
    library.forEachRow(
        QStringLiteral("SELECT Id, Name, Thumbnail, Data FROM Image"), [&](const QSqlQuery& row) {
            const QString symbol =
                QStringLiteral("symbol %1 (%2)")
                    .arg(row.value(0).toString(), Console::printable(row.value(1).toString()));
            const QByteArray thumbnail = row.value(2).toByteArray();
            const QString damage = whatIsWrongWith(thumbnail);
            if (!damage.isEmpty()) {
                library.complain(symbol + QStringLiteral(": ") + damage);
            } else if (!isQuiet && SymbolInspection::isBlank(thumbnail)) {
                Console::print(symbol + QStringLiteral(": ")
                               + remarksOn(thumbnail, row.value(3).toByteArray()));
            }
            if (!isQuiet) {
                progress.show(++done, total);
            }
        });
}

} // namespace

int Commands::list(const CommandLine& line)
{
    Library library(line.arguments.at(0));
    if (!library.open(Library::Read, line.category)) {
        return Console::Failure;
    }
    const auto symbols = library.symbols(line.category);
    if (!symbols) {
        return Console::Failure;
    }
    printSymbols(*symbols);
    return Console::Success;
}

int Commands::search(const CommandLine& line)
{
    Library library(line.arguments.at(0));
    const QString text = line.arguments.at(1);
    if (!library.open(Library::Read, line.category)) {
        return Console::Failure;
    }
    auto symbols = library.symbols(line.category);
    const QSet<int> tagged = taggedSymbols(library, text);
    if (!symbols || library.hasFailed()) {
        return Console::Failure;
    }
    symbols->removeIf([&](const Library::Symbol& symbol) {
        return !symbol.name.contains(text, Qt::CaseInsensitive) && !tagged.contains(symbol.id);
    });
    printSymbols(*symbols);
    return symbols->isEmpty() ? Console::Failure : Console::Success;
}

int Commands::check(const CommandLine& line)
{
    Library library(line.arguments.at(0));
    if (!library.open(Library::Read)) {
        return Console::Failure;
    }
    library.forEachRow(QStringLiteral("PRAGMA integrity_check"), [&](const QSqlQuery& row) {
        const QStringList problems = row.value(0).toString().split(QLatin1Char('\n'));
        for (const QString& problem : problems) {
            if (problem != QLatin1String("ok")) {
                library.complain(problem);
            }
        }
    });
    library.forEachRow(QStringLiteral("PRAGMA foreign_key_check"), [&](const QSqlQuery& row) {
        library.complain(
            QStringLiteral("row %1 of table \"%2\" refers to a missing row of \"%3\"")
                .arg(row.value(1).toString(), row.value(0).toString(), row.value(2).toString()));
    });
    checkSymbols(library, line.has("quiet"));
    return library.hasFailed() ? Console::Failure : Console::Success;
}

int Commands::remove(const CommandLine& line)
{
    Library library(line.arguments.at(0));
    if (!library.open(Library::Write)) {
        return Console::Failure;
    }
    const auto symbols = library.symbols();
    if (!symbols) {
        return Console::Failure;
    }
    QSet<int> ids;
    for (const QString& wanted : line.arguments.mid(1)) {
        bool isKnown = false;
        for (const Library::Symbol& symbol : *symbols) {
            if ((line.has("names") ? symbol.name : QString::number(symbol.id)) == wanted) {
                isKnown = true;
                ids.insert(symbol.id);
            }
        }
        if (!isKnown) {
            library.complain(QStringLiteral("no symbol \"%1\"").arg(Console::printable(wanted)));
        }
    }
    SymbolDatabaseModel& model = library.model();
    if (library.hasFailed() || !model.startTransaction()) {
        return Console::Failure;
    }
    for (const int id : std::as_const(ids)) {
        if (!model.removeSymbolWhileOpenTransaction(id)) {
            model.database().rollback();
            return Console::Failure;
        }
    }
    return model.endTransaction() ? Console::Success : Console::Failure;
}
