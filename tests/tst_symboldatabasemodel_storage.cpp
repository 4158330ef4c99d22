// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Symbols into the database and out of it again.

#include "symboldatabasemodel.h"

#include "support/symboldatabase.h"
#include "support/syncstandin.h"
#include "support/test.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSvgRenderer>

class TestSymbolStorage : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsReadWholeWhateverItIs();
    void aMissingFileIsReported();
    void aFileThatCannotBeOpenedIsReported();

    void noDataGivesNoThumbnail();
    void aThumbnailHasTheBytesOfAPixmap();
    void aThumbnailIsStretchedToTheSquare();
    void aThumbnailIsWhiteWhereTheDrawingIsTransparent();
    void whatIsNoSvgGivesAWhiteThumbnailWithoutAMessage_data();
    void whatIsNoSvgGivesAWhiteThumbnailWithoutAMessage();
    void aDangerousDrawingIsDrawnWithoutTheDanger();

    void idsAreFoundByName();
    void unknownNamesHaveNoIdAndNoMessage();
    void aNameIsNeverPartOfTheStatement();
    void anUnknownTableIsReported();
    void aSymbolThatCannotBeLookedUpIsNotReported();
    void anIdThatIsNoNumberIsNone();

    void categoriesAndTagsAreAdded();
    void aTagAddedTwiceIsReported();
    void aCategoryAddedTwiceIsReported();
    void anUnknownTagIsReportedAndNotMade();
    void aTagLinkedTwiceIsReported();
    void aTagLinkedToNoSymbolIsReported();
    void anImageGetsAnId();
    void anImageOfAnUnknownCategoryIsReported();
    void anImageWithoutDataIsRefused();

    void preparedDataIsStoredAsGiven();
    void anUnknownCategoryIsReportedOnce();
    void anUnknownCategoryIsReportedBeforeTheFileIsRead();
    void aFileIsStoredWithItsThumbnailAndTags();
    void aMissingFileIsReportedByEveryStep();
    void anEmptyFileIsRefused();
    void aSymbolIsKeptWithTheTagsThatLink();
    void oneNameMayStandForSeveralSymbols();
    void idsAreNeverUsedAgain();

    void removingDeletesTheLinksAndKeepsCategoryAndTags();
    void removingAnUnknownSymbolSucceeds();
    void removingThatFailsIsReported();

    void writingIsRefusedInsideAnotherTransaction();
    void aCommitThatFailsMakesTheWritingFail();
    void whatCannotBeOpenedCannotBeWrittenAndIsClosed();
    void writingInTheCallersTransactionLeavesItOpen();
    void entryPointsCanBeInvokedByName();
    void messagesCarryCommentsForTranslators();

private:
    SyncStandIn m_sync;
};

namespace {

const QString InsertTag = QStringLiteral("INSERT INTO Tag (Name) VALUES (:Name)");
const QString InsertCategory = QStringLiteral("INSERT INTO Category (Name) VALUES (:Name)");
const QString InsertImage = QStringLiteral("INSERT INTO Image (Name, Thumbnail, Data, CategoryId) "
                                           "VALUES(:Name, :Thumbnail, :Data, :CategoryId)");
const QString InsertLink =
    QStringLiteral("INSERT INTO Image_Tag (ImageId, TagId) VALUES(:ImageId, :TagId)");

const QString UnknownX = QStringLiteral("Unknown category: [X]");

QString withoutThumbnail()
{
    return queryFailed(
        InsertImage,
        QStringLiteral("NOT NULL constraint failed: Image.Thumbnail Unable to fetch row"));
}

QImage toImage(const QByteArray& png)
{
    return QImage::fromData(png, "PNG");
}

bool isWhite(const QImage& image)
{
    QImage white(50, 50, image.format());
    white.fill(Qt::white);
    return image == white;
}

/// The tables as they are where rows are accepted until they are to be committed.
void makeUncommittable(const SymbolDatabase& database)
{
    database.sql(QStringLiteral("DROP TABLE Image"));
    database.sql(
        QStringLiteral("CREATE TABLE Image (Id INTEGER PRIMARY KEY, Name, Thumbnail, Data, "
                       "CategoryId INTEGER, Other INTEGER DEFAULT 7 REFERENCES Tag(Id) "
                       "DEFERRABLE INITIALLY DEFERRED)"));
}

} // namespace

