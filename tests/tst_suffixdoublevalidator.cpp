// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "suffixdoublevalidator.h"

#include "oxlineedit.h"
#include "support/test.h"

#include <QApplication>

namespace {

constexpr int Cursor = 1;

QLocale german()
{
    return { QLocale::German, QLocale::Germany };
}

QLocale american()
{
    return { QLocale::English, QLocale::UnitedStates };
}

} // namespace

class TestSuffixDoubleValidator : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void belongsToItsParent();
    void usesStandardNotation();
    void rangeAndDecimalsAreHandedToTheBase();
    void validates_data();
    void validates();
    void judgesTheNumberAsItsBaseDoes_data();
    void judgesTheNumberAsItsBaseDoes();
    void exponentIsNoPartOfTheSuffixAndRefused();
    void suffixAloneBecomesEmptyAndIsAcceptable_data();
    void suffixAloneBecomesEmptyAndIsAcceptable();
    void withoutSuffixOnlyBlankInputDiffersFromTheBase();
    void neverTouchesTheCursor();
    void callsTheOverriddenFixupWhateverTheVerdict_data();
    void callsTheOverriddenFixupWhateverTheVerdict();
    void fixupOnlyAppends_data();
    void fixupOnlyAppends();
    void lineEditTakesADecimalComma();
    void lineEditCanBeCleared();
};

void TestSuffixDoubleValidator::isNamedAfterItsClass()
{
    QCOMPARE(SuffixDoubleValidator().objectName(), QStringLiteral("SuffixDoubleValidator"));
    QCOMPARE(SuffixDoubleValidator(0, 1, 2).objectName(), QStringLiteral("SuffixDoubleValidator"));
}

void TestSuffixDoubleValidator::belongsToItsParent()
{
    QWidget parent;
    QCOMPARE((new SuffixDoubleValidator(&parent))->parent(), &parent);
    QCOMPARE((new SuffixDoubleValidator(0, 1, 2, &parent))->parent(), &parent);
}

void TestSuffixDoubleValidator::usesStandardNotation()
{
    QCOMPARE(SuffixDoubleValidator().notation(), QDoubleValidator::StandardNotation);
    QCOMPARE(SuffixDoubleValidator(0, 1, 2).notation(), QDoubleValidator::StandardNotation);
}

void TestSuffixDoubleValidator::rangeAndDecimalsAreHandedToTheBase()
{
    const SuffixDoubleValidator plain;
    const QDoubleValidator base;
    QCOMPARE(plain.bottom(), base.bottom());
    QCOMPARE(plain.top(), base.top());
    QCOMPARE(plain.decimals(), base.decimals());
    const SuffixDoubleValidator ranged(-1.5, 7.25, 3);
    QCOMPARE(ranged.bottom(), -1.5);
    QCOMPARE(ranged.top(), 7.25);
    QCOMPARE(ranged.decimals(), 3);
}

void TestSuffixDoubleValidator::validates_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("state");
    QTest::addColumn<QString>("text");

    const auto row = [](const char* name, const QLocale& locale, const char* suffix,
                        const char* input, QValidator::State state, const char* text) {
        QTest::newRow(name) << locale << QString::fromUtf8(suffix) << QString::fromUtf8(input)
                            << state << QString::fromUtf8(text);
    };
    const QLocale c = QLocale::c();
    row("with its suffix", c, " mm", "12.50 mm", QValidator::Acceptable, "12.50 mm");
    row("without it", c, " mm", "12.50", QValidator::Acceptable, "12.50 mm");
    row("suffix cut short", c, " mm", "12.5 m", QValidator::Acceptable, "12.5 mm");
    row("decimals within the suffix", c, " mm", "12m.5m", QValidator::Acceptable, "12.5 mm");
    row("decimals behind the suffix's blank", c, " mm", "12 mm.5", QValidator::Invalid, "12 .5 mm");
    row("suffix in the other case", c, " mm", "12.5 MM", QValidator::Acceptable, "12.5 mm");
    row("each character of the suffix", c, " in", "n1i2", QValidator::Acceptable, "12 in");
    row("a suffix with a point takes every point", c, " in.", "1.5 in.", QValidator::Acceptable,
        "15 in.");
    row("zeros stay as typed", c, " mm", "007.50", QValidator::Acceptable, "007.50 mm");
    row("beyond the range", c, " mm", "2000 mm", QValidator::Intermediate, "2000 mm");
    row("invalid text gets the suffix", c, " mm", "12x", QValidator::Invalid, "12x mm");
    row("one decimal too many", c, " mm", "1.234", QValidator::Invalid, "1.234 mm");
    row("decimal comma", german(), " mm", "12,50 mm", QValidator::Acceptable, "12,50 mm");
    row("comma being typed", german(), " mm", "12, mm", QValidator::Acceptable, "12, mm");
    row("comma too many", german(), " mm", "1,2,3 mm", QValidator::Invalid, "1,2,3 mm");
    row("a suffix with a comma takes every comma", german(), ", mm", "1,5", QValidator::Acceptable,
        "15, mm");
}

