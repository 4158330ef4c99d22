// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// What is read from the database: lists, single symbols, searches.

#include "symboldatabasemodel.h"

#include "support/symboldatabase.h"
#include "support/syncstandin.h"
#include "support/test.h"

#include <QIcon>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardItem>

class TestSymbolSearch : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void listsAreInTheOrderOfTheDatabase();
    void listsCanBeReadWhileOpen();
    void aListThatCannotBeReadIsReportedAndEmpty();
    void dataAndThumbnailAreFetchedByIdAndName();
    void whatIsNotThereIsEmptyWithoutAMessage();
    void theFirstOfSeveralSymbolsOfANameIsFetched();
    void aFetchThatFailsIsReported_data();
    void aFetchThatFailsIsReported();
    void everythingIsEmptyWhenThereIsNoFile();

    void aSingleItemCarriesTheDrawing();
    void aSingleItemOfARemovedSymbolHasOnlyTheIdOfNone();
    void aSingleItemIsMadeEvenWhenTheDatabaseFails();

    void aSearchForNothingFindsEverySymbolOnce();
    void resultsCarryAnIconOrTheThumbnail();
    void aThumbnailThatCannotBeDecodedGivesANullIcon();
    void tagsAreSearchedByPartsWithoutRegardToCase_data();
    void tagsAreSearchedByPartsWithoutRegardToCase();
    void categoriesAndTagsNarrowEachOther();
    void anUnknownCategoryAloneFailsAndWithATagCountsNothing();
    void theStatementOfASearch_data();
    void theStatementOfASearch();
    void allCategoriesMeansNoneInTheLanguageOfTheMoment();
    void everyResultIsReportedBeforeTheListIsReturned();
    void aSearchCanBeInvokedByNameWithAnyNumberOfArguments();
    void aQueryOfTheCallersCanBeRun();
    void aQueryOfTheCallersThatFailsIsReported();
    void itemsBelongToTheModelThatTakesThem();

private:
    SyncStandIn m_sync;
};

namespace {

constexpr int IdRole = Qt::UserRole + 1;
constexpr int ThumbnailRole = Qt::UserRole + 2;

/// The names of the items, which are deleted.
QStringList takeNames(const QList<QStandardItem*>& items)
{
    QStringList names;
    for (QStandardItem* item : items) {
        names.append(item->data(Qt::ToolTipRole).toString());
    }
    qDeleteAll(items);
    return names;
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

void TestSymbolSearch::listsAreInTheOrderOfTheDatabase()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    for (const QString& name : words("b c a")) {
        QVERIFY(database.model.addTag(name));
    }
    database.sql(QStringLiteral("INSERT INTO Category VALUES (7, 'z'), (5, 'y'), (9, 'x')"));
    QCOMPARE(database.model.tags(), database.sql(QStringLiteral("SELECT Name FROM Tag")));
    QCOMPARE(database.model.categories(),
             database.sql(QStringLiteral("SELECT Name FROM Category")));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::listsCanBeReadWhileOpen()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(true));
    QCOMPARE(database.model.getCategoriesWhileOpen().count(), 3);
    QCOMPARE(database.model.getTagsWhileOpen().count(), 5);
    QVERIFY(database.isConnected());
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::aListThatCannotBeReadIsReportedAndEmpty()
{
    SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE Other (a)") });
    QCOMPARE(database.model.categories(), QStringList());
    QCOMPARE(database.model.tags(), QStringList());
    QCOMPARE(database.takeErrors(),
             (QStringList {
                 queryFailed(QStringLiteral("SELECT Name FROM Category"),
                             QStringLiteral("no such table: Category Unable to execute statement")),
                 queryFailed(QStringLiteral("SELECT Name FROM Tag"),
                             QStringLiteral("no such table: Tag Unable to execute statement")),
             }));
}

void TestSymbolSearch::dataAndThumbnailAreFetchedByIdAndName()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QCOMPARE(database.model.getDataFromSymbolId(3), filledSvg("green"));
    QCOMPARE(database.model.getDataFromSymbolName(QStringLiteral("cat")), filledSvg("green"));
    const QByteArray icon = database.model.getIconFromSymbolId(3);
    QVERIFY(icon.startsWith("\x89PNG"));
    QCOMPARE(icon, database.model.getThumbnailDataFromRawData(filledSvg("green")));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::whatIsNotThereIsEmptyWithoutAMessage()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QCOMPARE(database.model.getDataFromSymbolId(99), QByteArray());
    QCOMPARE(database.model.getDataFromSymbolName(QStringLiteral("none")), QByteArray());
    QCOMPARE(database.model.getIconFromSymbolId(99), QByteArray());
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::theFirstOfSeveralSymbolsOfANameIsFetched()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(
        database.model.addSymbol("other", "png", QStringLiteral("cat"), QStringLiteral("Animals")));
    QCOMPARE(database.model.getDataFromSymbolName(QStringLiteral("cat")), filledSvg("green"));
}

