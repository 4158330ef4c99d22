// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "databaseselectordialog.h"

#include "containertitlebar.h"
#include "sharedconstants.h"
#include "support/everythingtranslated.h"
#include "support/finger.h"
#include "support/longtranslation.h"
#include "support/modaldialog.h"
#include "support/test.h"
#include "support/translationrecorder.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>

#include <functional>
#include <memory>

namespace {

using Script = std::function<void(DatabaseSelectorDialog*)>;

QString subfolder()
{
    return QStringLiteral("Customers");
}

QString folderPath()
{
    return DatabasesPath + subfolder();
}

void makeFile(const QString& folder, const QString& name)
{
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + QLatin1Char('/') + name);
    QVERIFY(file.open(QFile::WriteOnly));
}

QListWidget* listOf(const DatabaseSelectorDialog& dialog)
{
    return dialog.findChild<QListWidget*>(QStringLiteral("dataListWidget"));
}

QStringList entries(const DatabaseSelectorDialog& dialog)
{
    QStringList texts;
    for (int row = 0; row < listOf(dialog)->count(); ++row) {
        texts.append(listOf(dialog)->item(row)->text());
    }
    return texts;
}

QPushButton* okayButton(const DatabaseSelectorDialog& dialog)
{
    return dialog.findChild<QPushButton*>(QStringLiteral("okayButton"));
}

ContainerTitleBar* titleBarOf(const DatabaseSelectorDialog& dialog)
{
    return dialog.findChild<ContainerTitleBar*>(QStringLiteral("headerBar"));
}

QLabel* dataLabel(const DatabaseSelectorDialog& dialog)
{
    return dialog.findChild<QLabel*>(QStringLiteral("dataLabel"));
}

void tapEntry(DatabaseSelectorDialog* dialog, int row)
{
    QListWidget* list = listOf(*dialog);
    Finger().tap(list->viewport(), list->visualItemRect(list->item(row)).center());
}

int run(DatabaseSelectorDialog* dialog, const Script& script)
{
    return whileModal<DatabaseSelectorDialog>([dialog] { return dialog->exec(); }, script);
}

void tapOk(DatabaseSelectorDialog* dialog)
{
    Finger().tap(okayButton(*dialog));
}

} // namespace

Q_DECLARE_METATYPE(Script)

class TestDatabaseSelectorDialog : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isAFramelessWindowAlsoWithAParent();
    void closingNeitherDeletesItNorQuits();
    void hasTheHousesIconAndTitle();
    void theSheetsAreExact();
    void theTitleIsDatabaseSelector();
    void theLabelNamesTheSubfolder();
    void aSubfoldersNameIsPlainText();
    void theFormsTextsAreTranslated();
    void theTextsHaveTheirComments();
    void theFormIsExact();
    void theEntriesAreFortyPixelsHighAndCanBeChosen();
    void theEntriesAreAsWideAsTheListIsWhenTheyAreAdded();

    void listsDatabasesOfEitherCaseWithoutTheirEnding();
    void listsThemByName();
    void listsFilesOnly();
    void theFirstIsChosenAtFirst();
    void anotherSubfolderIsListedBehindTheFirst();

    void okReturnsThePathInLowerCase_data();
    void okReturnsThePathInLowerCase();
    void okTellsTheNameBeforeItIsStoredAndAccepted();
    void anEmptyOrMissingSubfolderGivesNothing_data();
    void anEmptyOrMissingSubfolderGivesNothing();
    void aMissingSubfolderIsRememberedAllTheSame();
    void okWithoutAChoiceForgetsTheLastOne();
    void everyWayToCancelRejects_data();
    void everyWayToCancelRejects();
    void returnPressesOk();
    void theKeyboardReachesEverything();
    void aDragScrollsTheListAndChoosesNothingElse();

    void theCloseButtonOfTheTitleBarKeepsItsSize();
    void theListHasAName();
    void everyTextFits_data();
    void everyTextFits();
    void isMirroredForLanguagesFromRightToLeft();
};

void TestDatabaseSelectorDialog::init()
{
    Test::init();
    makeFile(folderPath(), QStringLiteral("a.db"));
    makeFile(folderPath(), QStringLiteral("B.DB"));
    makeFile(folderPath(), QStringLiteral("notes.txt"));
}

void TestDatabaseSelectorDialog::cleanup()
{
    QVERIFY(QDir(DatabasesPath).removeRecursively());
    Test::cleanup();
}

void TestDatabaseSelectorDialog::isAFramelessWindowAlsoWithAParent()
{
    QWidget parent;
    const DatabaseSelectorDialog dialog(subfolder(), &parent);
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.windowFlags(), Qt::Window | Qt::FramelessWindowHint);
    QVERIFY(dialog.isWindow());
}

