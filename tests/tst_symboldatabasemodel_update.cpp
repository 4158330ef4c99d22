// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// A library brought up to date with a folder of drawings.

#include "symboldatabasemodel.h"

#include "widgets_symbols/symbolfolder.h"

#include "support/symboldatabase.h"
#include "support/syncstandin.h"
#include "support/test.h"

#include <QDir>
#include <QSqlDatabase>
#include <QThread>

class TestSymbolUpdate : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aFileBecomesTheSymbolOfItsFullName();
    void onlyDrawingsInFoldersCount();
    void whichFilesAreDrawings_data();
    void whichFilesAreDrawings();
    void hiddenFoldersCount();
    void aFolderWithoutDrawingsBecomesACategory();
    void aSecondUpdateAddsNothingAndListsAllAsUpdated();
    void aKnownNameIsNotAddedToAnotherCategory();
    void aNameThatTwoNewFoldersShareIsAddedOnce();
    void aKnownSymbolStaysAsItIs();
    void whatWasAddedIsLogged();
    void aMissingFolderIsAnEmptyUpdate();
    void aFileThatCannotBeStoredUndoesEverything();
    void aFailedUpdateIsUndoneBeforeTheConnectionIsClosed();
    void aCategoryThatCannotBeAddedDoesNotUndoTheRest();
    void theConnectionStaysOpenWhateverTheResult();
    void withoutATransactionNothingIsDone();
    void aCommitThatFailsIsAFailure();
    void syncIsStartedTwice();
    void aLargeFolderIsStoredInItsOrder();
    void readingAheadEndsWithItsReader();
    void canBeInvokedByName();
    void anObserverIsToldOfEachDrawing();
    void anObserverIsToldWhatFailedAfterWhy();
    void anObserverIsToldNothingOfOtherOperations();

private:
    void draw(const QString& path, const QByteArray& content = filledSvg("red")) const;
    QString root() const { return m_folder->path(); }

    SyncStandIn m_sync;
    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

struct LogLine
{
    QtMsgType type;
    QString text;
    QByteArray file;
    QByteArray function;
};

QList<LogLine> logLines;
QtMessageHandler formerHandler = nullptr;

/// Keeps what goes to the library's log while it lives.
class LogRecorder
{
public:
    LogRecorder()
    {
        logLines.clear();
        formerHandler = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
                if (qstrcmp(context.category, "UtilityWidgets") == 0) {
                    logLines.append({ type, text, context.file, context.function });
                } else {
                    formerHandler(type, context, text);
                }
            });
    }
    ~LogRecorder() { qInstallMessageHandler(formerHandler); }

    Q_DISABLE_COPY_MOVE(LogRecorder)

    QStringList texts() const
    {
        QStringList all;
        for (const LogLine& line : std::as_const(logLines)) {
            all.append(line.text);
        }
        return all;
    }
};

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

const QString Symbols = QStringLiteral("SELECT Category.Name, Image.Name FROM Image, Category "
                                       "WHERE CategoryId = Category.Id ORDER BY 1, 2");

} // namespace

void TestSymbolUpdate::init()
{
    Test::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_sync.takeStarts();
}

void TestSymbolUpdate::cleanup()
{
    m_folder.reset();
    Test::cleanup();
}

