// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "sharedconstants.h"

#include "support/othersharedconstants.h"
#include "support/test.h"

#include <type_traits>

class TestSharedConstants : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void screenIsThatOfTheDevice();
    void constantsHaveTheirTypes();
    void buttonSizesAreInPixels();
    void pathsAreExact_data();
    void pathsAreExact();
    void productDataLiesUnderTheDataRootWithItsFullSystemPath();
    void eachSourceFileHoldsItsOwnCopy();
};

void TestSharedConstants::screenIsThatOfTheDevice()
{
    QCOMPARE(ModelName, QStringLiteral("_Vela Orca"));
    QCOMPARE(ScreenWidth, 1024);
    QCOMPARE(ScreenHeight, 540);
    QCOMPARE(ScreenSize, QSize(1024, 540));
}

void TestSharedConstants::constantsHaveTheirTypes()
{
    static_assert(std::is_same_v<decltype(ModelName), const QString>);
    static_assert(std::is_same_v<decltype(ScreenWidth), const int>);
    static_assert(std::is_same_v<decltype(ScreenHeight), const int>);
    static_assert(std::is_same_v<decltype(ScreenSize), const QSize>);
    static_assert(std::is_same_v<decltype(IconButtonSize), const QSize>);
    static_assert(std::is_same_v<decltype(CloseButtonSize), const QSize>);
    static_assert(std::is_same_v<decltype(DataRootPath), const QString>);
    static_assert(std::is_same_v<decltype(HomeFolderPath), const QString>);
    static_assert(std::is_same_v<decltype(ProductDataPath), const QString>);
    static_assert(std::is_same_v<decltype(HelpPath), const QString>);
    static_assert(std::is_same_v<decltype(DatabasesPath), const QString>);
    static_assert(std::is_same_v<decltype(DefaultDataPath), const QString>);
    static_assert(ScreenWidth == 1024 && ScreenHeight == 540, "usable at compile time");
}

void TestSharedConstants::buttonSizesAreInPixels()
{
    QCOMPARE(IconButtonSize, QSize(35, 35));
    QCOMPARE(CloseButtonSize.width(), 34);
    QCOMPARE(CloseButtonSize.height(), 31);
}

void TestSharedConstants::pathsAreExact_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");

    QTest::newRow("data root") << DataRootPath << QStringLiteral("/data");
    QTest::newRow("home folder") << HomeFolderPath << QStringLiteral("/Home/");
    QTest::newRow("product data") << ProductDataPath
                                  << QStringLiteral("/data/usr/share/data/Halvard/");
    QTest::newRow("help") << HelpPath << QStringLiteral("/data/usr/share/data/Halvard/Help/");
    QTest::newRow("databases") << DatabasesPath
                               << QStringLiteral("/data/usr/share/data/Halvard/databases/");
    QTest::newRow("default data") << DefaultDataPath
                                  << QStringLiteral("/data/usr/share/data/Halvard/");
}

void TestSharedConstants::pathsAreExact()
{
    QFETCH(QString, path);
    QTEST(path, "expected");
}

void TestSharedConstants::productDataLiesUnderTheDataRootWithItsFullSystemPath()
{
    QCOMPARE(ProductDataPath, DataRootPath + QStringLiteral("/usr/share/data/Halvard/"));
    QCOMPARE(HelpPath, ProductDataPath + QStringLiteral("Help/"));
    QCOMPARE(DatabasesPath, ProductDataPath + QStringLiteral("databases/"));
    QCOMPARE(DefaultDataPath, ProductDataPath);
}

void TestSharedConstants::eachSourceFileHoldsItsOwnCopy()
{
    QVERIFY(&otherScreenWidth() != &ScreenWidth);
    QVERIFY(&otherDatabasesPath() != &DatabasesPath);
    QCOMPARE(otherScreenWidth(), ScreenWidth);
    QCOMPARE(otherDatabasesPath(), DatabasesPath);
}

UW_TEST_MAIN(TestSharedConstants)

#include "tst_sharedconstants.moc"
