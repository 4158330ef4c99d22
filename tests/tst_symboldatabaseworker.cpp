// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symboldatabaseworker.h"

#include "support/symboldatabase.h"
#include "support/syncstandin.h"
#include "support/test.h"

#include <QSignalSpy>
#include <QStandardItem>
#include <QStandardItemModel>
#include <QThread>

#include <atomic>
#include <thread>

class TestSymbolDatabaseWorker : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithNothing();
    void hasItsSlotsAndSignals();

    void aLibraryStartsWithSortedCategoriesAndAllSymbols();
    void aLibraryThatIsMissingStartsEmptyAndIsNotMade();
    void failuresOfALibraryAreNotLogged();

    void aMissingDatabaseIsMadeWithTheCategoryUser();
    void aDatabaseThatCannotBeMadeIsReportedByTheFlag();
    void anExistingDatabaseIsUsedAsItIs();
    void failuresWhileADatabaseIsOpenedAreNotLogged();

    void aSearchReplacesTheResults();
    void resultsThatAreTakenAreForgotten();
    void resultsThatNobodyTookDieWithTheWorker();
    void aThreadThatIsToEndCutsTheSearchShort();
    void resultsCarryThumbnailsAndNoIcons();
    void anUnknownCategoryIsLogged();
    void errorsAreLoggedWithTheirPlace();
    void anAddedSymbolIsAmongTheResults();
    void anAdditionThatFailsStillSearches();
    void aDeletedSymbolIsGoneFromTheResults();
    void anUnknownSymbolDeletedStillSearches();
    void singleSymbolsAreFetchedDirectly();
    void anUnknownSymbolIsFetchedEmpty();
    void worksOnAnotherThreadWhileTheGuiFetches();
    void twoWorkersShareOneFile();

private:
    SyncStandIn m_sync;
};

namespace {

/// A worker whose results are deleted with it, and the thread that it may be given.
struct Subject
{
    Subject() = default;
    ~Subject()
    {
        thread.quit();
        thread.wait();
    }
    Q_DISABLE_COPY_MOVE(Subject)

    void startThread()
    {
        worker.moveToThread(&thread);
        thread.start();
    }

    /// The names of the results, which are then gone.
    QStringList takeNames()
    {
        QStringList names;
        const QList<QStandardItem*> results = worker.takeResults();
        for (const QStandardItem* item : results) {
            names.append(item->toolTip());
        }
        qDeleteAll(results);
        return names;
    }

    SymbolDatabaseWorker worker;
    QThread thread;
};

/// Counts, instead of showing, what goes to the library's log while it lives.
class LogCounter
{
public:
    LogCounter()
    {
        lines = 0;
        former = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
                if (qstrcmp(context.category, "UtilityWidgets") == 0) {
                    ++lines;
                } else {
                    former(type, context, text);
                }
            });
    }
    ~LogCounter() { qInstallMessageHandler(former); }

    Q_DISABLE_COPY_MOVE(LogCounter)

    int count() const { return lines; }

private:
    static inline QtMessageHandler former = nullptr;
    static inline int lines = 0;
};

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const QString UnknownCategory =
    QStringLiteral("Error: Query:[SELECT DISTINCT Image.Id, Image.Name, Image.Thumbnail FROM "
                   "Image WHERE ] Failed With:[incomplete input Unable to execute statement]");

} // namespace

void TestSymbolDatabaseWorker::startsWithNothing()
{
    SymbolDatabaseWorker worker;
    QVERIFY(worker.parent() == nullptr);
    QCOMPARE(worker.getResults().count(), 0);
    QVERIFY(worker.getSuccessLoad());
    QVERIFY(!worker.getSuccessAdd());
    QCOMPARE(worker.getDataFromSymbolId(1), QByteArray());
    const std::unique_ptr<QStandardItem> item(worker.getItemFromSymbolId(1));
    QCOMPARE(item->data(Qt::UserRole + 2), QVariant(-1));
}

void TestSymbolDatabaseWorker::hasItsSlotsAndSignals()
{
    const QMetaObject& meta = SymbolDatabaseWorker::staticMetaObject;
    for (const char* slot :
         { "getStartupItems(QString)", "getStartupItemsAndCreate(QString)",
           "getItemsBySearch(QString)", "addSymbol(QByteArray,QByteArray,QString,QString)",
           "deleteSymbol(int)", "databaseErrorOccured(QString)" }) {
        QVERIFY2(meta.indexOfSlot(slot) >= 0, slot);
    }
    QVERIFY(meta.indexOfSignal("startupReady(QStringList)") >= 0);
    QVERIFY(meta.indexOfSignal("resultReady()") >= 0);
}