/// Writes a drawing to a path below the folder.
void TestSymbolUpdate::draw(const QString& path, const QByteArray& content) const
{
    const QFileInfo info(m_folder->filePath(path));
    QDir().mkpath(info.path());
    QFile file(info.filePath());
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

void TestSymbolUpdate::aFileBecomesTheSymbolOfItsFullName()
{
    draw(QStringLiteral("Signs/arrow.svg"), filledSvg("blue", 30, 20));
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(database.sql(Symbols), QStringList(QStringLiteral("Signs|arrow.svg")));
    QCOMPARE(database.model.getDataFromSymbolName(QStringLiteral("arrow.svg")),
             filledSvg("blue", 30, 20));
    QCOMPARE(database.model.getIconFromSymbolId(1),
             database.model.getThumbnailDataFromRawData(filledSvg("blue", 30, 20)));
    QCOMPARE(database.sql(QStringLiteral("SELECT * FROM Image_Tag")), QStringList());
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolUpdate::onlyDrawingsInFoldersCount()
{
    draw(QStringLiteral("Signs/a.svg"));
    draw(QStringLiteral("Signs/deeper/b.svg"));
    draw(QStringLiteral("Signs/readme.txt"));
    draw(QStringLiteral("Signs/a.svg.txt"));
    draw(QStringLiteral("loose.svg"));
    QDir().mkpath(m_folder->filePath(QStringLiteral("Signs/folder.svg")));
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(database.sql(Symbols), QStringList(QStringLiteral("Signs|a.svg")));
    QCOMPARE(database.model.categories(), QStringList(QStringLiteral("Signs")));
}

void TestSymbolUpdate::whichFilesAreDrawings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("counts");
    QTest::newRow("capitals") << QStringLiteral("ARROW.SVG") << true;
    QTest::newRow("characters of wildcards") << QStringLiteral("[a]*?.svg") << true;
    QTest::newRow("characters of other scripts") << QStringLiteral("矢印 ä.svg") << true;
    QTest::newRow("two lines") << QStringLiteral("a\nb.svg") << true;
    QTest::newRow("hidden") << QStringLiteral(".hidden.svg") << false;
    QTest::newRow("ending alone") << QStringLiteral(".svg") << false;
    QTest::newRow("ending without a dot") << QStringLiteral("asvg") << false;
    QTest::newRow("compressed") << QStringLiteral("a.svgz") << false;
}

void TestSymbolUpdate::whichFilesAreDrawings()
{
    QFETCH(const QString, name);
    QFETCH(const bool, counts);
    draw(QStringLiteral("Signs/") + name);
    // Links count as what they lead to.
    QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("Signs/") + name),
                        m_folder->filePath(QStringLiteral("Signs/link.svg"))));
    QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("nowhere.svg")),
                        m_folder->filePath(QStringLiteral("Signs/broken.svg"))));
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QStringList expected { QStringLiteral("link.svg") };
    if (counts) {
        expected.append(name);
    }
    QStringList names = database.sql(QStringLiteral("SELECT Name FROM Image"));
    names.sort();
    expected.sort();
    QCOMPARE(names, expected);
}

