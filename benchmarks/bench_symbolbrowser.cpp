// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// The symbol browser over libraries of 1,000, 10,000 and 100,000 symbols: from asking for a library
// to the first frame that shows it, from the symbols in hand to that frame, the longest time that
// the event loop was not free, and memory. Beside it the same browser's worker with a view that is
// filled in the plain way, symbol by symbol with every icon decoded, and the limit: SQLite's own
// loop over the rows plus a frame of an empty view. Each measurement is a process of its own, for
// its memory to be its own.
//
// Targets at 100,000: symbols in hand to first frame below 50 ms, no stall above 50 ms, memory
// below 1.3 times the bytes of the thumbnails.

#include "measure.h"
#include "symboldatabasemodel.h"
#include "symboldatabasewidget.h"
#include "symboldatabaseworker.h"

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QListView>
#include <QProcess>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QThread>

#include <malloc.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

namespace {

constexpr QSize BrowserSize(900, 518);

// --- the measured process -------------------------------------------------------------------------

/// Bytes of this process that are in memory.
double residentBytes()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QFile::ReadOnly)) {
        return 0;
    }
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE));
}

/// Milliseconds
struct Figures
{
    double toFrame = 0;
    double handToFrame = 0;
    double stall = 0;
    double bytes = 0;
};

/// Notes when the answer of the worker arrives and when the view is painted with symbols in it.
class Watch : public QObject
{
public:
    Watch(QObject* receiver, QAbstractItemView* view)
        : m_receiver(receiver)
        , m_view(view)
    {
        receiver->installEventFilter(this);
        view->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (object == m_receiver && event->type() == QEvent::MetaCall
            && m_view->model()->rowCount() == 0) {
            inHand = timer.nsecsElapsed();
        }
        isPainting = isPainting
            || (object == m_view->viewport() && event->type() == QEvent::Paint
                && m_view->model()->rowCount() > 0);
        return false;
    }

    /// Runs the event loop until the frame is there, and half a second more for what comes after.
    Figures run() const
    {
        Figures figures;
        qint64 painted = 0;
        while (painted == 0 || timer.nsecsElapsed() - painted < 500'000'000) {
            const qint64 before = timer.nsecsElapsed();
            QCoreApplication::processEvents();
            const qint64 after = timer.nsecsElapsed();
            figures.stall = std::max(figures.stall, double(after - before) / 1e6);
            if (painted == 0 && isPainting) {
                painted = after;
            }
        }
        figures.toFrame = double(painted) / 1e6;
        figures.handToFrame = double(painted - inHand) / 1e6;
        return figures;
    }

    QElapsedTimer timer;

private:
    QObject* m_receiver;
    QAbstractItemView* m_view;
    qint64 inHand = 0;
    bool isPainting = false;
};