void TestSymbolDatabaseWorker::aLibraryStartsWithSortedCategoriesAndAllSymbols()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    database.sql(QStringLiteral("INSERT INTO Category (Name) VALUES ('apes'), ('Boats')"));
    Subject subject;
    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::startupReady);
    QSignalSpy result(&subject.worker, &SymbolDatabaseWorker::resultReady);
    subject.worker.getStartupItems(database.path());
    QCOMPARE(ready.count(), 1);
    QCOMPARE(result.count(), 0);
    QCOMPARE(ready.constFirst().constFirst().toStringList(),
             words("Animals Boats Empty Signs apes"));
    QCOMPARE(subject.takeNames(), words("up danger cat"));
    QVERIFY(subject.worker.getSuccessLoad());
}

void TestSymbolDatabaseWorker::aLibraryThatIsMissingStartsEmptyAndIsNotMade()
{
    const SymbolDatabase database;
    Subject subject;
    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::startupReady);
    subject.worker.getStartupItems(database.path());
    QCOMPARE(ready.count(), 1);
    QCOMPARE(ready.constFirst().constFirst().toStringList(), QStringList());
    QCOMPARE(subject.worker.getResults().count(), 0);
    QVERIFY(subject.worker.getSuccessLoad());
    QVERIFY(!database.exists());
}

void TestSymbolDatabaseWorker::failuresOfALibraryAreNotLogged()
{
    const LogCounter log;
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    subject.worker.getStartupItems(database.path());
    subject.takeNames();
    subject.worker.getItemsBySearch(QStringLiteral("Unknown"));
    QCOMPARE(subject.worker.getResults().count(), 0);
    QCOMPARE(log.count(), 0);
}

void TestSymbolDatabaseWorker::aMissingDatabaseIsMadeWithTheCategoryUser()
{
    const SymbolDatabase database;
    Subject subject;
    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::startupReady);
    subject.worker.getStartupItemsAndCreate(database.path());
    QCOMPARE(ready.count(), 1);
    QCOMPARE(ready.constFirst().constFirst().toStringList(), QStringList());
    QVERIFY(subject.worker.getSuccessLoad());
    QCOMPARE(subject.worker.getResults().count(), 0);
    QCOMPARE(database.sql(QStringLiteral("SELECT Name FROM Category")), words("USER"));
    QCOMPARE(database.sql(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type = 'table' "
                                         "AND name NOT LIKE 'sqlite_%'")),
             words("4"));
}

void TestSymbolDatabaseWorker::aDatabaseThatCannotBeMadeIsReportedByTheFlag()
{
    Subject subject;
    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::startupReady);
    subject.worker.getStartupItemsAndCreate(QStringLiteral("/proc/userSymbols.db"));
    QCOMPARE(ready.count(), 1);
    QCOMPARE(ready.constFirst().constFirst().toStringList(), QStringList());
    QVERIFY(!subject.worker.getSuccessLoad());
    QCOMPARE(subject.worker.getResults().count(), 0);
}

void TestSymbolDatabaseWorker::anExistingDatabaseIsUsedAsItIs()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    subject.worker.getStartupItemsAndCreate(database.path());
    QVERIFY(subject.worker.getSuccessLoad());
    QCOMPARE(subject.takeNames(), words("up danger cat"));
    QCOMPARE(database.sql(QStringLiteral("SELECT count(*) FROM Category")), words("3"));
}

void TestSymbolDatabaseWorker::failuresWhileADatabaseIsOpenedAreNotLogged()
{
    const SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE Other (a)") });
    const LogCounter log;
    Subject subject;
    subject.worker.getStartupItemsAndCreate(database.path());
    QVERIFY(subject.worker.getSuccessLoad());
    QCOMPARE(subject.worker.getResults().count(), 0);
    QCOMPARE(log.count(), 0);
}

void TestSymbolDatabaseWorker::aSearchReplacesTheResults()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::resultReady);
    subject.worker.getStartupItems(database.path());
    subject.takeNames();
    subject.worker.getItemsBySearch(QStringLiteral("Animals"));
    QCOMPARE(ready.count(), 1);
    QCOMPARE(subject.takeNames(), words("cat"));
    subject.worker.getItemsBySearch(QString());
    QCOMPARE(ready.count(), 2);
    QCOMPARE(subject.takeNames(), words("up danger cat"));
    subject.worker.getItemsBySearch(QStringLiteral("All Categories"));
    QCOMPARE(ready.count(), 3);
    QCOMPARE(subject.takeNames(), words("up danger cat"));
}