void TestSymbolSearch::aFetchThatFailsIsReported_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("data by id") << QStringLiteral("SELECT Data FROM Image WHERE Id = :SymbolId");
    QTest::newRow("data by name") << QStringLiteral(
        "SELECT Data FROM Image WHERE Name = :SymbolName");
    QTest::newRow("icon by id") << QStringLiteral(
        "SELECT Thumbnail FROM Image WHERE Id = :SymbolId");
}

void TestSymbolSearch::aFetchThatFailsIsReported()
{
    QFETCH(QString, statement);
    SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE Other (a)") });
    const QByteArray result = statement.contains(QLatin1String("Thumbnail"))
        ? database.model.getIconFromSymbolId(1)
        : statement.contains(QLatin1String("Name"))
        ? database.model.getDataFromSymbolName(QStringLiteral("a"))
        : database.model.getDataFromSymbolId(1);
    QCOMPARE(result, QByteArray());
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(
                 statement, QStringLiteral("no such table: Image Unable to execute statement"))));
    QVERIFY(!database.isConnected());
}

void TestSymbolSearch::everythingIsEmptyWhenThereIsNoFile()
{
    SymbolDatabase database;
    const auto isRefused = [&](bool isEmpty) {
        return isEmpty && database.takeErrors() == QStringList(database.doesNotExist())
            && !database.exists();
    };
    QVERIFY(isRefused(database.model.categories().isEmpty()));
    QVERIFY(isRefused(database.model.tags().isEmpty()));
    QVERIFY(isRefused(database.model.getDataFromSymbolId(1).isEmpty()));
    QVERIFY(isRefused(database.model.getDataFromSymbolName(QStringLiteral("a")).isEmpty()));
    QVERIFY(isRefused(database.model.getIconFromSymbolId(1).isEmpty()));
    QVERIFY(isRefused(database.model.getItemsBySearch().isEmpty()));
    const std::unique_ptr<QStandardItem> item(database.model.getItemFromSymbolId(1));
    QVERIFY(isRefused(item->data(ThumbnailRole) == -1));
}

void TestSymbolSearch::aSingleItemCarriesTheDrawing()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const std::unique_ptr<QStandardItem> item(database.model.getItemFromSymbolId(3));
    QCOMPARE(item->text(), QString());
    QCOMPARE(item->data(Qt::ToolTipRole), QVariant(QStringLiteral("cat")));
    QCOMPARE(item->data(Qt::UserRole + 1), QVariant(filledSvg("green")));
    QCOMPARE(item->data(Qt::UserRole + 2), QVariant(3));
    QCOMPARE(item->data(Qt::DecorationRole).metaType(), QMetaType::fromType<QIcon>());
    QCOMPARE(item->icon().pixmap(50).toImage().pixelColor(9, 9), QColor(QStringLiteral("green")));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::aSingleItemOfARemovedSymbolHasOnlyTheIdOfNone()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.removeSymbol(3));
    const std::unique_ptr<QStandardItem> item(database.model.getItemFromSymbolId(3));
    QCOMPARE(item->data(Qt::UserRole + 2), QVariant(-1));
    for (const int role : { int(Qt::ToolTipRole), Qt::UserRole + 1, int(Qt::DecorationRole) }) {
        QVERIFY(!item->data(role).isValid());
    }
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::aSingleItemIsMadeEvenWhenTheDatabaseFails()
{
    SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE Other (a)") });
    const std::unique_ptr<QStandardItem> item(database.model.getItemFromSymbolId(3));
    QCOMPARE(item->data(Qt::UserRole + 2), QVariant(-1));
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(
                 QStringLiteral("SELECT Name, Data, Thumbnail FROM Image WHERE Id = :SymbolId"),
                 QStringLiteral("no such table: Image Unable to execute statement"))));
    QVERIFY(!database.isConnected());
}