void TestSymbolStorage::aFileIsReadWholeWhateverItIs()
{
    SymbolDatabase database;
    const QByteArray content = QByteArray("no\0 drawing\r\n\xff", 13).repeated(10000);
    const QString path = database.write(QStringLiteral("a.svg"), content);
    QCOMPARE(database.model.getRawDataFromImagePath(path), content);
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::aMissingFileIsReported()
{
    SymbolDatabase database;
    QVERIFY(database.model.getRawDataFromImagePath(QStringLiteral("/none/%1.svg")).isNull());
    QCOMPARE(database.takeErrors(),
             QStringList(QStringLiteral("Image file path does not exist: [/none/%1.svg]")));
}

void TestSymbolStorage::aFileThatCannotBeOpenedIsReported()
{
    SymbolDatabase database;
    const QTemporaryDir folder;
    QVERIFY(database.model.getRawDataFromImagePath(folder.path()).isNull());
    QCOMPARE(database.takeErrors(),
             QStringList(QStringLiteral("Failed to open image file: [%1]").arg(folder.path())));
}

void TestSymbolStorage::noDataGivesNoThumbnail()
{
    SymbolDatabase database;
    const QString message = QStringLiteral("Raw SVG Data is null, can not create thumbnail");
    QVERIFY(database.model.getThumbnailDataFromRawData(QByteArray()).isNull());
    QCOMPARE(database.takeErrors(), QStringList(message));
    QVERIFY(database.model.getThumbnailDataFromRawData(QByteArray("")).isNull());
    QCOMPARE(database.takeErrors(), QStringList(message));
}

void TestSymbolStorage::aThumbnailHasTheBytesOfAPixmap()
{
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 30 20'>"
                           "<circle cx='9' cy='9' r='7.3' fill='#fd7800' fill-opacity='.4'/>"
                           "<path d='M1 1L29 17' stroke='black'/></svg>";
    QPixmap pixmap(50, 50);
    pixmap.fill(Qt::white);
    {
        QPainter painter(&pixmap);
        QSvgRenderer(svg).render(&painter, QRectF(0, 0, 50, 50));
    }
    QByteArray expected;
    QBuffer buffer(&expected);
    QVERIFY(buffer.open(QBuffer::WriteOnly));
    QVERIFY(pixmap.save(&buffer, "PNG"));

    QCOMPARE(SymbolDatabaseModel().getThumbnailDataFromRawData(svg), expected);
}

void TestSymbolStorage::aThumbnailIsStretchedToTheSquare()
{
    SymbolDatabaseModel model;
    for (const QSize& size : { QSize(10, 400), QSize(400, 10), QSize(3, 3) }) {
        const QImage image = toImage(
            model.getThumbnailDataFromRawData(filledSvg("blue", size.width(), size.height())));
        QCOMPARE(image.size(), QSize(50, 50));
        QImage blue(50, 50, image.format());
        blue.fill(Qt::blue);
        QCOMPARE(image, blue);
    }
}

void TestSymbolStorage::aThumbnailIsWhiteWhereTheDrawingIsTransparent()
{
    const QImage image = toImage(SymbolDatabaseModel().getThumbnailDataFromRawData(
        "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='100'>"
        "<rect width='5' height='100' fill='blue'/></svg>"));
    QVERIFY(!image.hasAlphaChannel());
    QCOMPARE(image.pixelColor(24, 25), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(25, 25), QColor(Qt::white));
    QCOMPARE(image.pixelColor(49, 0), QColor(Qt::white));
}

void TestSymbolStorage::whatIsNoSvgGivesAWhiteThumbnailWithoutAMessage_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("text") << QByteArray("no drawing");
    QTest::newRow("a null byte") << QByteArray(1, '\0');
    QTest::newRow("another XML document") << QByteArray("<html><body/></html>");
    QTest::newRow("cut off") << filledSvg("red").chopped(10);
    QTest::newRow("nothing in it") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>");
    QTest::newRow("compressed badly") << QByteArray("\x1f\x8b and so on");
}

