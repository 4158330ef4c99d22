// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symboldatabasemodel.h"

#include "support/symboldatabase.h"
#include "support/syncstandin.h"
#include "support/test.h"

#include <QElapsedTimer>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlQuery>
#include <QSqlResult>

namespace {

/// Opens everything and can do nothing.
class DeafResult : public QSqlResult
{
public:
    explicit DeafResult(const QSqlDriver* driver)
        : QSqlResult(driver)
    { }

protected:
    QVariant data(int) override { return {}; }
    bool isNull(int) override { return true; }
    bool reset(const QString&) override { return false; }
    bool fetch(int) override { return false; }
    bool fetchFirst() override { return false; }
    bool fetchLast() override { return false; }
    int size() override { return -1; }
    int numRowsAffected() override { return -1; }
};

class DeafDriver : public QSqlDriver
{
public:
    bool hasFeature(DriverFeature) const override { return false; }
    bool open(const QString&, const QString&, const QString&, const QString&, int,
              const QString&) override
    {
        setOpen(true);
        return true;
    }
    void close() override { setOpen(false); }
    QSqlResult* createResult() const override { return new DeafResult(this); }
};

/// Has the deaf driver used in place of SQLite's for as long as it lives.
class StandInForSqlite
{
public:
    StandInForSqlite()
    {
        QSqlDatabase::registerSqlDriver(QStringLiteral("QSQLITE"),
                                        new QSqlDriverCreator<DeafDriver>);
    }
    ~StandInForSqlite() { QSqlDatabase::registerSqlDriver(QStringLiteral("QSQLITE"), nullptr); }

    Q_DISABLE_COPY_MOVE(StandInForSqlite)
};

} // namespace

class TestSymbolDatabaseModel : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void hasThePathAsAProperty();
    void hasItsSignals();
    void connectionsAreNamedByAUuidOfTheirOwn();
    void thePathIsEmptyUntilSet();
    void aNewPathIsStoredAndReported();
    void theCurrentPathSetAgainEmitsNothing();
    void aNewPathCountsFromTheNextOpening();

    void readingAMissingFileReportsOnlyTheClosingAndMakesNoFile();
    void openingAMissingFileForReadingIsSilent();
    void writingToAMissingFileMakesAnEmptyDatabase();
    void openingTwiceIsRefusedAndReported();
    void openingForReadingAllowsNoChange();
    void theLockTimeoutCountsFromTheNextOpening();
    void aLockedFileFailsOnceTheLockTimeoutIsOver();
    void foreignKeysAreOnInEveryConnection();
    void foreignKeysThatCannotBeSwitchedOnAreReportedOnly();
    void aFolderThatIsNotThereIsReportedAndLeavesNoConnection();
    void aFolderThatCannotBeWrittenIsReported();
    void closingWhatIsNotOpenIsReported();
    void nothingIsHeldOpenBetweenOperations();
    void anOperationInsideAnOpenDatabaseFailsAndClosesIt();
    void destroyingAModelLeavesItsConnectionAlone();
    void twoModelsUseOneFileAtTheSameTime();
    void twoModelsUseOneFileOneAfterTheOther();

    void syncIsStartedByEveryClosingAndCommit();
    void aTransactionInsideATransactionIsReported();
    void aTransactionWithoutAConnectionIsReported();
    void committingNothingIsReported();
    void aCommitThatFailsIsReportedAndRolledBack();
    void aCommittedTransactionIsStored();
    void theErrorOfAQueryNamesStatementAndErrorInOnePass();

    void theSchemaIsMadeWithTheseStatements();
    void aSchemaThatExistsIsReportedAndNothingElseIsMade();
    void aSchemaThatFailsHalfwayIsCommitted();
    void aSchemaCannotBeMadeWhereTheFileCannot();
    void aMissingTableMakesTheSchemaInvalid_data();
    void aMissingTableMakesTheSchemaInvalid();
    void lettersOfTableNamesMayDifferInCase();
    void columnsAreNotExamined();
    void deletingACategoryDeletesItsSymbolsAndTheirLinks();

    void aFileThatIsNoDatabaseIsReportedAndLeftAsItIs();
    void aDamagedPageIsReported();
    void aLockedDatabaseIsReported();
    void aWriterIsRefusedInTheMiddleOfAnothersTransaction();

    void messagesCarryCommentsForTranslators();