void TestDatabaseSelectorDialog::closingNeitherDeletesItNorQuits()
{
    const DatabaseSelectorDialog dialog(subfolder());
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
}

void TestDatabaseSelectorDialog::hasTheHousesIconAndTitle()
{
    const EverythingTranslated translated;
    const DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Sigilant PRO"));
    QVERIFY(!dialog.windowIcon().pixmap(32).isNull());
    QCOMPARE(dialog.windowIcon().pixmap(32).toImage(),
             QIcon(QStringLiteral(":/Icon/ApplicationIcons/popup.ico")).pixmap(32).toImage());
}

void TestDatabaseSelectorDialog::theSheetsAreExact()
{
    const DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(dialog.styleSheet(),
             QStringLiteral("QPushButton { outline: 0; border: 1px solid #fd7800; "
                            "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                            "stop: 0 #5A5959, stop: 1 #060606); color: white; font: bold 14px; "
                            "border-radius: 6px; }\nQPushButton:pressed { background-color: "
                            "#fd7800; color: white; }"));
    QCOMPARE(dialog.findChild<QFrame*>(QStringLiteral("contentsFrame"))->styleSheet(),
             QStringLiteral("#contentsFrame {background-color: #F2F2F2; \n border: 1px solid "
                            "#fd7800;  border-top: none; }"));
    QCOMPARE(dataLabel(dialog)->styleSheet(), QStringLiteral("font: 14px;"));
}

void TestDatabaseSelectorDialog::theTitleIsDatabaseSelector()
{
    const DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(titleBarOf(dialog)->findChild<QLabel*>()->text(), QStringLiteral("DATABASE SELECTOR"));
}

void TestDatabaseSelectorDialog::theLabelNamesTheSubfolder()
{
    const EverythingTranslated translated;
    const DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(dataLabel(dialog)->text(), QStringLiteral("Customers Databases"));
}

void TestDatabaseSelectorDialog::aSubfoldersNameIsPlainText()
{
    const DatabaseSelectorDialog dialog(QStringLiteral("<b>R&D</b>"));
    QCOMPARE(dataLabel(dialog)->text(), QStringLiteral("<b>R&D</b> Databases"));
    QCOMPARE(dataLabel(dialog)->textFormat(), Qt::PlainText);
    QCOMPARE(dataLabel(dialog)->buddy(), nullptr); // which would take the "&" away
}

void TestDatabaseSelectorDialog::theFormsTextsAreTranslated()
{
    QCOMPARE(okayButton(DatabaseSelectorDialog(subfolder()))->text(), QStringLiteral("OK"));
    const EverythingTranslated translated;
    const DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(okayButton(dialog)->text(), EverythingTranslated::text());
    QCOMPARE(titleBarOf(dialog)->findChild<QLabel*>()->text(), EverythingTranslated::text());
}

void TestDatabaseSelectorDialog::theFormIsExact()
{
    const DatabaseSelectorDialog dialog(subfolder());
    const auto* vertical = qobject_cast<QVBoxLayout*>(dialog.layout());
    QVERIFY(vertical != nullptr);
    QCOMPARE(vertical->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(vertical->spacing(), 0);
    QCOMPARE(vertical->contentsMargins(), QMargins());
    QCOMPARE(vertical->itemAt(0)->widget(), titleBarOf(dialog));
    const auto* frame = qobject_cast<QFrame*>(vertical->itemAt(1)->widget());
    QCOMPARE(frame->objectName(), QStringLiteral("contentsFrame"));

    const auto* grid = qobject_cast<QGridLayout*>(frame->layout());
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout_2"));
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), dataLabel(dialog));
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(grid->itemAtPosition(1, column)->widget(), listOf(dialog));
    }
    QCOMPARE(grid->itemAtPosition(2, 2)->widget(), okayButton(dialog));
    QCOMPARE(okayButton(dialog)->minimumSize(), QSize(85, 35));
}