void TestSymbolSearch::aSearchForNothingFindsEverySymbolOnce()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QCOMPARE(takeNames(database.model.getItemsBySearch()), words("up danger cat"));
    QCOMPARE(takeNames(database.model.getItemsBySearch(QStringLiteral(""), QStringLiteral(""))),
             words("up danger cat"));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::resultsCarryAnIconOrTheThumbnail()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QList<QStandardItem*> items = database.model.getItemsBySearch(QStringLiteral("Animals"));
    QCOMPARE(items.count(), 1);
    std::unique_ptr<QStandardItem> item(items.constFirst());
    QCOMPARE(item->text(), QString());
    QCOMPARE(item->data(Qt::ToolTipRole), QVariant(QStringLiteral("cat")));
    QCOMPARE(item->data(IdRole), QVariant(3));
    QVERIFY(!item->data(ThumbnailRole).isValid());
    QCOMPARE(item->data(Qt::DecorationRole).metaType(), QMetaType::fromType<QIcon>());
    QCOMPARE(item->icon().pixmap(50).toImage().pixelColor(9, 9), QColor(QStringLiteral("green")));

    items = database.model.getItemsBySearch(QStringLiteral("Animals"), QString(), false);
    QCOMPARE(items.count(), 1);
    item.reset(items.constFirst());
    QCOMPARE(item->data(Qt::ToolTipRole), QVariant(QStringLiteral("cat")));
    QCOMPARE(item->data(IdRole), QVariant(3));
    QCOMPARE(item->data(ThumbnailRole), QVariant(database.model.getIconFromSymbolId(3)));
    QVERIFY(!item->data(Qt::DecorationRole).isValid());
}

void TestSymbolSearch::aThumbnailThatCannotBeDecodedGivesANullIcon()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    database.sql(QStringLiteral("UPDATE Image SET Thumbnail = 'no picture'"));
    const QList<QStandardItem*> items = database.model.getItemsBySearch();
    QCOMPARE(items.count(), 3);
    QVERIFY(items.constFirst()->icon().isNull());
    qDeleteAll(items);
    const std::unique_ptr<QStandardItem> item(database.model.getItemFromSymbolId(3));
    QCOMPARE(item->data(Qt::UserRole + 2), QVariant(3));
    QVERIFY(item->icon().isNull());
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::tagsAreSearchedByPartsWithoutRegardToCase_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("a part of several tags") << QStringLiteral("ar") << words("up danger cat");
    QTest::newRow("one of its tags twice") << QStringLiteral("arrow") << words("up cat");
    QTest::newRow("capitals") << QStringLiteral("WARN") << words("danger");
    QTest::newRow("no such tag") << QStringLiteral("none") << QStringList();
    QTest::newRow("a percent sign for any text") << QStringLiteral("w%g") << words("danger");
    QTest::newRow("an underscore for any letter") << QStringLiteral("p_t") << words("cat");
    QTest::newRow("a quotation mark") << QStringLiteral("'") << QStringList();
}

