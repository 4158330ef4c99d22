// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "suffixintvalidator.h"

#include "oxlineedit.h"
#include "support/test.h"

#include <QApplication>

#include <limits>

namespace {

constexpr int Cursor = 1;

} // namespace

class TestSuffixIntValidator : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void belongsToItsParent();
    void rangeIsHandedToTheBase();
    void validates_data();
    void validates();
    void judgesTheNumberAsItsBaseDoes_data();
    void judgesTheNumberAsItsBaseDoes();
    void numberWithItsSuffixIsAcceptableAndStays();
    void numberWithoutItsSuffixGetsIt();
    void numberOutOfRangeGetsTheBaseVerdictAndKeepsItsSuffix();
    void suffixAloneBecomesEmptyAndIsAcceptable_data();
    void suffixAloneBecomesEmptyAndIsAcceptable();
    void withoutSuffixOnlyBlankInputDiffersFromTheBase();
    void neverTouchesTheCursor();
    void callsTheOverriddenFixupWhateverTheVerdict_data();
    void callsTheOverriddenFixupWhateverTheVerdict();
    void fixupWritesTheNumberAsTheLocaleDoesAndAppends_data();
    void fixupWritesTheNumberAsTheLocaleDoesAndAppends();
    void lastSuffixSetCounts();
    void lineEditKeepsTheSuffixWhileTyping();
    void lineEditCanBeCleared();
    void lineEditRefusesALetter();
};

void TestSuffixIntValidator::isNamedAfterItsClass()
{
    QCOMPARE(SuffixIntValidator().objectName(), QStringLiteral("SuffixIntValidator"));
    QCOMPARE(SuffixIntValidator(0, 1).objectName(), QStringLiteral("SuffixIntValidator"));
}

void TestSuffixIntValidator::belongsToItsParent()
{
    QWidget parent;
    QCOMPARE((new SuffixIntValidator(&parent))->parent(), &parent);
    QCOMPARE((new SuffixIntValidator(0, 1, &parent))->parent(), &parent);
}

void TestSuffixIntValidator::rangeIsHandedToTheBase()
{
    const SuffixIntValidator plain;
    QCOMPARE(plain.bottom(), std::numeric_limits<int>::min());
    QCOMPARE(plain.top(), std::numeric_limits<int>::max());
    const SuffixIntValidator ranged(-3, 7);
    QCOMPARE(ranged.bottom(), -3);
    QCOMPARE(ranged.top(), 7);
}

void TestSuffixIntValidator::validates_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("state");
    QTest::addColumn<QString>("text");

    const auto row = [](const char* name, const char* suffix, const char* input,
                        QValidator::State state, const char* text) {
        QTest::newRow(name) << QString::fromUtf8(suffix) << QString::fromUtf8(input) << state
                            << QString::fromUtf8(text);
    };
    row("suffix cut short", " mm", "12 m", QValidator::Acceptable, "12 mm");
    row("digit within the suffix", " mm", "12m5m", QValidator::Acceptable, "125 mm");
    row("digit behind the suffix's blank", " mm", "12 mm5", QValidator::Invalid, "12 5 mm");
    row("suffix characters anywhere", " mm", "m1m2m", QValidator::Acceptable, "12 mm");
    row("suffix in the other case", " mm", "12 MM", QValidator::Acceptable, "12 mm");
    row("suffix set in upper case", " MM", "12 mm", QValidator::Acceptable, "12 MM");
    row("each character of the suffix", " in", "n1i2", QValidator::Acceptable, "12 in");
    row("suffix twice", " mm", "12 mm mm", QValidator::Acceptable, "12 mm");
    row("suffix beyond Latin-1", " \u00b5m", "12 \u00b5M", QValidator::Acceptable, "12 \u00b5m");
    row("trailing blank of the suffix is kept", "mm ", "12", QValidator::Acceptable, "12mm ");
    row("blank within the suffix goes too", " m s", "1 2", QValidator::Acceptable, "12 m s");
    row("blank suffix", " ", " 12 ", QValidator::Acceptable, "12 ");
    row("digits of the suffix go too", " m2", "12 m2", QValidator::Acceptable, "1 m2");
    row("blanks around the number", " mm", "  12   mm  ", QValidator::Acceptable, "12 mm");
    row("invalid text gets the suffix", " mm", "12x", QValidator::Invalid, "12x mm");
    row("invalid text keeps the suffix", " mm", "12x mm", QValidator::Invalid, "12x mm");
    row("blank between digits", " mm", "1 2 mm", QValidator::Invalid, "1 2 mm");
    row("decimals", " mm", "1.5 mm", QValidator::Invalid, "1.5 mm");
    row("sign below a range from 0", " mm", "-", QValidator::Invalid, "- mm");
    row("two signs", " mm", "--1", QValidator::Invalid, "--1 mm");
}