void TestSymbolUpdate::hiddenFoldersCount()
{
    draw(QStringLiteral(".hidden/a.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(database.sql(Symbols), QStringList(QStringLiteral(".hidden|a.svg")));
}

void TestSymbolUpdate::aFolderWithoutDrawingsBecomesACategory()
{
    QDir().mkpath(m_folder->filePath(QStringLiteral("Empty.svg")));
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QVERIFY(database.model.categories().contains(QStringLiteral("Empty.svg")));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolUpdate::aSecondUpdateAddsNothingAndListsAllAsUpdated()
{
    draw(QStringLiteral("Signs/a.svg"));
    draw(QStringLiteral("Signs/b.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    const LogRecorder log;
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(database.sql(Symbols).count(), 2);
    QCOMPARE(log.texts().value(0), QStringLiteral("Added Categories:"));
    QCOMPARE(log.texts().value(1), QStringLiteral("Added Symbols:"));
    QCOMPARE(sorted(log.texts().value(2).mid(16).split(QStringLiteral(", "))),
             (QStringList { QStringLiteral("a.svg"), QStringLiteral("b.svg") }));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolUpdate::aKnownNameIsNotAddedToAnotherCategory()
{
    draw(QStringLiteral("Signs/a.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    draw(QStringLiteral("Others/a.svg"));
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(database.sql(Symbols), QStringList(QStringLiteral("Signs|a.svg")));
    QCOMPARE(sorted(database.model.categories()),
             (QStringList { QStringLiteral("Others"), QStringLiteral("Signs") }));
}

void TestSymbolUpdate::aNameThatTwoNewFoldersShareIsAddedOnce()
{
    draw(QStringLiteral("Signs/a.svg"));
    draw(QStringLiteral("Others/a.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    const LogRecorder log;
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(database.sql(Symbols).count(), 1);
    QCOMPARE(log.texts().mid(1),
             (QStringList { QStringLiteral("Added Symbols:a.svg"),
                            QStringLiteral("Updated Symbols:a.svg") }));
}

void TestSymbolUpdate::aKnownSymbolStaysAsItIs()
{
    draw(QStringLiteral("Signs/a.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    draw(QStringLiteral("Signs/a.svg"), filledSvg("blue"));
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(database.model.getDataFromSymbolId(1), filledSvg("red"));
}

void TestSymbolUpdate::whatWasAddedIsLogged()
{
    draw(QStringLiteral("Signs/a.svg"));
    draw(QStringLiteral("Signs/100%s.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    const LogRecorder log;
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(logLines.count(), 3);
    for (const LogLine& line : std::as_const(logLines)) {
        QCOMPARE(line.type, QtDebugMsg);
        QCOMPARE(line.file, QByteArray("widgets_symbols/symboldatabasemodel"));
        QCOMPARE(line.function, QByteArray("bool SymbolDatabaseModel::updateDatabase(QString)"));
    }
    QCOMPARE(log.texts().at(0), QStringLiteral("Added Categories:Signs"));
    QVERIFY(log.texts().at(1) == QStringLiteral("Added Symbols:a.svg, 100%s.svg")
            || log.texts().at(1) == QStringLiteral("Added Symbols:100%s.svg, a.svg"));
    QCOMPARE(log.texts().at(2), QStringLiteral("Updated Symbols:"));
}

void TestSymbolUpdate::aMissingFolderIsAnEmptyUpdate()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    for (const QString& folder : { m_folder->filePath(QStringLiteral("none")), QString() }) {
        const LogRecorder log;
        QVERIFY(database.model.updateDatabase(folder));
        database.model.close();
        QCOMPARE(
            log.texts(),
            (QStringList { QStringLiteral("Added Categories:"), QStringLiteral("Added Symbols:"),
                           QStringLiteral("Updated Symbols:") }));
    }
    QCOMPARE(database.model.categories().count(), 3);
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolUpdate::aFileThatCannotBeStoredUndoesEverything()
{
    draw(QStringLiteral("Signs/a.svg"));
    draw(QStringLiteral("Signs/empty.svg"), QByteArray());
    draw(QStringLiteral("Signs/z.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    const LogRecorder log;
    QVERIFY(!database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(database.takeErrors(),
             (QStringList {
                 QStringLiteral("Raw SVG Data is null, can not create thumbnail"),
                 queryFailed(QStringLiteral("INSERT INTO Image (Name, Thumbnail, Data, CategoryId) "
                                            "VALUES(:Name, :Thumbnail, :Data, :CategoryId)"),
                             QStringLiteral("NOT NULL constraint failed: Image.Thumbnail Unable to "
                                            "fetch row")),
             }));
    QCOMPARE(database.sql(Symbols), QStringList());
    QCOMPARE(database.model.categories(), QStringList());
    QCOMPARE(log.texts(), QStringList());
}

void TestSymbolUpdate::aFailedUpdateIsUndoneBeforeTheConnectionIsClosed()
{
    draw(QStringLiteral("Signs/empty.svg"), QByteArray());
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(!database.model.updateDatabase(root()));
    database.takeErrors();
    QCOMPARE(database.model.getCategoriesWhileOpen(), QStringList());
    QVERIFY(database.model.startTransaction());
    QVERIFY(database.model.endTransaction());
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolUpdate::aCategoryThatCannotBeAddedDoesNotUndoTheRest()
{
    QDir().mkpath(m_folder->filePath(QStringLiteral("bad")));
    draw(QStringLiteral("Signs/a.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    database.sql(QStringLiteral("CREATE TRIGGER no_bad BEFORE INSERT ON Category WHEN NEW.Name = "
                                "'bad' BEGIN SELECT RAISE(ABORT, 'bad is refused'); END"));
    const LogRecorder log;
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(QStringLiteral("INSERT INTO Category (Name) VALUES (:Name)"),
                                     QStringLiteral("bad is refused Unable to fetch row"))));
    QCOMPARE(database.sql(Symbols), QStringList(QStringLiteral("Signs|a.svg")));
    QVERIFY(log.texts().value(0).contains(QLatin1String("bad")));
}

void TestSymbolUpdate::theConnectionStaysOpenWhateverTheResult()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.updateDatabase(root()));
    QVERIFY(database.model.database().isOpen());
    QVERIFY(!database.model.open(true));
    QCOMPARE(database.takeErrors(), QStringList(database.alreadyExists()));
    QVERIFY(!database.model.updateDatabase(root()));
    QCOMPARE(database.takeErrors(), QStringList(database.alreadyExists()));
    QVERIFY(database.isConnected());
    database.model.close();
    QCOMPARE(database.model.categories(), QStringList());

    draw(QStringLiteral("Signs/empty.svg"), QByteArray());
    QVERIFY(!database.model.updateDatabase(root()));
    QVERIFY(database.model.database().isOpen());
    database.model.close();
    database.takeErrors();
    QVERIFY(database.model.addTag(QStringLiteral("a")));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolUpdate::withoutATransactionNothingIsDone()
{
    SymbolDatabase database;
    database.model.setDatabasePath(QStringLiteral("/proc/symbols.db"));
    QVERIFY(!database.model.updateDatabase(root()));
    QCOMPARE(database.takeErrors().count(), 1);
    QVERIFY(database.isConnected());
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolUpdate::aCommitThatFailsIsAFailure()
{
    QDir().mkpath(m_folder->filePath(QStringLiteral("Signs")));
    SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE Image (Id INTEGER PRIMARY KEY, Name)"),
                       QStringLiteral("CREATE TABLE Category (Id INTEGER PRIMARY KEY, Name, Other "
                                      "INTEGER DEFAULT 7 REFERENCES Image(Id) "
                                      "DEFERRABLE INITIALLY DEFERRED)") });
    const LogRecorder log;
    m_sync.takeStarts();
    QVERIFY(!database.model.updateDatabase(root()));
    QCOMPARE(m_sync.takeStarts(), 0);
    QCOMPARE(database.takeErrors(),
             QStringList(QStringLiteral("Failed to commit transaction:[FOREIGN KEY constraint "
                                        "failed Unable to commit transaction]")));
    QCOMPARE(log.texts(), QStringList());
    database.model.close();
    QCOMPARE(database.model.categories(), QStringList());
}

void TestSymbolUpdate::syncIsStartedTwice()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    m_sync.takeStarts();
    QVERIFY(database.model.updateDatabase(root()));
    QCOMPARE(m_sync.takeStarts(), 2);
    database.model.close();
    QCOMPARE(m_sync.takeStarts(), 1);
}

void TestSymbolUpdate::aLargeFolderIsStoredInItsOrder()
{
    for (int i = 0; i < 300; ++i) {
        draw(QStringLiteral("%1/%2.svg").arg(i % 3).arg(i), filledSvg("red", 10 + i, 10));
    }
    SymbolDatabase database(SymbolDatabase::Schema);
    const LogRecorder log;
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    const QStringList stored = database.sql(QStringLiteral("SELECT Name FROM Image ORDER BY Id"));
    QCOMPARE(stored.count(), 300);
    QCOMPARE(log.texts().at(1),
             QString(QStringLiteral("Added Symbols:") + stored.join(QStringLiteral(", "))));
    for (const int i : { 0, 7, 299 }) {
        QCOMPARE(database.model.getDataFromSymbolName(QStringLiteral("%1.svg").arg(i)),
                 filledSvg("red", 10 + i, 10));
    }
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolUpdate::readingAheadEndsWithItsReader()
{
    QStringList paths;
    for (int i = 0; i < 100; ++i) {
        draw(QStringLiteral("Signs/%1.svg").arg(i));
        paths.append(m_folder->filePath(QStringLiteral("Signs/%1.svg").arg(i)));
    }
    for (int taken = 0; taken < 3; ++taken) {
        SymbolReader reader(paths);
        for (int i = 0; i < taken; ++i) {
            QCOMPARE(reader.next().data, filledSvg("red"));
        }
    }
}

void TestSymbolUpdate::canBeInvokedByName()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    const QMetaObject& meta = SymbolDatabaseModel::staticMetaObject;
    const QMetaMethod method = meta.method(meta.indexOfMethod("updateDatabase(QString)"));
    QCOMPARE(method.parameterNames(), QList<QByteArray> { "svgFolderPath" });
    bool result = false;
    QVERIFY(method.invoke(&database.model, Q_RETURN_ARG(bool, result), Q_ARG(QString, root())));
    QVERIFY(result);
    database.model.close();
}

void TestSymbolUpdate::anObserverIsToldOfEachDrawing()
{
    using Step = SymbolDatabaseModel::UpdateStep;
    draw(QStringLiteral("Signs/old.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    for (int i = 0; i < 40; ++i) {
        draw(QStringLiteral("Signs/%1.svg").arg(i));
    }
    QList<Step> steps;
    int stored = 0;
    database.model.setUpdateObserver([&](const Step& step) {
        QCOMPARE(QThread::currentThread(), thread());
        steps.append(step);
        stored = database.model.getSymbolIDFromNameWhileOpen(step.name) == -1 ? stored : stored + 1;
    });
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();

    QCOMPARE(steps.count(), 41);
    QCOMPARE(stored, 41);
    QStringList added;
    for (int i = 0; i < 41; ++i) {
        QCOMPARE(steps.at(i).done, i + 1);
        QCOMPARE(steps.at(i).total, 41);
        QCOMPARE(steps.at(i).category, QStringLiteral("Signs"));
        QCOMPARE(steps.at(i).outcome, i == 0 ? Step::Known : Step::Added);
        added.append(steps.at(i).name);
    }
    QCOMPARE(added, database.sql(QStringLiteral("SELECT Name FROM Image ORDER BY Id")));
}

void TestSymbolUpdate::anObserverIsToldWhatFailedAfterWhy()
{
    using Step = SymbolDatabaseModel::UpdateStep;
    draw(QStringLiteral("Signs/a.svg"));
    draw(QStringLiteral("Signs/empty.svg"), QByteArray());
    draw(QStringLiteral("Signs/z.svg"));
    SymbolDatabase database(SymbolDatabase::Schema);
    QStringList failed;
    QStringList messages;
    int added = 0;
    database.model.setUpdateObserver([&](const Step& step) {
        const QStringList errors = database.takeErrors();
        if (step.outcome == Step::Failed) {
            failed.append(step.name);
            messages = errors;
        } else {
            QCOMPARE(errors, QStringList());
            ++added;
        }
    });
    QVERIFY(!database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(failed, QStringList(QStringLiteral("empty.svg")));
    QCOMPARE(messages.count(), 2);
    QCOMPARE(added, 2);
}

void TestSymbolUpdate::anObserverIsToldNothingOfOtherOperations()
{
    draw(QStringLiteral("Signs/a.svg"));
    SymbolDatabase database(SymbolDatabase::Symbols);
    int told = 0;
    database.model.setUpdateObserver([&](const auto&) { ++told; });
    QVERIFY(database.model.addSymbol(m_folder->filePath(QStringLiteral("Signs/a.svg")),
                                     QStringLiteral("a"), QStringLiteral("Signs"), {}));
    QCOMPARE(told, 0);
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(told, 1);
    database.model.setUpdateObserver({});
    QVERIFY(database.model.updateDatabase(root()));
    database.model.close();
    QCOMPARE(told, 1);
}

UW_TEST_MAIN(TestSymbolUpdate)

#include "tst_symboldatabasemodel_update.moc"