private:
    SyncStandIn m_sync;
};

namespace {

const QStringList Statements {
    QStringLiteral("CREATE TABLE \"Image\" ( 'Id' INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT "
                   "UNIQUE, 'Name' TEXT NOT NULL, 'Thumbnail' BLOB NOT NULL ,'Data' BLOB NOT NULL, "
                   "'CategoryId' INTEGER NOT NULL, FOREIGN KEY(CategoryId) REFERENCES "
                   "Category(Id) ON DELETE CASCADE)"),
    QStringLiteral("CREATE TABLE \"Tag\" ( 'Id' INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT UNIQUE, "
                   "'Name' TEXT NOT NULL UNIQUE )"),
    QStringLiteral("CREATE TABLE \"Image_Tag\" ( 'ImageId' INTEGER NOT NULL, 'TagId' INTEGER NOT "
                   "NULL, PRIMARY KEY(ImageId, TagId), FOREIGN KEY(ImageId) REFERENCES Image(Id) "
                   "ON DELETE CASCADE,  FOREIGN KEY(TagId) REFERENCES Tag(Id) ON DELETE CASCADE)"),
    QStringLiteral("CREATE TABLE \"Category\" ( 'Id' INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT "
                   "UNIQUE, 'Name' TEXT NOT NULL UNIQUE )"),
};

const QString TablesInOrder = QStringLiteral(
    "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%' ORDER BY rowid");

/// A table whose rows are accepted until they are to be committed.
const QString TableThatCannotBeCommitted =
    QStringLiteral("CREATE TABLE Tag (Id INTEGER PRIMARY KEY, Name TEXT, "
                   "Other INTEGER DEFAULT 7 REFERENCES Tag(Id) DEFERRABLE INITIALLY DEFERRED)");

} // namespace

void TestSymbolDatabaseModel::isNamedAfterItsClass()
{
    QCOMPARE(SymbolDatabaseModel().objectName(), QStringLiteral("SymbolDatabaseModel"));
    QObject parent;
    QCOMPARE((new SymbolDatabaseModel(&parent))->parent(), &parent);
}

void TestSymbolDatabaseModel::hasThePathAsAProperty()
{
    SymbolDatabaseModel model;
    const QMetaProperty property =
        model.metaObject()->property(model.metaObject()->indexOfProperty("DatabasePath"));
    QCOMPARE(property.metaType(), QMetaType::fromType<QString>());
    QCOMPARE(property.notifySignal().name(), QByteArray("databasePathChanged"));
    QVERIFY(property.write(&model, QStringLiteral("a")));
    QCOMPARE(model.databasePath(), QStringLiteral("a"));
    QCOMPARE(property.read(&model).toString(), QStringLiteral("a"));
}

void TestSymbolDatabaseModel::hasItsSignals()
{
    const QMetaObject& meta = SymbolDatabaseModel::staticMetaObject;
    QVERIFY(meta.indexOfSignal("databasePathChanged(QString)") >= 0);
    QVERIFY(meta.indexOfSignal("errorOccured(QString)") >= 0);
    QVERIFY(meta.indexOfSignal("symbolReady(QStandardItem*)") >= 0);
}

void TestSymbolDatabaseModel::connectionsAreNamedByAUuidOfTheirOwn()
{
    SymbolDatabase first;
    SymbolDatabase second;
    const QString name = first.model.connectionName();
    static const QRegularExpression uuid(
        QStringLiteral("^\\{[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\\}$"));
    QVERIFY2(uuid.match(name).hasMatch(), qPrintable(name));
    QVERIFY(second.model.connectionName() != name);

    QVERIFY(first.model.createSchema());
    first.model.setDatabasePath(second.path());
    QCOMPARE(first.model.connectionName(), name);
}

