// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filedialogmedia.h"

#include "support/test.h"

#include <QDataStream>

namespace {

template <typename Data> QByteArray bytes(const Data& content)
{
    QByteArray array;
    QDataStream stream(&array, QIODevice::WriteOnly);
    stream << content;
    return array;
}

const QString Stick = QStringLiteral("/media/STICK");
const QString Card = QStringLiteral("/media/MY CARD");

} // namespace

class TestFileDialogMedia : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void keepsMediaInTheOrderReceived();
    void addsAMediumOnce();
    void aListReplacesTheOther();
    void removesOne();
    void takesNoPathFromDamagedData_data();
    void takesNoPathFromDamagedData();
    void takesNoListFromDamagedData_data();
    void takesNoListFromDamagedData();
    void leavesOutWhatIsNoPathFromAList();
    void growsToABoundOnly();
};

void TestFileDialogMedia::keepsMediaInTheOrderReceived()
{
    FileDialogMedia media;
    QVERIFY(media.replace(bytes(QStringList { Stick, Card })));
    QCOMPARE(media.add(bytes(QStringLiteral("/media/a"))), QStringLiteral("/media/a"));
    QCOMPARE(media.paths(), QStringList({ Stick, Card, QStringLiteral("/media/a") }));
}

void TestFileDialogMedia::addsAMediumOnce()
{
    FileDialogMedia media;
    QVERIFY(media.add(bytes(Stick)));
    QVERIFY(!media.add(bytes(Stick)));
    QCOMPARE(media.paths(), QStringList { Stick });
}

void TestFileDialogMedia::aListReplacesTheOther()
{
    FileDialogMedia media;
    QVERIFY(media.replace(bytes(QStringList { Stick })));
    QVERIFY(media.replace(bytes(QStringList { Card })));
    QCOMPARE(media.paths(), QStringList { Card });
    QVERIFY(media.replace(bytes(QStringList())));
    QCOMPARE(media.paths(), QStringList());
}

void TestFileDialogMedia::removesOne()
{
    FileDialogMedia media;
    QVERIFY(media.replace(bytes(QStringList { Stick, Card })));
    QCOMPARE(media.remove(bytes(Stick)), Stick);
    QCOMPARE(media.paths(), QStringList { Card });
    QCOMPARE(media.remove(bytes(Stick)), Stick); // unknown: the caller may know it
    QCOMPARE(media.paths(), QStringList { Card });
}

void TestFileDialogMedia::takesNoPathFromDamagedData_data()
{
    QTest::addColumn<QByteArray>("data");
    const QByteArray whole = bytes(Stick);
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half a size") << whole.left(2);
    QTest::newRow("a size alone") << whole.left(4);
    QTest::newRow("half a path") << whole.left(whole.size() / 2);
    QTest::newRow("an odd number of bytes") << QByteArray::fromHex("00000003002f00");
    QTest::newRow("a size of four thousand million") << QByteArray::fromHex("fffffffe002f");
    QTest::newRow("a null text") << bytes(QString());
    QTest::newRow("an empty text") << bytes(QStringLiteral(""));
    QTest::newRow("a list") << bytes(QStringList { Stick, Card });
    QTest::newRow("a number") << bytes(qint32(7));
    QTest::newRow("a relative path") << bytes(QStringLiteral("STICK"));
    QTest::newRow("a path with a null in it") << bytes(QStringLiteral("/a") + QChar(0));
    QTest::newRow("a path of a million characters")
        << bytes(QLatin1Char('/') + QString(1000000, QLatin1Char('x')));
}

void TestFileDialogMedia::takesNoPathFromDamagedData()
{
    QFETCH(QByteArray, data);
    FileDialogMedia media;
    QVERIFY(media.add(bytes(Card)));
    QVERIFY(!media.add(data));
    QVERIFY(!media.remove(data));
    QCOMPARE(media.paths(), QStringList { Card });
}

void TestFileDialogMedia::takesNoListFromDamagedData_data()
{
    QTest::addColumn<QByteArray>("data");
    const QByteArray whole = bytes(QStringList { Stick, Card });
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half a count") << whole.left(2);
    QTest::newRow("a count alone") << whole.left(4);
    QTest::newRow("one of two") << whole.left(4 + bytes(Stick).size());
    QTest::newRow("one and a half of two") << whole.chopped(3);
    QTest::newRow("a count of four thousand million") << QByteArray::fromHex("ffffffff");
    QTest::newRow("a text") << bytes(Stick);
}

void TestFileDialogMedia::takesNoListFromDamagedData()
{
    QFETCH(QByteArray, data);
    FileDialogMedia media;
    QVERIFY(media.add(bytes(Card)));
    QVERIFY(!media.replace(data));
    QCOMPARE(media.paths(), QStringList { Card });
}

void TestFileDialogMedia::leavesOutWhatIsNoPathFromAList()
{
    FileDialogMedia media;
    QVERIFY(media.replace(bytes(QStringList { QString(), Stick, QStringLiteral("relative"), Card,
                                              QString(5000, QLatin1Char('/')) })));
    QCOMPARE(media.paths(), QStringList({ Stick, Card }));
}

void TestFileDialogMedia::growsToABoundOnly()
{
    QStringList many;
    for (int i = 0; i < 100000; ++i) {
        many.append(QStringLiteral("/media/%1").arg(i));
    }
    FileDialogMedia media;
    QVERIFY(media.replace(bytes(many)));
    QCOMPARE(media.paths(), many.mid(0, FileDialogMedia::MaximumCount));
    QVERIFY(!media.add(bytes(Stick)));
    QCOMPARE(media.paths().size(), FileDialogMedia::MaximumCount);
}

UW_TEST_MAIN(TestFileDialogMedia)

#include "tst_filedialogmedia.moc"