void TestSymbolStorage::whatIsNoSvgGivesAWhiteThumbnailWithoutAMessage()
{
    QFETCH(QByteArray, data);
    SymbolDatabase database;
    const QImage image = toImage(database.model.getThumbnailDataFromRawData(data));
    QCOMPARE(image.size(), QSize(50, 50));
    QVERIFY(isWhite(image));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::aDangerousDrawingIsDrawnWithoutTheDanger()
{
    SymbolDatabase database;
    // Drawn as it is, it would open itself until the stack is used up.
    const QString path = database.write(QStringLiteral("self.svg"), QByteArray());
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' "
                           "xmlns:xlink='http://www.w3.org/1999/xlink' width='50' height='50'>"
                           "<rect width='50' height='25' fill='red'/>"
                           "<image width='50' height='50' xlink:href='"
        + QFile::encodeName(path) + "'/></svg>";
    database.write(QStringLiteral("self.svg"), svg);

    const QImage image = toImage(database.model.getThumbnailDataFromRawData(svg));
    QCOMPARE(image.pixelColor(25, 10), QColor(Qt::red));
    QCOMPARE(image.pixelColor(25, 40), QColor(Qt::white));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::idsAreFoundByName()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    for (const bool readOnly : { true, false }) {
        QVERIFY(database.model.open(readOnly));
        QCOMPARE(database.model.getCategoryIdWhileOpen(QStringLiteral("Animals")), 2);
        QCOMPARE(database.model.getTagIdWhileOpen(QStringLiteral("warning")), 4);
        QCOMPARE(database.model.getSymbolIDFromNameWhileOpen(QStringLiteral("danger")), 2);
        QCOMPARE(database.model.getRowIdFromTableWhileOpen(QStringLiteral("Image"),
                                                           QStringLiteral("cat")),
                 3);
        database.model.close();
    }
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::unknownNamesHaveNoIdAndNoMessage()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(true));
    for (const QString& name : { QStringLiteral("none"), QString(), QStringLiteral("") }) {
        QCOMPARE(database.model.getCategoryIdWhileOpen(name), -1);
        QCOMPARE(database.model.getTagIdWhileOpen(name), -1);
        QCOMPARE(database.model.getSymbolIDFromNameWhileOpen(name), -1);
    }
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::aNameIsNeverPartOfTheStatement()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    const QString name = QStringLiteral("'); DROP TABLE Tag; --\" :Name %1");
    QVERIFY(database.model.addTag(name));
    QVERIFY(database.model.addCategory(name));
    QCOMPARE(database.model.tags(), QStringList(name));
    QVERIFY(database.model.open(true));
    QCOMPARE(database.model.getTagIdWhileOpen(name), 1);
    QCOMPARE(database.model.getTagIdWhileOpen(QStringLiteral("x' OR '1'='1")), -1);
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::anUnknownTableIsReported()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.open(true));
    QCOMPARE(database.model.getRowIdFromTableWhileOpen(QStringLiteral("None"), QStringLiteral("a")),
             -1);
    database.model.close();
    QCOMPARE(database.takeErrors(),
             QStringList(
                 queryFailed(QStringLiteral("SELECT Id FROM None WHERE Name = :Name"),
                             QStringLiteral("no such table: None Unable to execute statement"))));
}

void TestSymbolStorage::aSymbolThatCannotBeLookedUpIsNotReported()
{
    SymbolDatabase database;
    QVERIFY(database.model.open(false));
    QCOMPARE(database.model.getSymbolIDFromNameWhileOpen(QStringLiteral("a")), -1);
    QCOMPARE(database.takeErrors(), QStringList());
    QCOMPARE(database.model.getTagIdWhileOpen(QStringLiteral("a")), -1);
    QCOMPARE(database.takeErrors().count(), 1);
    database.model.close();
}