void TestDatabaseSelectorDialog::theEntriesAreFortyPixelsHighAndCanBeChosen()
{
    const DatabaseSelectorDialog dialog(subfolder());
    const QListWidgetItem* item = listOf(dialog)->item(0);
    QCOMPARE(item->sizeHint().height(), 40);
    QVERIFY(item->sizeHint().width() > 0);
    QCOMPARE(item->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
}

void TestDatabaseSelectorDialog::theEntriesAreAsWideAsTheListIsWhenTheyAreAdded()
{
    DatabaseSelectorDialog dialog(subfolder());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.populateDatabasesList(subfolder());
    const QListWidget* list = listOf(dialog);
    QCOMPARE(list->item(list->count() - 1)->sizeHint(), QSize(list->width(), 40));
}

void TestDatabaseSelectorDialog::listsDatabasesOfEitherCaseWithoutTheirEnding()
{
    const DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(entries(dialog), QStringList({ QStringLiteral("a"), QStringLiteral("B") }));
}

void TestDatabaseSelectorDialog::listsThemByName()
{
    for (const char* name : { "c.db", "D.db", "a2.db", "e.v2.db", ".hidden.db" }) {
        makeFile(folderPath(), QLatin1String(name));
    }
    const DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(entries(dialog).join(QLatin1Char(' ')), QStringLiteral("a a2 B c D e.v2"));
}

void TestDatabaseSelectorDialog::listsFilesOnly()
{
    QVERIFY(QDir().mkpath(folderPath() + QStringLiteral("/folder.db")));
    const DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(entries(dialog).count(), 2);
}

void TestDatabaseSelectorDialog::theFirstIsChosenAtFirst()
{
    const DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(listOf(dialog)->currentRow(), 0);
    QVERIFY(listOf(dialog)->item(0)->isSelected());
}

void TestDatabaseSelectorDialog::anotherSubfolderIsListedBehindTheFirst()
{
    makeFile(DatabasesPath + QStringLiteral("Parts"), QStringLiteral("screws.db"));
    DatabaseSelectorDialog dialog(subfolder());
    listOf(dialog)->setCurrentRow(1);
    dialog.populateDatabasesList(QStringLiteral("Parts"));
    QCOMPARE(entries(dialog).join(QLatin1Char(' ')), QStringLiteral("a B screws"));
    QCOMPARE(listOf(dialog)->currentRow(), 0);
    // The folder is the last one's, whichever is chosen.
    dialog.on_okayButton_clicked();
    QCOMPARE(dialog.getDatabaseName(), DatabasesPath + QStringLiteral("Parts/a.db"));
}

void TestDatabaseSelectorDialog::okReturnsThePathInLowerCase_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("path");

    const QString folder = QStringLiteral("/data/usr/share/data/Halvard/databases/Customers/");
    QTest::newRow("a.db") << 0 << QString(folder + QStringLiteral("a.db"));
    QTest::newRow("B.DB, which is another file") << 1 << QString(folder + QStringLiteral("B.db"));
}

void TestDatabaseSelectorDialog::okReturnsThePathInLowerCase()
{
    QFETCH(int, row);
    DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(dialog.getDatabaseName(), QString());

    const int result = run(&dialog, [row](DatabaseSelectorDialog* shown) {
        tapEntry(shown, row);
        tapOk(shown);
    });

    QCOMPARE(result, int(QDialog::Accepted));
    QTEST(dialog.getDatabaseName(), "path");
}

void TestDatabaseSelectorDialog::okTellsTheNameBeforeItIsStoredAndAccepted()
{
    DatabaseSelectorDialog dialog(subfolder());
    QSignalSpy selected(&dialog, &DatabaseSelectorDialog::databaseSelectedSignal);
    QString stored = QStringLiteral("not asked");
    bool visible = false;
    connect(&dialog, &DatabaseSelectorDialog::databaseSelectedSignal, &dialog, [&] {
        stored = dialog.getDatabaseName();
        visible = dialog.isVisible();
    });

    run(&dialog, [](DatabaseSelectorDialog* shown) {
        tapEntry(shown, 1);
        tapOk(shown);
    });

    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.at(0).at(0).toString(), QStringLiteral("B"));
    QCOMPARE(stored, QString());
    QVERIFY(visible);
}

void TestDatabaseSelectorDialog::anEmptyOrMissingSubfolderGivesNothing_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << QStringLiteral("Empty");
    QTest::newRow("missing") << QStringLiteral("Missing");
}

void TestDatabaseSelectorDialog::anEmptyOrMissingSubfolderGivesNothing()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(DatabasesPath + QStringLiteral("Empty")));
    DatabaseSelectorDialog dialog(name);
    QCOMPARE(entries(dialog), QStringList());
    QSignalSpy selected(&dialog, &DatabaseSelectorDialog::databaseSelectedSignal);

    QCOMPARE(run(&dialog, tapOk), int(QDialog::Accepted));

    QCOMPARE(dialog.getDatabaseName(), QString());
    QCOMPARE(selected.count(), 0);
}

void TestDatabaseSelectorDialog::aMissingSubfolderIsRememberedAllTheSame()
{
    DatabaseSelectorDialog dialog(subfolder());
    dialog.populateDatabasesList(QStringLiteral("Missing"));
    QCOMPARE(entries(dialog).count(), 2);
    dialog.on_okayButton_clicked();
    QCOMPARE(dialog.getDatabaseName(), DatabasesPath + QStringLiteral("Missing/a.db"));
}

void TestDatabaseSelectorDialog::okWithoutAChoiceForgetsTheLastOne()
{
    DatabaseSelectorDialog dialog(subfolder());
    dialog.on_okayButton_clicked();
    QVERIFY(!dialog.getDatabaseName().isEmpty());
    listOf(dialog)->setCurrentItem(nullptr);
    dialog.on_okayButton_clicked();
    QCOMPARE(dialog.getDatabaseName(), QString());
}