void TestSymbolSearch::tagsAreSearchedByPartsWithoutRegardToCase()
{
    QFETCH(QString, tag);
    QFETCH(QStringList, names);
    SymbolDatabase database(SymbolDatabase::Symbols);
    QStringList found = takeNames(database.model.getItemsBySearch(QString(), tag));
    // In the order of the database's choice.
    found.sort();
    names.sort();
    QCOMPARE(found, names);
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::categoriesAndTagsNarrowEachOther()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const QString signs = QStringLiteral("Signs");
    QCOMPARE(takeNames(database.model.getItemsBySearch(signs)), words("up danger"));
    QCOMPARE(takeNames(database.model.getItemsBySearch(signs, QStringLiteral("arrow"))),
             words("up"));
    QCOMPARE(takeNames(database.model.getItemsBySearch(QStringLiteral("Empty"))), QStringList());
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::anUnknownCategoryAloneFailsAndWithATagCountsNothing()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const QString unknown = QStringLiteral("Unknown");
    QCOMPARE(database.model.getItemsBySearch(unknown).count(), 0);
    QCOMPARE(
        database.takeErrors(),
        QStringList(queryFailed(QStringLiteral("SELECT DISTINCT Image.Id, Image.Name, "
                                               "Image.Thumbnail FROM Image WHERE "),
                                QStringLiteral("incomplete input Unable to execute statement"))));

    QStringList found =
        takeNames(database.model.getItemsBySearch(unknown, QStringLiteral("arrow")));
    found.sort();
    QCOMPARE(found, words("cat up"));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::theStatementOfASearch_data()
{
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("ending");
    const QString none;
    const QString known = QStringLiteral("Known");
    const QString unknown = QStringLiteral("Unknown");
    const QString tag = QStringLiteral("a");
    const QString join = QStringLiteral("INNER JOIN Image_Tag ON Image.Id=Image_Tag.ImageId INNER "
                                        "JOIN Tag ON Image_Tag.TagId=Tag.Id ");
    QTest::newRow("all") << none << none << QString();
    QTest::newRow("All Categories") << QStringLiteral("All Categories") << none << QString();
    QTest::newRow("category") << known << none
                              << QStringLiteral("WHERE Image.CategoryId = :CategoryId ");
    QTest::newRow("tag") << none << tag << join + QStringLiteral("WHERE Tag.Name LIKE :Tag ");
    QTest::newRow("category and tag")
        << known << tag
        << join + QStringLiteral("WHERE Image.CategoryId = :CategoryId AND Tag.Name LIKE :Tag ");
    QTest::newRow("unknown category") << unknown << none << QStringLiteral("WHERE ");
    QTest::newRow("unknown category and tag")
        << unknown << tag << join + QStringLiteral("WHERE Tag.Name LIKE :Tag ");
}

void TestSymbolSearch::theStatementOfASearch()
{
    QFETCH(QString, category);
    QFETCH(QString, tag);
    QFETCH(QString, ending);
    // Without the tables that are searched, each search fails and names its statement.
    SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE Category (Id INTEGER, Name TEXT)"),
                       QStringLiteral("INSERT INTO Category VALUES (4, 'Known')") });
    QCOMPARE(database.model.getItemsBySearch(category, tag).count(), 0);
    const QStringList errors = database.takeErrors();
    QCOMPARE(errors.count(), 1);
    QCOMPARE(errors.constFirst().section(QLatin1Char(']'), 0, 0),
             QString(QStringLiteral("Query:[SELECT DISTINCT Image.Id, Image.Name, Image.Thumbnail "
                                    "FROM Image ")
                     + ending));
}

void TestSymbolSearch::allCategoriesMeansNoneInTheLanguageOfTheMoment()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const QString english = QStringLiteral("All Categories");
    const QString german = QStringLiteral("Alle Kategorien");
    QCOMPARE(database.model.getItemsBySearch(german).count(), 0);
    QCOMPARE(database.takeErrors().count(), 1);
    QCOMPARE(takeNames(database.model.getItemsBySearch(english)).count(), 3);

    TranslationRecorder recorder("SymbolDatabaseModel");
    recorder.setTranslation("All Categories", german);
    QCOMPARE(takeNames(database.model.getItemsBySearch(german)).count(), 3);
    QCOMPARE(recorder.texts(),
             QStringList(QStringLiteral("All Categories / All database categories.")));
    QCOMPARE(database.takeErrors(), QStringList());
    QCOMPARE(database.model.getItemsBySearch(english).count(), 0);
    QCOMPARE(database.takeErrors().count(), 1);
}