void TestSuffixIntValidator::validates()
{
    QFETCH(const QString, suffix);
    QFETCH(const QString, input);

    SuffixIntValidator validator(0, 1000);
    validator.setLocale(QLocale::c());
    validator.setSuffix(suffix);
    QString text = input;
    int cursor = 0;
    const QValidator::State state = validator.validate(text, cursor);

    QTEST(state, "state");
    QTEST(text, "text");
}

void TestSuffixIntValidator::judgesTheNumberAsItsBaseDoes_data()
{
    QTest::addColumn<QString>("number");
    for (const char* number : { "12", "-12", "-", "+", "0", "007", "500", "99", "1000", "1,000",
                                "1.000", "x", "99999999999999999999" }) {
        QTest::newRow(number) << QString::fromLatin1(number);
    }
}

void TestSuffixIntValidator::judgesTheNumberAsItsBaseDoes()
{
    QFETCH(const QString, number);

    for (const QLocale& locale : { QLocale::c(), QLocale(QLocale::English, QLocale::UnitedStates),
                                   QLocale(QLocale::German, QLocale::Germany) }) {
        for (const auto& [bottom, top] : { std::pair(0, 100), std::pair(-50, 50) }) {
            QIntValidator base(bottom, top);
            SuffixIntValidator validator(bottom, top);
            base.setLocale(locale);
            validator.setLocale(locale);
            validator.setSuffix(QStringLiteral(" mm"));

            QString expected = number;
            QString text = number + QStringLiteral(" mm");
            int cursor = 0;
            const QValidator::State verdict = base.validate(expected, cursor);
            base.fixup(expected);
            QCOMPARE(validator.validate(text, cursor), verdict);
            QCOMPARE(text, QString(expected + QStringLiteral(" mm")));
        }
    }
}

void TestSuffixIntValidator::numberWithItsSuffixIsAcceptableAndStays()
{
    SuffixIntValidator validator(0, 100);
    validator.setSuffix(QStringLiteral(" mm"));
    QString text = QStringLiteral("12 mm");
    int cursor = 0;
    QCOMPARE(validator.validate(text, cursor), QValidator::Acceptable);
    QCOMPARE(text, QStringLiteral("12 mm"));
}

void TestSuffixIntValidator::numberWithoutItsSuffixGetsIt()
{
    SuffixIntValidator validator(0, 100);
    validator.setSuffix(QStringLiteral(" mm"));
    QString text = QStringLiteral("12");
    int cursor = 0;
    QCOMPARE(validator.validate(text, cursor), QValidator::Acceptable);
    QCOMPARE(text, QStringLiteral("12 mm"));
}

void TestSuffixIntValidator::numberOutOfRangeGetsTheBaseVerdictAndKeepsItsSuffix()
{
    SuffixIntValidator validator(0, 100);
    validator.setSuffix(QStringLiteral(" mm"));
    QString number = QStringLiteral("200");
    QString text = QStringLiteral("200 mm");
    int cursor = 0;
    const QValidator::State verdict = QIntValidator(0, 100).validate(number, cursor);
    QVERIFY(verdict != QValidator::Acceptable);
    QCOMPARE(validator.validate(text, cursor), verdict);
    QCOMPARE(text, QStringLiteral("200 mm"));
}

void TestSuffixIntValidator::suffixAloneBecomesEmptyAndIsAcceptable_data()
{
    QTest::addColumn<QString>("input");
    QTest::newRow("the suffix") << QStringLiteral(" mm");
    QTest::newRow("in upper case") << QStringLiteral("MM");
    QTest::newRow("a part of it") << QStringLiteral("m");
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("nothing") << QString();
}

void TestSuffixIntValidator::suffixAloneBecomesEmptyAndIsAcceptable()
{
    QFETCH(QString, input);
    // A range without 0: that the empty text is no number in it must not matter.
    SuffixIntValidator validator(10, 100);
    validator.setSuffix(QStringLiteral(" mm"));
    int cursor = 0;
    QCOMPARE(validator.validate(input, cursor), QValidator::Acceptable);
    QCOMPARE(input, QString());
}

void TestSuffixIntValidator::withoutSuffixOnlyBlankInputDiffersFromTheBase()
{
    const SuffixIntValidator validator(0, 100);
    const QIntValidator base(0, 100);
    for (const char* input : { "12", "200", "-1", "1x", "x" }) {
        QString text = QString::fromLatin1(input);
        QString expected = text;
        int cursor = 0;
        QCOMPARE(validator.validate(text, cursor), base.validate(expected, cursor));
        QCOMPARE(text, QString::fromLatin1(input));
    }
    for (const char* input : { "", "  " }) {
        QString text = QString::fromLatin1(input);
        int cursor = 0;
        QCOMPARE(validator.validate(text, cursor), QValidator::Acceptable);
        QCOMPARE(text, QString());
    }
    QString text = QStringLiteral("  12 ");
    int cursor = 0;
    QCOMPARE(validator.validate(text, cursor), QValidator::Acceptable);
    QCOMPARE(text, QStringLiteral("12"));
}