void TestSymbolStorage::anIdThatIsNoNumberIsNone()
{
    SymbolDatabase database;
    database.rebuild({ QStringLiteral("CREATE TABLE Tag (Id TEXT, Name TEXT)"),
                       QStringLiteral("CREATE TABLE Image (Id TEXT, Name TEXT)"),
                       QStringLiteral("INSERT INTO Tag VALUES ('one', 'a')"),
                       QStringLiteral("INSERT INTO Image VALUES ('one', 'a')") });
    QVERIFY(database.model.open(true));
    QCOMPARE(database.model.getTagIdWhileOpen(QStringLiteral("a")), -1);
    QCOMPARE(database.model.getSymbolIDFromNameWhileOpen(QStringLiteral("a")), -1);
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::categoriesAndTagsAreAdded()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.addCategory(QStringLiteral("Signs")));
    QVERIFY(database.model.addTag(QStringLiteral("arrow")));
    QVERIFY(database.model.open(false));
    QVERIFY(database.model.addCategoryWhileOpen(QStringLiteral("Animals")));
    QVERIFY(database.model.addTagWhileOpen(QStringLiteral("pet")));
    database.model.close();
    QCOMPARE(database.sql(QStringLiteral("SELECT Id, Name FROM Category")),
             (QStringList { QStringLiteral("1|Signs"), QStringLiteral("2|Animals") }));
    QCOMPARE(database.sql(QStringLiteral("SELECT Id, Name FROM Tag")),
             (QStringList { QStringLiteral("1|arrow"), QStringLiteral("2|pet") }));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::aTagAddedTwiceIsReported()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.addTag(QStringLiteral("x")));
    QVERIFY(!database.model.addTag(QStringLiteral("x")));
    QCOMPARE(
        database.takeErrors(),
        QStringList(queryFailed(
            InsertTag, QStringLiteral("UNIQUE constraint failed: Tag.Name Unable to fetch row"))));
}

void TestSymbolStorage::aCategoryAddedTwiceIsReported()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.addCategory(QStringLiteral("x")));
    QVERIFY(!database.model.addCategory(QStringLiteral("x")));
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(
                 InsertCategory,
                 QStringLiteral("UNIQUE constraint failed: Category.Name Unable to fetch row"))));
}

void TestSymbolStorage::anUnknownTagIsReportedAndNotMade()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(false));
    QVERIFY(!database.model.addTagToImageWhileOpen(1, QStringLiteral("none")));
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList(QStringLiteral("Unknown tag: [none]")));
    QCOMPARE(database.model.tags().count(), 5);
}

void TestSymbolStorage::aTagLinkedTwiceIsReported()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(false));
    QVERIFY(database.model.addTagToImageWhileOpen(1, QStringLiteral("pet")));
    QVERIFY(!database.model.addTagToImageWhileOpen(1, QStringLiteral("pet")));
    database.model.close();
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(
                 InsertLink,
                 QStringLiteral("UNIQUE constraint failed: Image_Tag.ImageId, Image_Tag.TagId "
                                "Unable to fetch row"))));
}

void TestSymbolStorage::aTagLinkedToNoSymbolIsReported()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(false));
    QVERIFY(!database.model.addTagToImageWhileOpen(99, QStringLiteral("pet")));
    database.model.close();
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(
                 InsertLink, QStringLiteral("FOREIGN KEY constraint failed Unable to fetch row"))));
}

void TestSymbolStorage::anImageGetsAnId()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(false));
    QCOMPARE(database.model.addImageWhileOpen(QStringLiteral("dog"), QStringLiteral("Animals"),
                                              "png", "svg"),
             4);
    database.model.close();
    QCOMPARE(database.sql(QStringLiteral(
                 "SELECT Name, Thumbnail, Data, CategoryId FROM Image WHERE Id = 4")),
             QStringList(QStringLiteral("dog|png|svg|2")));
}

void TestSymbolStorage::anImageOfAnUnknownCategoryIsReported()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(database.model.open(false));
    QCOMPARE(
        database.model.addImageWhileOpen(QStringLiteral("dog"), QStringLiteral("X"), "png", "svg"),
        -1);
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList(UnknownX));
    QCOMPARE(database.model.categories(), QStringList());
}

void TestSymbolStorage::anImageWithoutDataIsRefused()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.open(false));
    QCOMPARE(database.model.addImageWhileOpen(QStringLiteral("dog"), QStringLiteral("Animals"),
                                              "png", QByteArray()),
             -1);
    database.model.close();
    QCOMPARE(database.takeErrors(),
             QStringList(queryFailed(
                 InsertImage,
                 QStringLiteral("NOT NULL constraint failed: Image.Data Unable to fetch row"))));
}

void TestSymbolStorage::preparedDataIsStoredAsGiven()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.addSymbol("no drawing", "no picture", QStringLiteral("dog"),
                                     QStringLiteral("Animals")));
    QCOMPARE(database.model.getDataFromSymbolId(4), QByteArray("no drawing"));
    QCOMPARE(database.model.getIconFromSymbolId(4), QByteArray("no picture"));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::anUnknownCategoryIsReportedOnce()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(!database.model.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("X")));
    QCOMPARE(database.takeErrors(), QStringList(UnknownX));
    QCOMPARE(database.sql(QStringLiteral("SELECT * FROM Image")), QStringList());
}