void TestSuffixDoubleValidator::validates()
{
    QFETCH(const QLocale, locale);
    QFETCH(const QString, suffix);
    QFETCH(const QString, input);

    SuffixDoubleValidator validator(0, 1000, 2);
    validator.setLocale(locale);
    validator.setSuffix(suffix);
    QString text = input;
    int cursor = 0;
    const QValidator::State state = validator.validate(text, cursor);

    QTEST(state, "state");
    QTEST(text, "text");
}

void TestSuffixDoubleValidator::judgesTheNumberAsItsBaseDoes_data()
{
    QTest::addColumn<QString>("number");
    for (const char* number :
         { "12",       "12.5", "12,5",  "12.",   "12,",     ".5",      ",5",
           "-1",       "-",    "1.234", "1,234", "1.234,5", "1,234.5", "12345.50",
           "12345,50", "1e3",  "200",   "x",     "nan",     "inf" }) {
        QTest::newRow(number) << QString::fromLatin1(number);
    }
}

void TestSuffixDoubleValidator::judgesTheNumberAsItsBaseDoes()
{
    QFETCH(const QString, number);

    for (const QLocale& locale : { QLocale::c(), american(), german() }) {
        for (const auto& [bottom, top] : { std::pair(0.0, 100.0), std::pair(-5e6, 5e6) }) {
            QDoubleValidator base(bottom, top, 2);
            base.setNotation(QDoubleValidator::StandardNotation);
            base.setLocale(locale);
            SuffixDoubleValidator validator(bottom, top, 2);
            validator.setLocale(locale);
            validator.setSuffix(QStringLiteral(" %"));

            QString expected = number;
            QString text = number + QStringLiteral(" %");
            int cursor = 0;
            const QValidator::State verdict = base.validate(expected, cursor);
            QCOMPARE(validator.validate(text, cursor), verdict);
            QCOMPARE(text, QString(number + QStringLiteral(" %")));
        }
    }
}

void TestSuffixDoubleValidator::exponentIsNoPartOfTheSuffixAndRefused()
{
    SuffixDoubleValidator validator(0, 10000, 2);
    validator.setSuffix(QStringLiteral("%"));
    QString text = QStringLiteral("1e3%");
    int cursor = 0;
    QCOMPARE(validator.validate(text, cursor), QValidator::Invalid);
    QCOMPARE(text, QStringLiteral("1e3%"));
}

void TestSuffixDoubleValidator::suffixAloneBecomesEmptyAndIsAcceptable_data()
{
    QTest::addColumn<QString>("input");
    QTest::newRow("the suffix") << QStringLiteral(" mm");
    QTest::newRow("in upper case") << QStringLiteral("MM");
    QTest::newRow("a part of it") << QStringLiteral("m");
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("nothing") << QString();
}

void TestSuffixDoubleValidator::suffixAloneBecomesEmptyAndIsAcceptable()
{
    QFETCH(QString, input);
    // A range without 0: that the empty text is no number in it must not matter.
    SuffixDoubleValidator validator(10, 100, 2);
    validator.setSuffix(QStringLiteral(" mm"));
    int cursor = 0;
    QCOMPARE(validator.validate(input, cursor), QValidator::Acceptable);
    QCOMPARE(input, QString());
}