Figures browse(const QString& path)
{
    SymbolDatabaseWidget browser;
    browser.setInsertMode(true);
    browser.show();
    // The device's own library, which is not there.
    while (browser.findChild<QPushButton*>(QStringLiteral("DragScrollButton")) == nullptr) {
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    const double before = residentBytes();
    Watch watch(&browser, browser.findChild<QListView*>());
    watch.timer.start();
    Q_EMIT browser.startSymbolManager(path);
    Figures figures = watch.run();
    figures.bytes = residentBytes() - before;
    return figures;
}

/// Fills a view the plain way.
class EagerView : public QListView
{
public:
    explicit EagerView(SymbolDatabaseWorker* worker)
    {
        setViewMode(IconMode);
        setIconSize(QSize(60, 60));
        setGridSize(QSize(60, 60));
        setMovement(Static);
        setResizeMode(Adjust);
        setModel(&m_model);
        resize(BrowserSize);
        connect(worker, &SymbolDatabaseWorker::startupReady, this, [this, worker] {
            const QList<QStandardItem*> items = worker->takeResults();
            for (QStandardItem* item : items) {
                QPixmap thumbnail;
                thumbnail.loadFromData(item->data(Qt::UserRole + 2).toByteArray());
                item->setEditable(false);
                item->setIcon(thumbnail);
                m_model.appendRow(item);
            }
        });
    }

private:
    QStandardItemModel m_model;
};

Figures browseEagerly(const QString& path)
{
    QThread thread;
    SymbolDatabaseWorker worker;
    worker.moveToThread(&thread);
    thread.start();
    Figures figures;
    {
        EagerView view(&worker);
        view.show();
        QCoreApplication::processEvents();
        const double before = residentBytes();
        Watch watch(&view, &view);
        watch.timer.start();
        QMetaObject::invokeMethod(&worker, [&worker, path] { worker.getStartupItems(path); });
        figures = watch.run();
        figures.bytes = residentBytes() - before;
    }
    thread.quit();
    thread.wait();
    return figures;
}

/// What no browser is faster than.
Figures readAndPaint(const QString& path)
{
    QListView view;
    view.resize(BrowserSize);
    view.show();
    QCoreApplication::processEvents();
    QElapsedTimer timer;
    timer.start();
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    sqlite3_open_v2(QFile::encodeName(path).constData(), &database, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_prepare_v2(database,
                       "SELECT DISTINCT Image.Id, Image.Name, Image.Thumbnail FROM Image ", -1,
                       &statement, nullptr);
    qint64 bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        bytes += sqlite3_column_int(statement, 0) + sqlite3_column_bytes(statement, 1)
            + sqlite3_column_bytes(statement, 2);
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
    if (bytes == 0) {
        std::fprintf(stderr, "nothing read\n");
    }
    Figures figures;
    const qint64 read = timer.nsecsElapsed();
    view.grab();
    figures.toFrame = double(timer.nsecsElapsed()) / 1e6;
    figures.handToFrame = double(timer.nsecsElapsed() - read) / 1e6;
    return figures;
}

/// As a process of its own: prints what it has measured.
int measure(const QString& what, const QString& path)
{
    const Figures figures = what == QLatin1String("browser") ? browse(path)
        : what == QLatin1String("eager")                     ? browseEagerly(path)
                                                             : readAndPaint(path);
    std::printf("%f %f %f %f\n", figures.toFrame, figures.handToFrame, figures.stall,
                figures.bytes);
    return 0;
}

// --- the process that runs them -------------------------------------------------------------------

/// Our own drawings, as often as it takes. Returns the bytes of all thumbnails.
double makeLibrary(const QString& path, int count)
{
    SymbolDatabaseModel model;
    std::vector<QByteArray> drawings;
    std::vector<QByteArray> thumbnails;
    QDirIterator files(QStringLiteral(SYMBOLS_FOLDER), { QStringLiteral("*.svg") }, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        drawings.push_back(model.getRawDataFromImagePath(files.next()));
        thumbnails.push_back(model.getThumbnailDataFromRawData(drawings.back()));
    }
    model.setDatabasePath(path);
    if (drawings.empty() || !model.createSchema()) {
        qFatal("no library");
    }
    double bytes = 0;
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("filling"));
        database.setDatabaseName(path);
        database.open();
        database.transaction();
        for (int category = 1; category <= 6; ++category) {
            QSqlQuery(database).exec(
                QStringLiteral("INSERT INTO Category (Name) VALUES ('Category_%1')").arg(category));
        }
        QSqlQuery insertion(database);
        insertion.prepare(QStringLiteral("INSERT INTO Image (Name, Thumbnail, Data, CategoryId) "
                                         "VALUES (?, ?, ?, ?)"));
        for (int i = 0; i < count; ++i) {
            const std::size_t drawing = std::size_t(i) % drawings.size();
            insertion.bindValue(0, QStringLiteral("symbol-%1.svg").arg(i));
            insertion.bindValue(1, thumbnails[drawing]);
            insertion.bindValue(2, drawings[drawing]);
            insertion.bindValue(3, i % 6 + 1);
            insertion.exec();
            bytes += double(thumbnails[drawing].size());
        }
        database.commit();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("filling"));
    return bytes;
}

Figures median(const std::vector<Figures>& rounds)
{
    const auto of = [&rounds](double Figures::*member) {
        std::vector<double> values;
        values.reserve(rounds.size());
        for (const Figures& figures : rounds) {
            values.push_back(figures.*member);
        }
        return Measure::median(values);
    };
    return { of(&Figures::toFrame), of(&Figures::handToFrame), of(&Figures::stall),
             of(&Figures::bytes) };
}

Figures measured(const QString& what, const QString& path)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), { what, path });
    process.waitForFinished(-1);
    const QList<QByteArray> figures = process.readAllStandardOutput().trimmed().split(' ');
    if (process.exitCode() != 0 || figures.count() != 4) {
        qFatal("%s failed", qPrintable(what));
    }
    return { figures[0].toDouble(), figures[1].toDouble(), figures[2].toDouble(),
             figures[3].toDouble() };
}

void compare(int count)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("symbols.db"));
    const double thumbnails = makeLibrary(path, count);
    const QStringList contenders { QStringLiteral("browser"), QStringLiteral("eager"),
                                   QStringLiteral("limit") };
    std::vector<std::vector<Figures>> figures(3);
    for (int round = 0; round < 5; ++round) {
        for (std::size_t i = 0; i < 3; ++i) {
            figures[i].push_back(measured(contenders[qsizetype(i)], path));
        }
    }
    std::printf("\n%d symbols, %.1f MB of thumbnails\n", count, thumbnails / 1e6);
    std::printf("%-10s %16s %16s %12s %10s %12s\n", "", "asked to frame", "in hand to frame",
                "stall", "memory", "of the bytes");
    for (std::size_t i = 0; i < 3; ++i) {
        const Figures middle = median(figures[i]);
        std::printf("%-10s %13.1f ms %13.1f ms %9.1f ms %7.1f MB %12.2f\n",
                    qPrintable(contenders[qsizetype(i)]), middle.toFrame, middle.handToFrame,
                    middle.stall, middle.bytes / 1e6, middle.bytes / thumbnails);
    }
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.count() == 3) {
        return measure(arguments[1], arguments[2]);
    }
    std::printf("Targets at 100,000: in hand to frame and stall below 50 ms, memory below 1.30\n");
    for (const int count : { 1000, 10000, 100000 }) {
        compare(count);
    }
    return 0;
}
