// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtranslation.h"

#include "support/test.h"
#include "support/translationrecorder.h"
#include "support/visibletexts.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QPushButton>
#include <QTranslator>

namespace {

/// What install() said before there was an application object.
bool s_installedTooEarly = true;

bool install(const char* language)
{
    return OxTranslation::install(QLocale(QLatin1String(language)));
}

QString cancel()
{
    return QCoreApplication::translate("DatabaseSaveWidget", "Cancel",
                                       "Cancel button for saving to a database.");
}

int translators()
{
    return int(QCoreApplication::instance()->findChildren<QTranslator*>().size());
}

/// Counts the changes that it hears of.
class Listener : public QWidget
{
public:
    int languages = 0;
    int directions = 0;

protected:
    void changeEvent(QEvent* event) override
    {
        languages += event->type() == QEvent::LanguageChange ? 1 : 0;
        directions += event->type() == QEvent::LayoutDirectionChange ? 1 : 0;
        QWidget::changeEvent(event);
    }
};

} // namespace

class TestOxTranslation : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void speaksEachLanguage_data();
    void speaksEachLanguage();
    void beforeTheApplicationThereIsNothingToTranslate();
    void englishIsWhatTheTextsAreWrittenIn();
    void anUnknownLanguageIsEnglishAndFalse();
    void theLocaleCountsWithoutItsCountry();
    void theDefaultIsTheDefaultLocale();
    void anotherLanguageReplacesTheFormer();
    void aThousandChangesLeaveOneLanguage();
    void theSameLanguageAgainTellsNobody();
    void theStandardButtonsSpeakWithoutQtsFiles();
    void qtsOwnTextsSpeakWhereItsFilesAre();
    void arabicRunsFromRightToLeft();
    void arabicTurnsTheLayoutOnce();
    void arabicNeedsNoFilesOfQt();
    void aDirectionOfTheApplicationStays();
    void aTranslatorOfTheApplicationThatComesLaterWins();
    void windowsHearOfItWhenTheEventLoopRuns();
};

void TestOxTranslation::cleanup()
{
    QLocale::setDefault(QLocale::c());
    QVERIFY(install("en"));
    settleLanguageChange();
    Test::cleanup();
}

void TestOxTranslation::speaksEachLanguage_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("ar") << QStringLiteral("إلغاء");
    QTest::newRow("de") << QStringLiteral("Abbrechen");
    QTest::newRow("es") << QStringLiteral("Cancelar");
    QTest::newRow("fr") << QStringLiteral("Annuler");
    QTest::newRow("ja") << QStringLiteral("キャンセル");
}

void TestOxTranslation::speaksEachLanguage()
{
    QFETCH(QString, text);
    QCOMPARE(cancel(), QStringLiteral("Cancel"));
    QVERIFY(install(QTest::currentDataTag()));
    QCOMPARE(cancel(), text); // at once, without the event loop
}

void TestOxTranslation::beforeTheApplicationThereIsNothingToTranslate()
{
    QVERIFY(!s_installedTooEarly);
}

void TestOxTranslation::englishIsWhatTheTextsAreWrittenIn()
{
    for (const char* english : { "en", "en_GB", "C" }) {
        QVERIFY(install("de"));
        QVERIFY2(install(english), english);
        QCOMPARE(cancel(), QStringLiteral("Cancel"));
        QCOMPARE(translators(), 0);
    }
}

void TestOxTranslation::anUnknownLanguageIsEnglishAndFalse()
{
    QVERIFY(install("de"));
    QVERIFY(!install("pl"));
    QCOMPARE(cancel(), QStringLiteral("Cancel"));
    QCOMPARE(translators(), 0);
}

void TestOxTranslation::theLocaleCountsWithoutItsCountry()
{
    QVERIFY(install("de_AT"));
    QCOMPARE(cancel(), QStringLiteral("Abbrechen"));
    QVERIFY(install("fr_CA"));
    QCOMPARE(cancel(), QStringLiteral("Annuler"));
    QVERIFY(install("ar_DZ"));
    QCOMPARE(cancel(), QStringLiteral("إلغاء"));
}

void TestOxTranslation::theDefaultIsTheDefaultLocale()
{
    QLocale::setDefault(QLocale(QLocale::Spanish));
    QVERIFY(OxTranslation::install());
    QCOMPARE(cancel(), QStringLiteral("Cancelar"));
    QCOMPARE(QLocale().language(), QLocale::Spanish); // and stays what it is
}

void TestOxTranslation::anotherLanguageReplacesTheFormer()
{
    QVERIFY(install("de"));
    const int one = translators();
    QVERIFY(one >= 1 && one <= 2);
    for (const char* language : { "fr", "ar", "ja", "es", "de" }) {
        QVERIFY(install(language));
        QCOMPARE(translators(), one);
    }
    QCOMPARE(cancel(), QStringLiteral("Abbrechen"));
}