void TestSymbolSearch::everyResultIsReportedBeforeTheListIsReturned()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QList<QStandardItem*> reported;
    QStringList names;
    bool isOpen = true;
    connect(&database.model, &SymbolDatabaseModel::symbolReady, this, [&](QStandardItem* item) {
        reported.append(item);
        names.append(item->data(Qt::ToolTipRole).toString());
        QVERIFY(item->data(IdRole).isValid());
        QVERIFY(item->data(ThumbnailRole).isValid());
        isOpen = isOpen && database.isConnected();
    });
    const QList<QStandardItem*> items =
        database.model.getItemsBySearch(QString(), QString(), false);
    QCOMPARE(reported, items);
    QCOMPARE(names, words("up danger cat"));
    QVERIFY(isOpen);
    qDeleteAll(items);
}

void TestSymbolSearch::aSearchCanBeInvokedByNameWithAnyNumberOfArguments()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QList<QStandardItem*> items;
    const auto result = Q_RETURN_ARG(QList<QStandardItem*>, items);
    const QString signs = QStringLiteral("Signs");
    const QString arrow = QStringLiteral("arrow");
    const auto category = Q_ARG(QString, signs);
    const auto tag = Q_ARG(QString, arrow);

    QVERIFY(QMetaObject::invokeMethod(&database.model, "getItemsBySearch", result));
    QCOMPARE(takeNames(items).count(), 3);
    QVERIFY(QMetaObject::invokeMethod(&database.model, "getItemsBySearch", result, category));
    QCOMPARE(takeNames(items).count(), 2);
    QVERIFY(QMetaObject::invokeMethod(&database.model, "getItemsBySearch", result, category, tag));
    QCOMPARE(items.count(), 1);
    QVERIFY(!items.constFirst()->icon().isNull());
    qDeleteAll(items);
    QVERIFY(QMetaObject::invokeMethod(&database.model, "getItemsBySearch", result, category, tag,
                                      Q_ARG(bool, false)));
    QCOMPARE(items.count(), 1);
    QVERIFY(items.constFirst()->icon().isNull());
    qDeleteAll(items);
}

void TestSymbolSearch::aQueryOfTheCallersCanBeRun()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(true));
    {
        QSqlQuery query(database.model.database());
        QVERIFY(query.prepare(
            QStringLiteral("SELECT Id, Name, Thumbnail FROM Image WHERE Id > ? ORDER BY Id DESC")));
        query.addBindValue(1);
        QCOMPARE(takeNames(database.model.getItemsFromPreparedQuery(std::move(query), false)),
                 words("cat danger"));
    }
    QVERIFY(database.isConnected());
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolSearch::aQueryOfTheCallersThatFailsIsReported()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(true));
    {
        QSqlQuery query(database.model.database());
        QVERIFY(!query.prepare(QStringLiteral("SELECT Absent")));
        QCOMPARE(database.model.getItemsFromPreparedQuery(std::move(query), true).count(), 0);
    }
    database.model.close();
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(
                 QStringLiteral("SELECT Absent"),
                 QStringLiteral("no such column: Absent Unable to execute statement"))));
}

void TestSymbolSearch::itemsBelongToTheModelThatTakesThem()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QStandardItemModel model;
    model.appendColumn(database.model.getItemsBySearch(QString(), QString(), false));
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.index(2, 0).data(IdRole), QVariant(3));
    QCOMPARE(model.match(model.index(0, 0), IdRole, 2).value(0), model.index(1, 0));
}

UW_TEST_MAIN(TestSymbolSearch)

#include "tst_symboldatabasemodel_search.moc"