void TestSuffixDoubleValidator::withoutSuffixOnlyBlankInputDiffersFromTheBase()
{
    const SuffixDoubleValidator validator(0, 100, 2);
    QDoubleValidator base(0, 100, 2);
    base.setNotation(QDoubleValidator::StandardNotation);
    for (const char* input : { "12.5", "200", "-1", "1x", "x", "1e1" }) {
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
    QString text = QStringLiteral("  12.5 ");
    int cursor = 0;
    QCOMPARE(validator.validate(text, cursor), QValidator::Acceptable);
    QCOMPARE(text, QStringLiteral("12.5"));
}

void TestSuffixDoubleValidator::neverTouchesTheCursor()
{
    SuffixDoubleValidator validator(0, 100, 2);
    validator.setSuffix(QStringLiteral(" mm"));
    for (const char* input : { "mmm1.5", "1.5 mm", "1.5", "x", "mm" }) {
        QString text = QString::fromLatin1(input);
        int cursor = Cursor;
        validator.validate(text, cursor);
        QCOMPARE(cursor, Cursor);
    }
}

void TestSuffixDoubleValidator::callsTheOverriddenFixupWhateverTheVerdict_data()
{
    QTest::addColumn<QString>("input");
    QTest::newRow("acceptable") << QStringLiteral("12.5");
    QTest::newRow("intermediate") << QStringLiteral("200");
    QTest::newRow("invalid") << QStringLiteral("x");
}

void TestSuffixDoubleValidator::callsTheOverriddenFixupWhateverTheVerdict()
{
    class Marking : public SuffixDoubleValidator
    {
    public:
        using SuffixDoubleValidator::SuffixDoubleValidator;
        void fixup(QString& input) const override { input += QStringLiteral("!"); }
    };

    QFETCH(const QString, input);
    const Marking validator(0, 100, 2);
    QString text = input;
    int cursor = 0;
    validator.validate(text, cursor);
    QCOMPARE(text, QString(input + QStringLiteral("!")));
}

void TestSuffixDoubleValidator::fixupOnlyAppends_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("input");

    // What QDoubleValidator's own would write as "1.23E+04", "12,345.5" or "12.345,5".
    QTest::newRow("point") << QLocale::c() << QStringLiteral("12345.50");
    QTest::newRow("point and groups") << american() << QStringLiteral("12345.50");
    QTest::newRow("comma and groups") << german() << QStringLiteral("12345,50");
    QTest::newRow("zeros") << QLocale::c() << QStringLiteral("007.10");
    QTest::newRow("no number") << QLocale::c() << QStringLiteral("x");
    QTest::newRow("nothing") << QLocale::c() << QString();
}

void TestSuffixDoubleValidator::fixupOnlyAppends()
{
    QFETCH(const QLocale, locale);
    QFETCH(const QString, input);
    SuffixDoubleValidator validator(0, 1e6, 2);
    validator.setLocale(locale);
    validator.setSuffix(QStringLiteral(" mm"));
    QString text = input;
    validator.fixup(text);
    QCOMPARE(text, QString(input + QStringLiteral(" mm")));
}

void TestSuffixDoubleValidator::lineEditTakesADecimalComma()
{
    OxLineEdit field;
    auto* validator = new SuffixDoubleValidator(0, 1000, 2, &field);
    validator->setLocale(german());
    validator->setSuffix(QStringLiteral(" mm"));
    field.setValidator(validator);

    QTest::keyClicks(&field, QStringLiteral("12,505"));
    QCOMPARE(field.text(), QStringLiteral("12,50 mm"));
    QCOMPARE(field.cursorPosition(), 5);
    QVERIFY(field.hasAcceptableInput());
}

void TestSuffixDoubleValidator::lineEditCanBeCleared()
{
    OxLineEdit field(QStringLiteral("5 mm"));
    auto* validator = new SuffixDoubleValidator(1, 1000, 2, &field);
    validator->setSuffix(QStringLiteral(" mm"));
    field.setValidator(validator);

    field.setCursorPosition(1);
    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), QString());
    QVERIFY(field.hasAcceptableInput());
}

UW_TEST_MAIN(TestSuffixDoubleValidator)

#include "tst_suffixdoublevalidator.moc"