void TestSymbolDatabaseModel::thePathIsEmptyUntilSet()
{
    QCOMPARE(SymbolDatabaseModel().databasePath(), QString());
}

void TestSymbolDatabaseModel::aNewPathIsStoredAndReported()
{
    SymbolDatabaseModel model;
    QSignalSpy changed(&model, &SymbolDatabaseModel::databasePathChanged);
    model.setDatabasePath(QStringLiteral("a"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().constFirst().toString(), QStringLiteral("a"));
    QCOMPARE(model.databasePath(), QStringLiteral("a"));
}

void TestSymbolDatabaseModel::theCurrentPathSetAgainEmitsNothing()
{
    SymbolDatabaseModel model;
    QSignalSpy changed(&model, &SymbolDatabaseModel::databasePathChanged);
    model.setDatabasePath(QString());
    QCOMPARE(changed.count(), 0);
    model.setDatabasePath(QStringLiteral("a"));
    model.setDatabasePath(QStringLiteral("a"));
    QCOMPARE(changed.count(), 1);
}

void TestSymbolDatabaseModel::aNewPathCountsFromTheNextOpening()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const SymbolDatabase empty(SymbolDatabase::Schema);
    QVERIFY(database.model.open(true));
    database.model.setDatabasePath(empty.path());
    QCOMPARE(database.model.getCategoriesWhileOpen().count(), 3);
    database.model.close();
    QCOMPARE(database.model.categories(), QStringList());
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::readingAMissingFileReportsOnlyTheClosingAndMakesNoFile()
{
    SymbolDatabase database;
    QVERIFY(!database.model.isValidSchema());
    QCOMPARE(database.takeErrors(), QStringList(database.doesNotExist()));
    QCOMPARE(database.model.categories(), QStringList());
    QCOMPARE(database.takeErrors(), QStringList(database.doesNotExist()));
    QVERIFY(!database.exists());
}

void TestSymbolDatabaseModel::openingAMissingFileForReadingIsSilent()
{
    SymbolDatabase database;
    QVERIFY(!database.model.open(true));
    QCOMPARE(database.takeErrors(), QStringList());
    QVERIFY(!database.isConnected());
    QVERIFY(!database.exists());
}

void TestSymbolDatabaseModel::writingToAMissingFileMakesAnEmptyDatabase()
{
    SymbolDatabase database;
    QVERIFY(!database.model.addCategory(QStringLiteral("X")));
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(QStringLiteral("INSERT INTO Category (Name) VALUES (:Name)"),
                                     QStringLiteral("no such table: Category Unable to execute "
                                                    "statement"))));
    QVERIFY(database.exists());
    QCOMPARE(database.sql(TablesInOrder), QStringList());

    QVERIFY(!database.model.isValidSchema());
    QVERIFY(database.model.createSchema());
    QVERIFY(database.model.isValidSchema());
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::openingTwiceIsRefusedAndReported()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.open(true));
    QVERIFY(!database.model.open(false));
    QCOMPARE(database.takeErrors(), QStringList(database.alreadyExists()));
    QVERIFY(database.model.database().isOpen());
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::theLockTimeoutCountsFromTheNextOpening()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    const auto options = [&](bool readOnly) {
        database.model.open(readOnly);
        QString current = database.model.database().connectOptions();
        database.model.close();
        return current;
    };
    QCOMPARE(options(true), QStringLiteral("QSQLITE_OPEN_READONLY"));
    QCOMPARE(options(false), QString());
    QVERIFY(database.model.open(true));
    database.model.setLockTimeout(250);
    QCOMPARE(database.model.database().connectOptions(), QStringLiteral("QSQLITE_OPEN_READONLY"));
    database.model.close();
    QCOMPARE(options(true), QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=250"));
    QCOMPARE(options(false), QStringLiteral("QSQLITE_BUSY_TIMEOUT=250"));
    database.model.setLockTimeout(-1);
    QCOMPARE(options(false), QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    database.model.setLockTimeout(5000);
    QCOMPARE(options(true), QStringLiteral("QSQLITE_OPEN_READONLY"));
}

void TestSymbolDatabaseModel::aLockedFileFailsOnceTheLockTimeoutIsOver()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    SymbolDatabaseModel other;
    other.setDatabasePath(database.path());
    QVERIFY(other.open(false));
    QVERIFY(QSqlQuery(other.database()).exec(QStringLiteral("BEGIN EXCLUSIVE")));
    database.model.setLockTimeout(0);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(database.model.categories(), QStringList());
    QVERIFY(timer.elapsed() < 4000);
    const QStringList errors = database.takeErrors();
    QCOMPARE(errors.count(), 1);
    QVERIFY(errors.constFirst().contains(QStringLiteral("database is locked")));
    other.close();
    QCOMPARE(database.model.categories().count(), 3);
}