void TestSymbolStorage::anUnknownCategoryIsReportedBeforeTheFileIsRead()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    QVERIFY(!database.model.addSymbol(QStringLiteral("/none.svg"), QStringLiteral("dog"),
                                      QStringLiteral("X"), { QStringLiteral("a") }));
    QCOMPARE(database.takeErrors(), QStringList(UnknownX));
}

void TestSymbolStorage::aFileIsStoredWithItsThumbnailAndTags()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const QByteArray svg = filledSvg("teal", 20, 30);
    const QString path = database.write(QStringLiteral("dog.svg"), svg);
    QVERIFY(database.model.addSymbol(path, QStringLiteral("dog"), QStringLiteral("Animals"),
                                     { QStringLiteral("pet"), QStringLiteral("arrow") }));
    QCOMPARE(database.model.getDataFromSymbolName(QStringLiteral("dog")), svg);
    QCOMPARE(database.model.getIconFromSymbolId(4),
             database.model.getThumbnailDataFromRawData(svg));
    QCOMPARE(database.sql(
                 QStringLiteral("SELECT TagId FROM Image_Tag WHERE ImageId = 4 ORDER BY rowid")),
             (QStringList { QStringLiteral("5"), QStringLiteral("1") }));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::aMissingFileIsReportedByEveryStep()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(!database.model.addSymbol(QStringLiteral("/none.svg"), QStringLiteral("dog"),
                                      QStringLiteral("Animals"), { QStringLiteral("none") }));
    QCOMPARE(database.takeErrors(),
             (QStringList {
                 QStringLiteral("Image file path does not exist: [/none.svg]"),
                 QStringLiteral("Raw SVG Data is null, can not create thumbnail"),
                 withoutThumbnail(),
             }));
    QCOMPARE(database.sql(QStringLiteral("SELECT count(*) FROM Image")),
             QStringList(QStringLiteral("3")));
}

void TestSymbolStorage::anEmptyFileIsRefused()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const QString path = database.write(QStringLiteral("dog.svg"), QByteArray());
    QVERIFY(!database.model.addSymbol(path, QStringLiteral("dog"), QStringLiteral("Animals"), {}));
    QCOMPARE(database.takeErrors(),
             (QStringList {
                 QStringLiteral("Raw SVG Data is null, can not create thumbnail"),
                 withoutThumbnail(),
             }));
}

void TestSymbolStorage::aSymbolIsKeptWithTheTagsThatLink()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.addTag(QStringLiteral("b")));
    const QString path = database.write(QStringLiteral("dog.svg"), filledSvg("teal"));
    QVERIFY(!database.model.addSymbol(path, QStringLiteral("dog"), QStringLiteral("Animals"),
                                      { QStringLiteral("a"), QStringLiteral("b") }));
    QCOMPARE(database.takeErrors(), QStringList(QStringLiteral("Unknown tag: [a]")));
    QCOMPARE(database.sql(QStringLiteral("SELECT Image.Name, Tag.Name FROM Image, Image_Tag, Tag "
                                         "WHERE ImageId = Image.Id AND TagId = Tag.Id "
                                         "AND Image.Id = 4")),
             QStringList(QStringLiteral("dog|b")));
}

void TestSymbolStorage::oneNameMayStandForSeveralSymbols()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    for (const QByteArray& data : { QByteArray("first"), QByteArray("second") }) {
        QVERIFY(database.model.addSymbol(data, "png", QStringLiteral("dog"),
                                         QStringLiteral("Animals")));
    }
    QCOMPARE(database.sql(QStringLiteral("SELECT Id FROM Image WHERE Name = 'dog'")),
             (QStringList { QStringLiteral("4"), QStringLiteral("5") }));
    QCOMPARE(database.model.getDataFromSymbolName(QStringLiteral("dog")), QByteArray("first"));
    QVERIFY(database.model.open(true));
    QCOMPARE(database.model.getSymbolIDFromNameWhileOpen(QStringLiteral("dog")), 4);
    database.model.close();
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::idsAreNeverUsedAgain()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.removeSymbol(3));
    QVERIFY(
        database.model.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("Animals")));
    QCOMPARE(database.sql(QStringLiteral("SELECT Id FROM Image")),
             (QStringList { QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("4") }));
}

