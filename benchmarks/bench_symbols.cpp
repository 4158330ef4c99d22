// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// A symbol database beside what is the least that can be done about it: SQLite's own interface with
// the same statements, and a program that renders one drawing after the other.
//
//   bench_symbols [search | update [FILES]]    both, if left out; updates of up to FILES files

#include "measure.h"
#include "plainsymbols.h"

#include "symboldatabasemodel.h"
#include "symboldatabaseworker.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QStandardItem>
#include <QTemporaryDir>

#include <cstdlib>
#include <ctime>

namespace {

const char Search[] = "SELECT DISTINCT Image.Id, Image.Name, Image.Thumbnail FROM Image ";

double milliseconds(const QElapsedTimer& timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

double milliseconds(std::clock_t ticks)
{
    return double(ticks) * 1000 / CLOCKS_PER_SEC;
}

template <typename Work> double time(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return milliseconds(timer);
}

/// The real one writes out whatever the machine has in its buffers, at any time after.
void replaceSync(const QTemporaryDir& folder)
{
    QFile::link(QStringLiteral("/bin/true"), folder.filePath(QStringLiteral("sync")));
    qputenv("PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH"));
}

void makeLibrary(SymbolDatabaseModel& model, int symbols)
{
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 48 48'>"
                           "<path d='M24 6L42 26H31V42H17V26H6Z' fill='#fd7800'/></svg>";
    const QByteArray thumbnail = model.getThumbnailDataFromRawData(svg);
    model.createSchema();
    model.addCategory(QStringLiteral("Arrows"));
    model.open(false);
    model.startTransaction();
    for (int i = 0; i < symbols; ++i) {
        // As different, and as large, as thumbnails of richer drawings.
        model.addImageWhileOpen(QStringLiteral("symbol %1.svg").arg(i), QStringLiteral("Arrows"),
                                thumbnail + QByteArray(1000 + i % 997, char(i)), svg);
    }
    model.endTransaction();
    model.close();
}

void compareSearches(const QTemporaryDir& folder)
{
    Measure::printHead("Reading symbols, ms (peer: a loop over sqlite3_step; target 1.30)");
    for (const int symbols : { 1'000, 10'000, 100'000 }) {
        const QString path = folder.filePath(QStringLiteral("search%1.db").arg(symbols));
        SymbolDatabaseModel model;
        model.setDatabasePath(path);
        makeLibrary(model, symbols);
        const QByteArray file = path.toUtf8();
        const int rounds = symbols > 50'000 ? 9 : 25;
        const auto plain = [&] {
            std::vector<PlainSymbol> rows;
            return time([&] { rows = readPlainSymbols(file.constData(), Search); });
        };
        const QByteArray searching = "search, " + QByteArray::number(symbols) + " symbols";
        Measure::compare(
            searching.constData(), rounds,
            [&] {
                QList<QStandardItem*> items;
                const double taken = time([&] { items = model.getItemsBySearch({}, {}, false); });
                qDeleteAll(items);
                return taken;
            },
            plain);
        const QByteArray starting = "start-up of the worker, " + QByteArray::number(symbols);
        Measure::compare(
            starting.constData(), rounds,
            [&] {
                SymbolDatabaseWorker worker;
                const double taken = time([&] { worker.getStartupItems(path); });
                qDeleteAll(worker.getResults());
                return taken;
            },
            plain);
    }
}

/// Real drawings where they are installed, and one of our own again and again otherwise.
QStringList allDrawings(const QTemporaryDir& folder)
{
    QStringList drawings;
    for (const char* root :
         { "/usr/share/openclipart/svg", "/usr/share/icons/breeze",
           "/usr/share/icons/Papirus/64x64", "/usr/share/icons/Papirus/48x48" }) {
        QDirIterator files(QString::fromLatin1(root), { QStringLiteral("*.svg") },
                           QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            drawings.append(files.next());
        }
    }
    if (drawings.isEmpty()) {
        QFile file(folder.filePath(QStringLiteral("drawing.svg")));
        if (file.open(QFile::WriteOnly)) {
            file.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 48 48'>"
                       "<path d='M24 6L42 26H31V42H17V26H6Z' fill='#fd7800'/></svg>");
        }
        drawings.append(file.fileName());
    }
    drawings.sort();
    return drawings;
}

/// A folder with links to `count` of the drawings, taken evenly, 500 to a category.
QString arrange(const QTemporaryDir& folder, const QStringList& drawings, int count)
{
    QString target = folder.filePath(QStringLiteral("drawings%1").arg(count));
    for (int i = 0; i < count; ++i) {
        const QString category = target + QStringLiteral("/%1").arg(i / 500);
        QDir().mkpath(category);
        QFile::link(drawings.at(qsizetype(qint64(i) * drawings.size() / count)),
                    category + QStringLiteral("/%1.svg").arg(i));
    }
    return target;
}

double timeOfUpdate(SymbolDatabaseModel& model, const QString& folder)
{
    return time([&] {
        if (!model.updateDatabase(folder)) {
            std::fprintf(stderr, "the update failed\n");
            std::exit(1);
        }
        model.close();
    });
}

void compareUpdates(const QTemporaryDir& folder, int most)
{
    const QStringList drawings = allDrawings(folder);
    std::printf("\n%lld different drawings\n", static_cast<long long>(drawings.size()));
    Measure::printHead(plainRendererName());
    for (const int count : { 1'000, 5'000, 20'000 }) {
        if (count > most) {
            break;
        }
        const QString source = arrange(folder, drawings, count);
        SymbolDatabaseModel model;
        model.setDatabasePath(folder.filePath(QStringLiteral("update%1.db").arg(count)));
        model.createSchema();
        SymbolDatabaseModel plain;
        plain.setDatabasePath(folder.filePath(QStringLiteral("plain%1.db").arg(count)));
        plain.createSchema();

        // Reads all files once, so that neither has to wait for the disk.
        listPlainly(source.toUtf8().constData(), true);
        const std::clock_t start = std::clock();
        const double ours = timeOfUpdate(model, source);
        const std::clock_t middle = std::clock();
        const double peer = time([&] {
            updatePlainly(plain.databasePath().toUtf8().constData(), source.toUtf8().constData());
        });
        const std::clock_t end = std::clock();
        const QByteArray updating =
            "update, " + QByteArray::number(count) + " files, ms (target 0.60)";
        Measure::printRow(updating.constData(), ours, peer);
        Measure::printRow("  the same for each file, ms", ours / count, peer / count);
        // Says more than the time where other programs keep a processor busy.
        Measure::printRow("  processor time for each file, ms (target 1.20)",
                          milliseconds(middle - start) / count, milliseconds(end - middle) / count);
        Measure::compare(
            "  once more, ms (peer: listing and reading names; 2.00)", 9,
            [&] { return timeOfUpdate(model, source); },
            [&] {
                return time([&] {
                    listPlainly(source.toUtf8().constData(), false);
                    readPlainNames(model.databasePath().toUtf8().constData());
                });
            });
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QTemporaryDir folder;
    replaceSync(folder);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    const QGuiApplication application(argc, argv);
    const QString part = QCoreApplication::arguments().value(1);
    if (part.isEmpty() || part == QLatin1String("search")) {
        compareSearches(folder);
    }
    if (part.isEmpty() || part == QLatin1String("update")) {
        compareUpdates(folder,
                       QCoreApplication::arguments().value(2, QStringLiteral("20000")).toInt());
    }
    return 0;
}