void TestSymbolDatabaseModel::openingForReadingAllowsNoChange()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.open(true));
    QVERIFY(!database.model.addTagWhileOpen(QStringLiteral("a")));
    database.model.close();
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(
                 QStringLiteral("INSERT INTO Tag (Name) VALUES (:Name)"),
                 QStringLiteral("attempt to write a readonly database Unable to fetch row"))));
    QCOMPARE(database.sql(QStringLiteral("SELECT * FROM Tag")), QStringList());
}

void TestSymbolDatabaseModel::foreignKeysAreOnInEveryConnection()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    for (const bool readOnly : { false, true }) {
        QVERIFY(database.model.open(readOnly));
        {
            QSqlQuery query(QStringLiteral("PRAGMA foreign_keys"), database.model.database());
            QVERIFY(query.next());
            QCOMPARE(query.value(0).toInt(), 1);
        }
        database.model.close();
    }
}

void TestSymbolDatabaseModel::foreignKeysThatCannotBeSwitchedOnAreReportedOnly()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    const StandInForSqlite standIn;
    QVERIFY(database.model.open(false));
    QCOMPARE(database.takeErrors(),
             QStringList(QStringLiteral("Failed to enable foreign key support")));
    QVERIFY(database.model.database().isOpen());
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::aFolderThatIsNotThereIsReportedAndLeavesNoConnection()
{
    SymbolDatabase database;
    database.model.setDatabasePath(database.path() + QStringLiteral("/none/symbols.db"));
    const QStringList message(QStringLiteral("Failed to open database connection:[unable to open "
                                             "database file Error opening database]"));

    QVERIFY(!database.model.open(false));
    QCOMPARE(database.takeErrors(), message);
    QVERIFY(database.isConnected());
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
    QVERIFY(!database.isConnected());

    QVERIFY(!database.model.addTag(QStringLiteral("a")));
    QCOMPARE(database.takeErrors(), message);
    QVERIFY(!database.isConnected());
}

void TestSymbolDatabaseModel::aFolderThatCannotBeWrittenIsReported()
{
    SymbolDatabase database;
    // No user may make a file there, whatever the rights of the test.
    database.model.setDatabasePath(QStringLiteral("/proc/symbols.db"));
    QVERIFY(!database.model.createSchema());
    QCOMPARE(database.takeErrors(),
             QStringList(QStringLiteral("Failed to open database connection:[unable to open "
                                        "database file Error opening database]")));
    QVERIFY(!database.isConnected());
}

void TestSymbolDatabaseModel::closingWhatIsNotOpenIsReported()
{
    SymbolDatabase database;
    m_sync.takeStarts();
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList(database.doesNotExist()));
    QCOMPARE(m_sync.takeStarts(), 1);
}