void TestSymbolDatabaseWorker::resultsThatAreTakenAreForgotten()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    SymbolDatabaseWorker worker;
    worker.getStartupItems(database.path());
    const QList<QStandardItem*> results = worker.getResults();
    QCOMPARE(results.count(), 3);
    QCOMPARE(worker.takeResults(), results);
    QCOMPARE(worker.takeResults().count(), 0);
    QCOMPARE(worker.getResults().count(), 0);
    worker.getItemsBySearch(QStringLiteral("Animals"));
    QCOMPARE(results.constFirst()->toolTip(), QStringLiteral("up")); // not the worker's any more
    qDeleteAll(results);
}

void TestSymbolDatabaseWorker::resultsThatNobodyTookDieWithTheWorker()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    QStandardItemModel model; // notices when its items die
    {
        SymbolDatabaseWorker worker;
        worker.getStartupItems(database.path());
        worker.getItemsBySearch(QStringLiteral("Animals"));
        model.appendRow(worker.getResults());
        worker.getItemsBySearch(QString());
    } // three results that nobody took: AddressSanitizer tells
    QCOMPARE(model.item(0)->toolTip(), QStringLiteral("cat"));
}

void TestSymbolDatabaseWorker::aThreadThatIsToEndCutsTheSearchShort()
{
    const LogCounter log;
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    subject.startThread();
    SymbolDatabaseWorker* worker = &subject.worker;
    QMetaObject::invokeMethod(
        worker, [&] { worker->getStartupItemsAndCreate(database.path()); },
        Qt::BlockingQueuedConnection);
    subject.takeNames();
    int ready = 0;
    connect(worker, &SymbolDatabaseWorker::resultReady, this, [&] { ++ready; });
    subject.thread.requestInterruption();
    QMetaObject::invokeMethod(worker, [worker] { worker->getItemsBySearch(QString()); });
    QTRY_COMPARE(ready, 1);
    QCOMPARE(subject.takeNames(), QStringList());
    QCOMPARE(log.count(), 0);
}

void TestSymbolDatabaseWorker::resultsCarryThumbnailsAndNoIcons()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    subject.worker.getStartupItems(database.path());
    QStandardItemModel model;
    model.appendColumn(subject.worker.getResults());
    QCOMPARE(model.rowCount(), 3);
    for (int row = 0; row < model.rowCount(); ++row) {
        const QStandardItem* item = model.item(row);
        QVERIFY(item->data(Qt::UserRole + 2).toByteArray().startsWith("\x89PNG"));
        QVERIFY(!item->data(Qt::DecorationRole).isValid());
    }
}

void TestSymbolDatabaseWorker::anUnknownCategoryIsLogged()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::resultReady);
    subject.worker.getStartupItemsAndCreate(database.path());
    subject.takeNames();
    QTest::ignoreMessage(QtCriticalMsg, qPrintable(UnknownCategory));
    subject.worker.getItemsBySearch(QStringLiteral("Unknown"));
    QCOMPARE(ready.count(), 1);
    QCOMPARE(subject.worker.getResults().count(), 0);
}

void TestSymbolDatabaseWorker::errorsAreLoggedWithTheirPlace()
{
    static QtMessageHandler former = nullptr;
    static QStringList line;
    line.clear();
    former = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
            line = QStringList { QString::number(type), QString::fromLatin1(context.category),
                                 QString::fromLatin1(context.file),
                                 QString::fromLatin1(context.function), text };
        });
    SymbolDatabaseWorker worker;
    worker.databaseErrorOccured(QStringLiteral("100%s ä"));
    qInstallMessageHandler(former);
    QCOMPARE(
        line,
        (QStringList { QString::number(QtCriticalMsg), QStringLiteral("UtilityWidgets"),
                       QStringLiteral("widgets_symbols/symboldatabaseworker"),
                       QStringLiteral("void SymbolDatabaseWorker::databaseErrorOccured(QString)"),
                       QStringLiteral("Error: 100%s ä") }));
}

void TestSymbolDatabaseWorker::anAddedSymbolIsAmongTheResults()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::resultReady);
    subject.worker.getStartupItemsAndCreate(database.path());
    subject.takeNames();
    subject.worker.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("Animals"));
    QVERIFY(subject.worker.getSuccessAdd());
    QCOMPARE(ready.count(), 1);
    QCOMPARE(subject.takeNames(), words("up danger cat dog"));
}