void TestSuffixIntValidator::neverTouchesTheCursor()
{
    SuffixIntValidator validator(0, 100);
    validator.setSuffix(QStringLiteral(" mm"));
    for (const char* input : { "mmm12", "12 mm", "12", "x", "mm" }) {
        QString text = QString::fromLatin1(input);
        int cursor = Cursor;
        validator.validate(text, cursor);
        QCOMPARE(cursor, Cursor);
    }
}

void TestSuffixIntValidator::callsTheOverriddenFixupWhateverTheVerdict_data()
{
    QTest::addColumn<QString>("input");
    QTest::newRow("acceptable") << QStringLiteral("12");
    QTest::newRow("intermediate") << QStringLiteral("200");
    QTest::newRow("invalid") << QStringLiteral("x");
}

void TestSuffixIntValidator::callsTheOverriddenFixupWhateverTheVerdict()
{
    class Marking : public SuffixIntValidator
    {
    public:
        using SuffixIntValidator::SuffixIntValidator;
        void fixup(QString& input) const override { input += QStringLiteral("!"); }
    };

    QFETCH(const QString, input);
    const Marking validator(0, 100);
    QString text = input;
    int cursor = 0;
    validator.validate(text, cursor);
    QCOMPARE(text, QString(input + QStringLiteral("!")));
}

void TestSuffixIntValidator::fixupWritesTheNumberAsTheLocaleDoesAndAppends_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("text");

    const QLocale german(QLocale::German, QLocale::Germany);
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    QTest::newRow("no groups") << QLocale::c() << QStringLiteral("12345")
                               << QStringLiteral("12345 mm");
    QTest::newRow("groups of points")
        << german << QStringLiteral("12345") << QStringLiteral("12.345 mm");
    QTest::newRow("groups of commas")
        << american << QStringLiteral("12345") << QStringLiteral("12,345 mm");
    QTest::newRow("leading zeros")
        << QLocale::c() << QStringLiteral("007") << QStringLiteral("7 mm");
    QTest::newRow("no number") << QLocale::c() << QStringLiteral("x") << QStringLiteral("x mm");
    QTest::newRow("nothing") << QLocale::c() << QString() << QStringLiteral(" mm");
    QTest::newRow("the suffix is there already")
        << QLocale::c() << QStringLiteral("12 mm") << QStringLiteral("12 mm mm");
}

void TestSuffixIntValidator::fixupWritesTheNumberAsTheLocaleDoesAndAppends()
{
    QFETCH(const QLocale, locale);
    QFETCH(QString, input);
    SuffixIntValidator validator;
    validator.setLocale(locale);
    validator.setSuffix(QStringLiteral(" mm"));
    validator.fixup(input);
    QTEST(input, "text");
}

void TestSuffixIntValidator::lastSuffixSetCounts()
{
    SuffixIntValidator validator(0, 100);
    validator.setSuffix(QStringLiteral(" mm"));
    validator.setSuffix(QStringLiteral(" %"));
    QString text = QStringLiteral("12 mm");
    int cursor = 0;
    QCOMPARE(validator.validate(text, cursor), QValidator::Invalid);
    QCOMPARE(text, QStringLiteral("12 mm %"));
    text = QStringLiteral("12%");
    QCOMPARE(validator.validate(text, cursor), QValidator::Acceptable);
    QCOMPARE(text, QStringLiteral("12 %"));
}

void TestSuffixIntValidator::lineEditKeepsTheSuffixWhileTyping()
{
    OxLineEdit field;
    auto* validator = new SuffixIntValidator(0, 1000, &field);
    validator->setSuffix(QStringLiteral(" mm"));
    field.setValidator(validator);

    QTest::keyClicks(&field, QStringLiteral("123"));
    QCOMPARE(field.text(), QStringLiteral("123 mm"));
    QCOMPARE(field.cursorPosition(), 3);

    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), QStringLiteral("12 mm"));
    QTest::keyClick(&field, Qt::Key_End);
    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), QStringLiteral("12 mm"));
    QVERIFY(field.hasAcceptableInput());
}

void TestSuffixIntValidator::lineEditCanBeCleared()
{
    OxLineEdit field(QStringLiteral("5 mm"));
    auto* validator = new SuffixIntValidator(1, 1000, &field);
    validator->setSuffix(QStringLiteral(" mm"));
    field.setValidator(validator);

    field.setCursorPosition(1);
    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), QString());
    QVERIFY(field.hasAcceptableInput());
}

void TestSuffixIntValidator::lineEditRefusesALetter()
{
    OxLineEdit field(QStringLiteral("5 mm"));
    auto* validator = new SuffixIntValidator(1, 1000, &field);
    validator->setSuffix(QStringLiteral(" mm"));
    field.setValidator(validator);

    field.setCursorPosition(1);
    QTest::keyClick(&field, Qt::Key_X);
    QCOMPARE(field.text(), QStringLiteral("5 mm"));
}

UW_TEST_MAIN(TestSuffixIntValidator)

#include "tst_suffixintvalidator.moc"