void TestSymbolDatabaseModel::nothingIsHeldOpenBetweenOperations()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(!database.isConnected());
    QVERIFY(database.model.addTag(QStringLiteral("a")));
    QVERIFY(!database.isConnected());
    QCOMPARE(database.model.tags().count(), 6);
    QVERIFY(!database.isConnected());
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::anOperationInsideAnOpenDatabaseFailsAndClosesIt()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(true));
    QCOMPARE(database.model.categories(), QStringList());
    QCOMPARE(database.takeErrors(), QStringList(database.alreadyExists()));
    QVERIFY(!database.isConnected());
}

void TestSymbolDatabaseModel::destroyingAModelLeavesItsConnectionAlone()
{
    const SymbolDatabase database(SymbolDatabase::Schema);
    QString name;
    {
        SymbolDatabaseModel model;
        model.setDatabasePath(database.path());
        name = model.connectionName();
        QVERIFY(model.open(true));
    }
    QVERIFY(QSqlDatabase::contains(name));
    QSqlDatabase::removeDatabase(name);
}

void TestSymbolDatabaseModel::twoModelsUseOneFileAtTheSameTime()
{
    SymbolDatabase first(SymbolDatabase::Symbols);
    SymbolDatabase second;
    second.model.setDatabasePath(first.path());
    QVERIFY(first.model.open(false));
    QVERIFY(second.model.open(true));
    QVERIFY(first.model.addTagWhileOpen(QStringLiteral("new")));
    QVERIFY(second.model.getTagsWhileOpen().contains(QStringLiteral("new")));
    second.model.close();
    first.model.close();
    QCOMPARE(first.takeErrors() + second.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::twoModelsUseOneFileOneAfterTheOther()
{
    SymbolDatabase first(SymbolDatabase::Schema);
    SymbolDatabase second;
    second.model.setDatabasePath(first.path());
    QVERIFY(first.model.addTag(QStringLiteral("a")));
    QVERIFY(second.model.addTag(QStringLiteral("b")));
    QCOMPARE(first.model.tags(), (QStringList { QStringLiteral("a"), QStringLiteral("b") }));
    QCOMPARE(first.takeErrors() + second.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::syncIsStartedByEveryClosingAndCommit()
{
    SymbolDatabase database;
    m_sync.takeStarts();
    QVERIFY(!database.model.isValidSchema());
    QCOMPARE(m_sync.takeStarts(), 1);
    QVERIFY(database.model.createSchema());
    QCOMPARE(m_sync.takeStarts(), 2);
    QVERIFY(database.model.addCategory(QStringLiteral("X")));
    QCOMPARE(m_sync.takeStarts(), 1);
    QVERIFY(database.model.open(false));
    QVERIFY(database.model.startTransaction());
    QCOMPARE(m_sync.takeStarts(), 0);
    QVERIFY(database.model.endTransaction());
    QCOMPARE(m_sync.takeStarts(), 1);
    QVERIFY(!database.model.endTransaction());
    QCOMPARE(m_sync.takeStarts(), 0);
    database.model.close();
    QCOMPARE(m_sync.takeStarts(), 1);
}

void TestSymbolDatabaseModel::aTransactionInsideATransactionIsReported()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.open(false));
    QVERIFY(database.model.startTransaction());
    QVERIFY(!database.model.startTransaction());
    QCOMPARE(database.takeErrors(),
             QStringList(QStringLiteral("Failed to start transaction:[cannot start a transaction "
                                        "within a transaction Unable to begin transaction]")));
    QVERIFY(database.model.endTransaction());
    database.model.close();
}

void TestSymbolDatabaseModel::aTransactionWithoutAConnectionIsReported()
{
    SymbolDatabase database;
    QVERIFY(!database.model.startTransaction());
    QCOMPARE(database.takeErrors(),
             QStringList(QStringLiteral("Failed to start transaction:[Driver not loaded Driver not "
                                        "loaded]")));
}

void TestSymbolDatabaseModel::committingNothingIsReported()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.open(false));
    QVERIFY(!database.model.endTransaction());
    QCOMPARE(database.takeErrors(),
             QStringList(QStringLiteral("Failed to commit transaction:[cannot commit - no "
                                        "transaction is active Unable to commit transaction]")));
    database.model.close();
}