void TestOxTranslation::aThousandChangesLeaveOneLanguage()
{
    QVERIFY(install("de"));
    const int one = translators();
    settleLanguageChange();
    const Listener window;
    for (int times = 0; times < 500; ++times) {
        QVERIFY(install("ar"));
        QVERIFY(install("de"));
    }
    QCOMPARE(translators(), one);
    settleLanguageChange();
    QCOMPARE(window.languages, 1);
    QCOMPARE(cancel(), QStringLiteral("Abbrechen"));
    QVERIFY(install("en"));
    QCOMPARE(cancel(), QStringLiteral("Cancel"));
}

void TestOxTranslation::theSameLanguageAgainTellsNobody()
{
    QVERIFY(install("de"));
    settleLanguageChange();
    const Listener window;
    QVERIFY(install("de"));
    QVERIFY(install("de_CH"));
    settleLanguageChange();
    QCOMPARE(window.languages, 0);
    QVERIFY(install("fr"));
    settleLanguageChange();
    QCOMPARE(window.languages, 1);
}

void TestOxTranslation::theStandardButtonsSpeakWithoutQtsFiles()
{
    QTranslator alone;
    QVERIFY(alone.load(QStringLiteral(":/UtilityWidgets/translations/utilitywidgets_de.qm")));
    for (const char* text : { "OK", "Save", "Save All", "Open", "&Yes", "Yes to &All", "&No",
                              "N&o to All", "Abort", "Retry", "Ignore", "Close", "Cancel",
                              "Discard", "Help", "Apply", "Reset", "Restore Defaults" }) {
        QVERIFY2(!alone.translate("QPlatformTheme", text).isEmpty(), text);
    }
}

void TestOxTranslation::qtsOwnTextsSpeakWhereItsFilesAre()
{
    const auto copy = [] {
        return QCoreApplication::translate("QWidgetTextControl", "&Copy");
    };
    QVERIFY(install("de"));
    const QString german = copy();
    QVERIFY(install("fr"));
    const QString french = copy();
    const QString file =
        QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_de.qm");
    if (QFile::exists(file)) {
        QCOMPARE(german, QStringLiteral("&Kopieren"));
        QVERIFY(french != german);
    } else {
        QCOMPARE(german, QStringLiteral("&Copy"));
    }
    QVERIFY(install("en"));
    QCOMPARE(copy(), QStringLiteral("&Copy"));
}

void TestOxTranslation::arabicRunsFromRightToLeft()
{
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    const QWidget window;
    QVERIFY(install("ar"));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QVERIFY(window.isRightToLeft());
    QVERIFY(install("de"));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    QVERIFY(install("ar"));
    QVERIFY(install("en"));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void TestOxTranslation::arabicTurnsTheLayoutOnce()
{
    const Listener window;
    QVERIFY(install("ar"));
    QCOMPARE(window.directions, 1);
    QVERIFY(install("ar_EG"));
    QCOMPARE(window.directions, 1);
    QVERIFY(install("de"));
    QCOMPARE(window.directions, 2);
}

void TestOxTranslation::arabicNeedsNoFilesOfQt()
{
    QTranslator alone;
    QVERIFY(alone.load(QStringLiteral(":/UtilityWidgets/translations/utilitywidgets_ar.qm")));
    QCOMPARE(alone.translate("QGuiApplication", "QT_LAYOUT_DIRECTION"), QStringLiteral("RTL"));
    QVERIFY(QCoreApplication::installTranslator(&alone));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QVERIFY(QCoreApplication::removeTranslator(&alone));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void TestOxTranslation::aDirectionOfTheApplicationStays()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(install("ar"));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    QVERIFY(install("en"));
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

void TestOxTranslation::aTranslatorOfTheApplicationThatComesLaterWins()
{
    QVERIFY(install("de"));
    TranslationRecorder own("DatabaseSaveWidget");
    own.setTranslation("Cancel", QStringLiteral("Zurück"));
    QCOMPARE(cancel(), QStringLiteral("Zurück"));
    QCOMPARE(QCoreApplication::translate("DatabaseSaveWidget", "Save As New Record",
                                         "Label to save as a new record into the database."),
             QStringLiteral("Als neuen Datensatz speichern"));
}

void TestOxTranslation::windowsHearOfItWhenTheEventLoopRuns()
{
    Listener window;
    auto* inside = new Listener;
    inside->setParent(&window);
    QVERIFY(install("de"));
    QCOMPARE(inside->languages, 0);
    settleLanguageChange();
    QCOMPARE(window.languages, 1);
    QCOMPARE(inside->languages, 1);
}

int main(int argc, char* argv[])
{
    const ThrowAwayHome home;
    s_installedTooEarly = OxTranslation::install(QLocale(QLocale::German));
    const QApplication application(argc, argv);
    TestOxTranslation test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_oxtranslation.moc"