void TestDatabaseSelectorDialog::everyWayToCancelRejects_data()
{
    QTest::addColumn<Script>("cancel");

    QTest::newRow("Escape") << Script([](DatabaseSelectorDialog* dialog) {
        QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
    });
    QTest::newRow("close button") << Script([](DatabaseSelectorDialog* dialog) {
        Finger().tap(titleBarOf(*dialog)->findChild<QPushButton*>());
    });
}

void TestDatabaseSelectorDialog::everyWayToCancelRejects()
{
    QFETCH(Script, cancel);
    DatabaseSelectorDialog dialog(subfolder());
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QCOMPARE(run(&dialog, cancel), int(QDialog::Rejected));
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(dialog.getDatabaseName(), QString());
}

void TestDatabaseSelectorDialog::returnPressesOk()
{
    DatabaseSelectorDialog dialog(subfolder());
    QCOMPARE(run(&dialog,
                 [](DatabaseSelectorDialog* shown) {
                     QTest::keyClick(shown->windowHandle(), Qt::Key_Return);
                 }),
             int(QDialog::Accepted));
    QCOMPARE(dialog.getDatabaseName(), folderPath() + QStringLiteral("/a.db"));
}

void TestDatabaseSelectorDialog::theKeyboardReachesEverything()
{
    DatabaseSelectorDialog dialog(subfolder());
    run(&dialog, [](DatabaseSelectorDialog* shown) {
        shown->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(shown));
        QCOMPARE(QApplication::focusWidget(), listOf(*shown));
        QTest::keyClick(shown->windowHandle(), Qt::Key_Down);
        QTest::keyClick(shown->windowHandle(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), okayButton(*shown));
        QTest::keyClick(shown->windowHandle(), Qt::Key_Space);
    });
    QCOMPARE(dialog.getDatabaseName(), folderPath() + QStringLiteral("/B.db"));
}

void TestDatabaseSelectorDialog::aDragScrollsTheListAndChoosesNothingElse()
{
    for (int i = 0; i < 40; ++i) {
        makeFile(folderPath(), QStringLiteral("c%1.db").arg(i, 2, 10, QLatin1Char('0')));
    }
    DatabaseSelectorDialog dialog(subfolder());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QRect before = listOf(dialog)->visualItemRect(listOf(dialog)->item(0));
    Finger finger;
    finger.press(listOf(dialog)->viewport());
    finger.moveBy(QPoint(0, -60));
    finger.release();
    QCOMPARE(listOf(dialog)->visualItemRect(listOf(dialog)->item(0)).top(), before.top() - 60);
    QVERIFY(dialog.isVisible());
}

void TestDatabaseSelectorDialog::theCloseButtonOfTheTitleBarKeepsItsSize()
{
    DatabaseSelectorDialog dialog(subfolder());
    dialog.show();
    QCOMPARE(titleBarOf(dialog)->findChild<QPushButton*>()->size(), QSize(34, 31));
}

void TestDatabaseSelectorDialog::theListHasAName()
{
    QCOMPARE(listOf(DatabaseSelectorDialog(subfolder()))->accessibleName(),
             QStringLiteral("Customers Databases"));
}

void TestDatabaseSelectorDialog::everyTextFits_data()
{
    QTest::addColumn<bool>("longTexts");

    QTest::newRow("as it is") << false;
    QTest::newRow("translations half as long again") << true;
}

void TestDatabaseSelectorDialog::everyTextFits()
{
    QFETCH(bool, longTexts);
    const auto translation = longTexts ? std::make_unique<LongTranslation>() : nullptr;
    DatabaseSelectorDialog dialog(subfolder());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(textsThatDoNotFit(dialog), QString());
}

void TestDatabaseSelectorDialog::isMirroredForLanguagesFromRightToLeft()
{
    DatabaseSelectorDialog dialog(subfolder());
    dialog.setLayoutDirection(Qt::RightToLeft);
    dialog.show();
    QVERIFY(okayButton(dialog)->geometry().center().x() < dialog.width() / 2);
}

void TestDatabaseSelectorDialog::theTextsHaveTheirComments()
{
    const TranslationRecorder recorder("DatabaseSelectorDialog");
    const DatabaseSelectorDialog dialog(subfolder());
    QStringList texts = recorder.texts();
    texts.sort();
    QCOMPARE(texts.join(QLatin1Char('\n')),
             QStringLiteral("DATABASE SELECTOR / \n"
                            "Database / Title that shows multiple databases.\n"
                            "OK / Button to confirm selecting a database."));
}

UW_TEST_MAIN(TestDatabaseSelectorDialog)

#include "tst_databaseselectordialog.moc"