void TestSymbolDatabaseModel::aCommitThatFailsIsReportedAndRolledBack()
{
    SymbolDatabase database;
    database.rebuild({ TableThatCannotBeCommitted });
    QVERIFY(database.model.open(false));
    QVERIFY(database.model.startTransaction());
    QVERIFY(database.model.addTagWhileOpen(QStringLiteral("a")));
    QVERIFY(!database.model.endTransaction());
    QCOMPARE(database.takeErrors(),
             QStringList(QStringLiteral("Failed to commit transaction:[FOREIGN KEY constraint "
                                        "failed Unable to commit transaction]")));
    // Rolled back: there is room for another one.
    QVERIFY(database.model.startTransaction());
    QCOMPARE(database.model.getTagsWhileOpen(), QStringList());
    QVERIFY(database.model.endTransaction());
    database.model.close();
}

void TestSymbolDatabaseModel::aCommittedTransactionIsStored()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.open(false));
    QVERIFY(database.model.startTransaction());
    QVERIFY(database.model.addTagWhileOpen(QStringLiteral("a")));
    QCOMPARE(database.sql(QStringLiteral("SELECT Name FROM Tag")), QStringList());
    QVERIFY(database.model.endTransaction());
    QCOMPARE(database.sql(QStringLiteral("SELECT Name FROM Tag")),
             QStringList(QStringLiteral("a")));
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::theErrorOfAQueryNamesStatementAndErrorInOnePass()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.open(true));
    {
        const QString statement = QStringLiteral("SELECT '%1 %2' FROM Nowhere");
        QSqlQuery query(database.model.database());
        QVERIFY(!query.exec(statement));
        QCOMPARE(database.model.queryErrorString(std::move(query)),
                 queryFailed(statement,
                             QStringLiteral("no such table: Nowhere Unable to execute statement")));
    }
    database.model.close();
}

void TestSymbolDatabaseModel::theSchemaIsMadeWithTheseStatements()
{
    SymbolDatabase database;
    QVERIFY(database.model.createSchema());
    QCOMPARE(database.takeErrors(), QStringList());
    QCOMPARE(database.sql(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'table' AND "
                                         "name NOT LIKE 'sqlite_%' ORDER BY rowid")),
             Statements);
}

void TestSymbolDatabaseModel::aSchemaThatExistsIsReportedAndNothingElseIsMade()
{
    SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE Image (Id INTEGER)") });
    QVERIFY(!database.model.createSchema());
    const QString message =
        queryFailed(Statements.at(0),
                    QStringLiteral("table \"Image\" already exists Unable to execute statement"));
    QCOMPARE(database.takeErrors(), QStringList(message));
    QCOMPARE(database.sql(TablesInOrder), QStringList(QStringLiteral("Image")));

    SymbolDatabase whole(SymbolDatabase::Symbols);
    QVERIFY(!whole.model.createSchema());
    QCOMPARE(whole.takeErrors(), QStringList(message));
    QVERIFY(whole.model.isValidSchema());
    QCOMPARE(whole.sql(QStringLiteral("SELECT count(*) FROM Image")),
             QStringList(QStringLiteral("3")));
}

void TestSymbolDatabaseModel::aSchemaThatFailsHalfwayIsCommitted()
{
    SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE Image_Tag (Id INTEGER)") });
    m_sync.takeStarts();
    QVERIFY(!database.model.createSchema());
    QCOMPARE(m_sync.takeStarts(), 2);
    QCOMPARE(
        database.takeErrors(),
        QStringList(queryFailed(
            Statements.at(2),
            QStringLiteral("table \"Image_Tag\" already exists Unable to execute statement"))));
    QCOMPARE(database.sql(TablesInOrder),
             (QStringList { QStringLiteral("Image_Tag"), QStringLiteral("Image"),
                            QStringLiteral("Tag") }));
    QVERIFY(!database.model.isValidSchema());
}

