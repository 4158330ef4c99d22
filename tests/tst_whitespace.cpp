// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "whitespace.h"

#include "support/test.h"

class TestWhiteSpace : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyOrWhiteSpaceThroughout_data();
    void isEmptyOrWhiteSpaceThroughout();
    void decidesLongTextsToo();
};

void TestWhiteSpace::isEmptyOrWhiteSpaceThroughout_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("whiteSpace");

    QTest::newRow("null") << QString() << true;
    QTest::newRow("empty") << QStringLiteral("") << true;
    QTest::newRow("three blanks") << QStringLiteral("   ") << true;
    QTest::newRow("tabs and line breaks") << QStringLiteral("\t\n\t\r\n") << true;
    QTest::newRow("form feed and vertical tab") << QStringLiteral("\f\v") << true;
    QTest::newRow("no-break space") << QStringLiteral("\u00a0") << true;
    QTest::newRow("next line") << QStringLiteral("\u0085") << true;
    QTest::newRow("em space") << QStringLiteral("\u2003") << true;
    QTest::newRow("line and paragraph separator") << QStringLiteral("\u2028\u2029") << true;
    QTest::newRow("ideographic space") << QStringLiteral("\u3000") << true;

    QTest::newRow("letter with a blank on each side") << QStringLiteral(" a ") << false;
    QTest::newRow("letter") << QStringLiteral("a") << false;
    QTest::newRow("letter after a line break") << QStringLiteral("\na") << false;
    QTest::newRow("letter before a line break") << QStringLiteral("a\n") << false;
    QTest::newRow("the pattern itself") << QStringLiteral("\\s*") << false;
    QTest::newRow("the letter of the pattern") << QStringLiteral("s") << false;
    QTest::newRow("zero-width space") << QStringLiteral("\u200b") << false;
    QTest::newRow("null character") << QString(QChar(u'\0')) << false;
    QTest::newRow("half a surrogate pair") << QString(QChar(0xd83d)) << false;
    QTest::newRow("emoji") << QStringLiteral(" \U0001f600") << false;
}

void TestWhiteSpace::isEmptyOrWhiteSpaceThroughout()
{
    QFETCH(const QString, text);
    QFETCH(const bool, whiteSpace);

    QCOMPARE(WhiteSpace::isWhiteSpace(text), whiteSpace);
}

void TestWhiteSpace::decidesLongTextsToo()
{
    const QString blanks(1000000, QLatin1Char(' '));

    QVERIFY(WhiteSpace::isWhiteSpace(blanks));
    QVERIFY(!WhiteSpace::isWhiteSpace(blanks + QLatin1Char('a')));
    QVERIFY(!WhiteSpace::isWhiteSpace(QLatin1Char('a') + blanks));
}

UW_TEST_MAIN(TestWhiteSpace)

#include "tst_whitespace.moc"