void TestSymbolDatabaseWorker::anAdditionThatFailsStillSearches()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    subject.worker.getStartupItemsAndCreate(database.path());
    subject.takeNames();
    subject.worker.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("Animals"));
    subject.takeNames();
    QVERIFY(subject.worker.getSuccessAdd());

    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::resultReady);
    QTest::ignoreMessage(QtCriticalMsg, "Error: Unknown category: [X]");
    subject.worker.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("X"));
    QVERIFY(!subject.worker.getSuccessAdd());
    QCOMPARE(ready.count(), 1);
    QCOMPARE(subject.takeNames(), words("up danger cat dog"));
}

void TestSymbolDatabaseWorker::aDeletedSymbolIsGoneFromTheResults()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::resultReady);
    subject.worker.getStartupItemsAndCreate(database.path());
    subject.takeNames();
    subject.worker.deleteSymbol(2);
    QCOMPARE(ready.count(), 1);
    QCOMPARE(subject.takeNames(), words("up cat"));
}

void TestSymbolDatabaseWorker::anUnknownSymbolDeletedStillSearches()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    QSignalSpy ready(&subject.worker, &SymbolDatabaseWorker::resultReady);
    subject.worker.getStartupItemsAndCreate(database.path());
    subject.takeNames();
    subject.worker.deleteSymbol(99);
    QCOMPARE(ready.count(), 1);
    QCOMPARE(subject.takeNames(), words("up danger cat"));
}

void TestSymbolDatabaseWorker::singleSymbolsAreFetchedDirectly()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    subject.worker.getStartupItems(database.path());
    QCOMPARE(subject.worker.getDataFromSymbolId(3), filledSvg("green"));
    const std::unique_ptr<QStandardItem> item(subject.worker.getItemFromSymbolId(3));
    QCOMPARE(item->data(Qt::UserRole + 2), QVariant(3));
    QVERIFY(!item->icon().isNull());
}

void TestSymbolDatabaseWorker::anUnknownSymbolIsFetchedEmpty()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    subject.worker.getStartupItems(database.path());
    QCOMPARE(subject.worker.getDataFromSymbolId(99), QByteArray());
    const std::unique_ptr<QStandardItem> item(subject.worker.getItemFromSymbolId(99));
    QCOMPARE(item->data(Qt::UserRole + 2), QVariant(-1));
}

void TestSymbolDatabaseWorker::worksOnAnotherThreadWhileTheGuiFetches()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject subject;
    SymbolDatabaseWorker* worker = &subject.worker;
    // Counted here; a spy would count on the other thread.
    int started = 0;
    int ready = 0;
    connect(worker, &SymbolDatabaseWorker::startupReady, this, [&] { ++started; });
    connect(worker, &SymbolDatabaseWorker::resultReady, this, [&] { ++ready; });
    subject.startThread();
    QMetaObject::invokeMethod(worker, [&] { worker->getStartupItemsAndCreate(database.path()); });
    QTRY_COMPARE(started, 1);
    QCOMPARE(subject.takeNames(), words("up danger cat"));

    // Both sides open the connection of one model; neither may ever find it open.
    for (int i = 1; i <= 20; ++i) {
        QMetaObject::invokeMethod(
            worker, [worker] { worker->getItemsBySearch(QStringLiteral("Animals")); });
        QCOMPARE(worker->getDataFromSymbolId(3), filledSvg("green"));
        delete worker->getItemFromSymbolId(1);
        QTRY_COMPARE(ready, i);
        QCOMPARE(subject.takeNames(), words("cat"));
    }
}

void TestSymbolDatabaseWorker::twoWorkersShareOneFile()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    Subject first;
    Subject second;
    std::atomic<int> additions = 0;
    const auto addSymbols = [&](Subject* subject) {
        subject->worker.getStartupItemsAndCreate(database.path());
        subject->takeNames();
        for (int i = 0; i < 10; ++i) {
            subject->worker.addSymbol("svg", "png", QStringLiteral("dog"),
                                      QStringLiteral("Animals"));
            subject->takeNames();
            additions += subject->worker.getSuccessAdd() ? 1 : 0;
        }
    };
    std::thread thread(addSymbols, &first);
    addSymbols(&second);
    thread.join();

    // One that finds the other in the middle of a change may be refused, and is told so.
    QVERIFY(additions > 0);
    QCOMPARE(database.sql(QStringLiteral("SELECT count(*) FROM Image WHERE Name = 'dog'")),
             QStringList(QString::number(additions)));
    QCOMPARE(database.sql(QStringLiteral("PRAGMA integrity_check")), words("ok"));
}

UW_TEST_MAIN(TestSymbolDatabaseWorker)

#include "tst_symboldatabaseworker.moc"