void TestSymbolStorage::removingDeletesTheLinksAndKeepsCategoryAndTags()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.removeSymbol(3));
    QCOMPARE(database.sql(QStringLiteral("SELECT Name FROM Image")),
             (QStringList { QStringLiteral("up"), QStringLiteral("danger") }));
    QCOMPARE(database.sql(QStringLiteral("SELECT * FROM Image_Tag WHERE ImageId = 3")),
             QStringList());
    QCOMPARE(database.model.categories().count(), 3);
    QCOMPARE(database.model.tags().count(), 5);

    QVERIFY(database.model.open(false));
    QVERIFY(database.model.removeSymbolWhileOpen(2));
    database.model.close();
    QCOMPARE(database.sql(QStringLiteral("SELECT Name FROM Image")),
             QStringList(QStringLiteral("up")));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::removingAnUnknownSymbolSucceeds()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QVERIFY(database.model.removeSymbol(99));
    QVERIFY(database.model.removeSymbol(-1));
    QCOMPARE(database.takeErrors(), QStringList());
    QCOMPARE(database.sql(QStringLiteral("SELECT count(*) FROM Image")),
             QStringList(QStringLiteral("3")));
}

void TestSymbolStorage::removingThatFailsIsReported()
{
    SymbolDatabase database;
    QVERIFY(!database.model.removeSymbol(1));
    QCOMPARE(database.takeErrors(),
             QStringList(
                 queryFailed(QStringLiteral("DELETE FROM Image WHERE Id = :Id"),
                             QStringLiteral("no such table: Image Unable to execute statement"))));
}

void TestSymbolStorage::writingIsRefusedInsideAnotherTransaction()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const QString path = database.write(QStringLiteral("dog.svg"), filledSvg("teal"));
    const QString message =
        QStringLiteral("Failed to start transaction:[cannot start a transaction within a "
                       "transaction Unable to begin transaction]");
    QVERIFY(database.model.open(false));
    QVERIFY(database.model.startTransaction());
    QVERIFY(!database.model.addSymbolWhileOpen("svg", "png", QStringLiteral("dog"),
                                               QStringLiteral("Animals")));
    QVERIFY(!database.model.addSymbolWhileOpen(path, QStringLiteral("dog"),
                                               QStringLiteral("Animals"), {}));
    QVERIFY(!database.model.removeSymbolWhileOpen(1));
    QCOMPARE(database.takeErrors(), (QStringList { message, message, message }));
    QVERIFY(database.model.endTransaction());
    database.model.close();
    QCOMPARE(database.sql(QStringLiteral("SELECT count(*) FROM Image")),
             QStringList(QStringLiteral("3")));
}

void TestSymbolStorage::aCommitThatFailsMakesTheWritingFail()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    makeUncommittable(database);
    const QString path = database.write(QStringLiteral("dog.svg"), filledSvg("teal"));
    const QString message =
        QStringLiteral("Failed to commit transaction:[FOREIGN KEY constraint failed Unable to "
                       "commit transaction]");

    QVERIFY(
        !database.model.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("Animals")));
    QCOMPARE(database.takeErrors(), QStringList(message));
    QVERIFY(!database.model.addSymbol(path, QStringLiteral("dog"), QStringLiteral("Animals"), {}));
    QCOMPARE(database.takeErrors(), QStringList(message));
    QCOMPARE(database.sql(QStringLiteral("SELECT * FROM Image")), QStringList());
    QVERIFY(!database.isConnected());
}

void TestSymbolStorage::whatCannotBeOpenedCannotBeWrittenAndIsClosed()
{
    SymbolDatabase database;
    database.model.setDatabasePath(QStringLiteral("/proc/symbols.db"));
    const QStringList message(QStringLiteral("Failed to open database connection:[unable to open "
                                             "database file Error opening database]"));
    const auto isRefused = [&](bool result) {
        return !result && database.takeErrors() == message && !database.isConnected();
    };
    QVERIFY(isRefused(database.model.addCategory(QStringLiteral("a"))));
    QVERIFY(isRefused(database.model.addTag(QStringLiteral("a"))));
    QVERIFY(isRefused(database.model.removeSymbol(1)));
    QVERIFY(isRefused(
        database.model.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("Animals"))));
    QVERIFY(isRefused(database.model.addSymbol(QStringLiteral("/none.svg"), QStringLiteral("dog"),
                                               QStringLiteral("Animals"), {})));
}