void TestSymbolDatabaseModel::aSchemaCannotBeMadeWhereTheFileCannot()
{
    SymbolDatabase database;
    database.model.setDatabasePath(QStringLiteral("/proc/symbols.db"));
    m_sync.takeStarts();
    QVERIFY(!database.model.createSchema());
    QCOMPARE(m_sync.takeStarts(), 1);
    QCOMPARE(database.takeErrors().count(), 1);
}

void TestSymbolDatabaseModel::aMissingTableMakesTheSchemaInvalid_data()
{
    QTest::addColumn<QStringList>("statements");
    const QStringList names { QStringLiteral("Image"), QStringLiteral("Tag"),
                              QStringLiteral("Category"), QStringLiteral("Image_Tag") };
    for (const QString& missing : names) {
        QStringList statements;
        for (const QString& name : names) {
            statements.append((name == missing ? QStringLiteral("CREATE VIEW %1 AS SELECT 1")
                                               : QStringLiteral("CREATE TABLE %1 (a)"))
                                  .arg(name));
        }
        QTest::addRow("%s is a view", qPrintable(missing)) << statements;
        statements.removeAt(names.indexOf(missing));
        QTest::addRow("no %s", qPrintable(missing)) << statements;
    }
}

void TestSymbolDatabaseModel::aMissingTableMakesTheSchemaInvalid()
{
    QFETCH(QStringList, statements);
    SymbolDatabase database;
    database.rebuild(statements);
    QVERIFY(!database.model.isValidSchema());
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::lettersOfTableNamesMayDifferInCase()
{
    SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE iMAGE (a)"),
                       QStringLiteral("CREATE TABLE tag (a)"),
                       QStringLiteral("CREATE TABLE image_tag (a)"),
                       QStringLiteral("CREATE TABLE CATEGORY (a)") });
    QVERIFY(database.model.isValidSchema());
}

void TestSymbolDatabaseModel::columnsAreNotExamined()
{
    SymbolDatabase database;
    database.rebuild(
        { QStringLiteral("CREATE TABLE Image (a)"), QStringLiteral("CREATE TABLE Tag (a)"),
          QStringLiteral("CREATE TABLE Image_Tag (a)"), QStringLiteral("CREATE TABLE Category (a)"),
          QStringLiteral("CREATE TABLE More (a)") });
    QVERIFY(database.model.isValidSchema());
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::deletingACategoryDeletesItsSymbolsAndTheirLinks()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(false));
    QVERIFY(QSqlQuery(database.model.database())
                .exec(QStringLiteral("DELETE FROM Category WHERE Name = 'Signs'")));
    database.model.close();
    QCOMPARE(database.sql(QStringLiteral("SELECT Name FROM Image")),
             QStringList(QStringLiteral("cat")));
    QCOMPARE(database.sql(QStringLiteral("SELECT DISTINCT ImageId FROM Image_Tag")),
             QStringList(QStringLiteral("3")));
    QCOMPARE(database.sql(QStringLiteral("SELECT count(*) FROM Tag")),
             QStringList(QStringLiteral("5")));
}

void TestSymbolDatabaseModel::aFileThatIsNoDatabaseIsReportedAndLeftAsItIs()
{
    SymbolDatabase database;
    const QByteArray content = QByteArray("This is a letter to my aunt. ").repeated(100);
    database.overwrite(content);
    const QString error = QStringLiteral("file is not a database Unable to execute statement");

    QVERIFY(!database.model.isValidSchema());
    QCOMPARE(database.takeErrors(), QStringList());
    QCOMPARE(database.model.categories(), QStringList());
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(QStringLiteral("SELECT Name FROM Category"), error)));
    QVERIFY(!database.model.createSchema());
    QCOMPARE(database.takeErrors(), QStringList(queryFailed(Statements.at(0), error)));
    QVERIFY(!database.model.addTag(QStringLiteral("a")));
    QCOMPARE(
        database.takeErrors(),
        QStringList(queryFailed(QStringLiteral("INSERT INTO Tag (Name) VALUES (:Name)"), error)));
    QCOMPARE(database.read(), content);
}

void TestSymbolDatabaseModel::aDamagedPageIsReported()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const int page =
        database.sql(QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = 'Category'"))
            .constFirst()
            .toInt();
    const int size = database.sql(QStringLiteral("PRAGMA page_size")).constFirst().toInt();
    QByteArray content = database.read();
    content[qsizetype(page - 1) * size] = '\xff';
    database.overwrite(content);

    QCOMPARE(database.model.categories(), QStringList());
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(
                 QStringLiteral("SELECT Name FROM Category"),
                 QStringLiteral("database disk image is malformed Unable to fetch row"))));
    // What does not touch the page still works.
    QCOMPARE(database.model.tags().count(), 5);
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::aLockedDatabaseIsReported()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    SymbolDatabase other;
    other.model.setDatabasePath(database.path());
    QVERIFY(other.model.open(false));
    QVERIFY(QSqlQuery(other.model.database()).exec(QStringLiteral("BEGIN EXCLUSIVE")));

    // Takes as long as the driver waits for a lock.
    QVERIFY(!database.model.addTag(QStringLiteral("a")));
    QCOMPARE(
        database.takeErrors(),
        QStringList(queryFailed(QStringLiteral("INSERT INTO Tag (Name) VALUES (:Name)"),
                                QStringLiteral("database is locked Unable to execute statement"))));

    QVERIFY(other.model.endTransaction());
    other.model.close();
    QVERIFY(database.model.addTag(QStringLiteral("a")));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolDatabaseModel::aWriterIsRefusedInTheMiddleOfAnothersTransaction()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    SymbolDatabaseModel other;
    other.setDatabasePath(database.path());
    QVERIFY(other.open(false) && other.startTransaction());
    QVERIFY(other.addTagWhileOpen(QStringLiteral("first")));

    // It has looked up the category by then, and SQLite lets no reader wait to become a writer:
    // the two might wait for each other.
    QVERIFY(
        !database.model.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("Animals")));
    const QStringList errors = database.takeErrors();
    QCOMPARE(errors.count(), 1);
    QVERIFY2(errors.constFirst().contains(QLatin1String("database is locked")),
             qPrintable(errors.constFirst()));

    QVERIFY(other.endTransaction());
    other.close();
    QVERIFY(
        database.model.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("Animals")));
    QCOMPARE(database.takeErrors(), QStringList());
    QVERIFY(database.model.tags().contains(QStringLiteral("first")));
}

void TestSymbolDatabaseModel::messagesCarryCommentsForTranslators()
{
    const TranslationRecorder recorder("SymbolDatabaseModel");
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(!database.model.createSchema());
    QVERIFY(database.model.open(true));
    QVERIFY(!database.model.open(true));
    database.model.close();
    database.model.close();
    QVERIFY(!database.model.startTransaction());
    QVERIFY(!database.model.endTransaction());
    database.model.setDatabasePath(QStringLiteral("/proc/symbols.db"));
    QVERIFY(!database.model.addTag(QStringLiteral("a")));

    QCOMPARE(
        recorder.texts(),
        (QStringList {
            QStringLiteral("Query:[%1] Failed With:[%2] / "
                           "Error message: A query is used to extract data from the database."),
            QStringLiteral("[%1]: Connection already exists, possible failure to remove connection "
                           "/ Error message: Database is already connected."),
            QStringLiteral("[%1]: Connection does not exist, can not close database / "
                           "Error message: closing a database connection."),
            QStringLiteral("Failed to start transaction:[%1] / Error message: A transaction is a "
                           "single unit of work for data retrieval or updates."),
            QStringLiteral("Failed to commit transaction:[%1] / Error message: A transaction is a "
                           "single unit of work for data retrieval or updates."),
            QStringLiteral("Failed to open database connection:[%1] / "
                           "Error message: unable to connect to a database file."),
        }));
}

UW_TEST_MAIN(TestSymbolDatabaseModel)

#include "tst_symboldatabasemodel.moc"