void TestSymbolStorage::writingInTheCallersTransactionLeavesItOpen()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const QString path = database.write(QStringLiteral("dog.svg"), filledSvg("teal"));
    QVERIFY(database.model.open(false));
    QVERIFY(database.model.startTransaction());
    QVERIFY(database.model.addSymbolWhileOpenTransaction("svg", "png", QStringLiteral("dog"),
                                                         QStringLiteral("Animals")));
    QVERIFY(database.model.addSymbolWhileOpenTransaction(path, QStringLiteral("dog"),
                                                         QStringLiteral("Animals"), {}));
    QVERIFY(database.model.removeSymbolWhileOpenTransaction(1));
    QVERIFY(database.model.database().rollback());
    database.model.close();
    QCOMPARE(database.sql(QStringLiteral("SELECT Id FROM Image")),
             (QStringList { QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3") }));
    QCOMPARE(database.takeErrors(), QStringList());
}

void TestSymbolStorage::entryPointsCanBeInvokedByName()
{
    SymbolDatabase database(SymbolDatabase::Schema);
    const QString path = database.write(QStringLiteral("dog.svg"), filledSvg("teal"));
    bool result = false;
    QVERIFY(QMetaObject::invokeMethod(&database.model, "addTag", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QString, QStringLiteral("pet"))));
    QVERIFY(std::exchange(result, false));
    QVERIFY(QMetaObject::invokeMethod(&database.model, "addCategory", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QString, QStringLiteral("Animals"))));
    QVERIFY(std::exchange(result, false));
    QVERIFY(QMetaObject::invokeMethod(&database.model, "addSymbol", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QString, path), Q_ARG(QString, QStringLiteral("dog")),
                                      Q_ARG(QString, QStringLiteral("Animals")),
                                      Q_ARG(QStringList, QStringList(QStringLiteral("pet")))));
    QVERIFY(std::exchange(result, false));
    QVERIFY(QMetaObject::invokeMethod(&database.model, "addSymbol", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QByteArray, "svg"), Q_ARG(QByteArray, "png"),
                                      Q_ARG(QString, QStringLiteral("cat")),
                                      Q_ARG(QString, QStringLiteral("Animals"))));
    QVERIFY(std::exchange(result, false));
    QVERIFY(QMetaObject::invokeMethod(&database.model, "removeSymbol", Q_RETURN_ARG(bool, result),
                                      Q_ARG(int, 1)));
    QVERIFY(result);
    QCOMPARE(database.sql(QStringLiteral("SELECT Name FROM Image")),
             QStringList(QStringLiteral("cat")));
}

void TestSymbolStorage::messagesCarryCommentsForTranslators()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    const TranslationRecorder recorder("SymbolDatabaseModel");
    QVERIFY(database.model.getRawDataFromImagePath(QStringLiteral("/none.svg")).isEmpty());
    QVERIFY(database.model.getRawDataFromImagePath(QStringLiteral("/")).isEmpty());
    QVERIFY(database.model.getThumbnailDataFromRawData(QByteArray()).isEmpty());
    QVERIFY(!database.model.addSymbol("svg", "png", QStringLiteral("dog"), QStringLiteral("X")));
    QVERIFY(database.model.open(false));
    QVERIFY(!database.model.addTagToImageWhileOpen(1, QStringLiteral("none")));
    database.model.close();
    QCOMPARE(
        recorder.texts(),
        (QStringList {
            QStringLiteral("Image file path does not exist: [%1] / "
                           "Error message: trying to open symbol file."),
            QStringLiteral("Failed to open image file: [%1] / "
                           "Error message: trying to open symbol file."),
            QStringLiteral("Raw SVG Data is null, can not create thumbnail / Error message: Unable "
                           "to create a file thumbnail using the empty unprocessed image data."),
            QStringLiteral("Unknown category: [%1] / Error message: Categories are child tables of "
                           "a parent table in a database."),
            QStringLiteral("Unknown tag: [%1] / "
                           "Error message: tag is a keyword assigned to a piece of info."),
        }));
}

UW_TEST_MAIN(TestSymbolStorage)

#include "tst_symboldatabasemodel_storage.moc"
