// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "databasesavewidget.h"

#include "applicationfont.h"
#include "clickablelabel.h"
#include "containertitlebar.h"
#include "support/everythingtranslated.h"
#include "support/finger.h"
#include "support/longtranslation.h"
#include "support/modaldialog.h"
#include "support/test.h"
#include "support/translationrecorder.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <functional>
#include <memory>

namespace {

using Script = std::function<void(DatabaseSaveWidget*)>;

const QString PushButtonSheet = QStringLiteral(
    "QPushButton { border: 1px solid #fd7800; color: white; font: bold; \nbackground-color: "
    "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #5a5959, stop: 1 #060606);\n"
    "border-radius: 6px; outline: 0;\nmin-height: 35px; }\nQPushButton:pressed { "
    "background-color: #fd7800; color: white; }\nQPushButton { min-width: 80px; }");

ContainerTitleBar* titleBarOf(const DatabaseSaveWidget& dialog)
{
    return dialog.findChild<ContainerTitleBar*>();
}

QLayout* innerLayout(const DatabaseSaveWidget& dialog)
{
    return dialog.layout()->itemAt(1)->layout();
}

QGridLayout* gridOf(const DatabaseSaveWidget& dialog)
{
    return qobject_cast<QGridLayout*>(innerLayout(dialog)->itemAt(0)->layout());
}

template <typename Widget> Widget* inGrid(const DatabaseSaveWidget& dialog, int row, int column)
{
    return qobject_cast<Widget*>(gridOf(dialog)->itemAtPosition(row, column)->widget());
}

QRadioButton* saveRadio(const DatabaseSaveWidget& dialog)
{
    return inGrid<QRadioButton>(dialog, 0, 0);
}

QRadioButton* saveAsRadio(const DatabaseSaveWidget& dialog)
{
    return inGrid<QRadioButton>(dialog, 3, 0);
}

ClickableLabel* label(const DatabaseSaveWidget& dialog, int row)
{
    return inGrid<ClickableLabel>(dialog, row, 1);
}

QPushButton* button(const DatabaseSaveWidget& dialog, const char* text)
{
    const auto buttons = dialog.findChildren<QPushButton*>();
    for (QPushButton* candidate : buttons) {
        if (candidate->text() == QLatin1String(text)) {
            return candidate;
        }
    }
    return nullptr;
}

void tapOk(DatabaseSaveWidget* dialog)
{
    Finger().tap(button(*dialog, "OK"));
}

int ask(const Script& script)
{
    return whileModal<DatabaseSaveWidget>([] { return DatabaseSaveWidget::execWidget(); }, script);
}

} // namespace

Q_DECLARE_METATYPE(Script)

class TestDatabaseSaveWidget : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedDatabaseSaveWidget();
    void isAFramelessWindow();
    void theFlagsGivenAreReplaced();
    void closingNeitherDeletesItNorQuits();
    void hasTheHousesIconAndTitle();
    void theSheetHasPanelRadioButtonsAndPushButtons();
    void theTitleIsSaveToDatabase();
    void theTexts_data();
    void theTexts();
    void theOptionsAreLargeAndBold();
    void allTextsAreTranslated();
    void theTextsHaveTheirComments();
    void theButtonsHaveThePushButtonSheet();
    void theGridIsExact();
    void theLayoutsAroundTheGridAreExact();
    void is380WideAndAtMost242High();
    void saveIsCheckedAtFirst();

    void theResponseFollowsResultAndRadioButtons_data();
    void theResponseFollowsResultAndRadioButtons();
    void acceptedWithoutAnOptionIsCancelled();
    void theSlotsCheckTheirRadioButton();
    void okAtOnceIsOne();
    void aTapOnATextChoosesItsOption_data();
    void aTapOnATextChoosesItsOption();
    void aTapOnARadioButtonChoosesIt();
    void everyWayToCancelReturnsZero_data();
    void everyWayToCancelReturnsZero();
    void cancelledIsZeroAlsoAfterAChoice();
    void returnPressesOk();
    void theKeyboardReachesEverything();
    void theDialogIsModalAndHasNoParent();

    void theRadioButtonsAre24Pixels();
    void theRadioButtonsHaveNames();
    void theCloseButtonOfTheTitleBarKeepsItsSize();
    void everyTextFits_data();
    void everyTextFits();
    void isMirroredForLanguagesFromRightToLeft();
};

void TestDatabaseSaveWidget::isNamedDatabaseSaveWidget()
{
    QCOMPARE(DatabaseSaveWidget().objectName(), QStringLiteral("DatabaseSaveWidget"));
}

void TestDatabaseSaveWidget::isAFramelessWindow()
{
    QCOMPARE(DatabaseSaveWidget().windowFlags(), Qt::FramelessWindowHint | Qt::Window);
}

void TestDatabaseSaveWidget::theFlagsGivenAreReplaced()
{
    const DatabaseSaveWidget dialog(nullptr, Qt::Dialog | Qt::WindowTitleHint);
    QCOMPARE(dialog.windowFlags(), Qt::FramelessWindowHint | Qt::Window);
    QWidget parent;
    const DatabaseSaveWidget inside(&parent, Qt::Dialog);
    QCOMPARE(inside.parentWidget(), &parent);
    QCOMPARE(inside.windowFlags(), Qt::FramelessWindowHint);
}

void TestDatabaseSaveWidget::closingNeitherDeletesItNorQuits()
{
    const DatabaseSaveWidget dialog;
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
}

void TestDatabaseSaveWidget::hasTheHousesIconAndTitle()
{
    const EverythingTranslated translated;
    const DatabaseSaveWidget dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Sigilant PRO"));
    QVERIFY(!dialog.windowIcon().pixmap(32).isNull());
    QCOMPARE(dialog.windowIcon().pixmap(32).toImage(),
             QIcon(QStringLiteral(":/Icon/ApplicationIcons/popup.ico")).pixmap(32).toImage());
}

void TestDatabaseSaveWidget::theSheetHasPanelRadioButtonsAndPushButtons()
{
    const QString sheet = DatabaseSaveWidget().styleSheet();
    QVERIFY(sheet.startsWith(QStringLiteral(
        "#DatabaseSaveWidget { background-color: #f2f2f2; border: 1px solid #fd7800; } "
        "QRadioButton::indicator { width: 24px; height: 24px; }")));
    QVERIFY(sheet.endsWith(PushButtonSheet));
    for (const char* image : { "checked", "unchecked", "checked-disabled", "unchecked-disabled" }) {
        const QString path = QStringLiteral(":/module_icons/ModuleIcons/radio-button_%1.png")
                                 .arg(QLatin1String(image));
        QVERIFY(sheet.contains(QStringLiteral("url(%1)").arg(path)));
        QVERIFY(!QPixmap(path).isNull());
    }
}

void TestDatabaseSaveWidget::theTitleIsSaveToDatabase()
{
    const DatabaseSaveWidget dialog;
    QCOMPARE(titleBarOf(dialog)->findChild<QLabel*>()->text(), QStringLiteral("SAVE TO DATABASE"));
}

void TestDatabaseSaveWidget::theTexts_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");

    QTest::newRow("save") << 0 << QStringLiteral("Save Current Record");
    QTest::newRow("save info") << 1 << QStringLiteral("Overwrites current record in database");
    QTest::newRow("save as") << 3 << QStringLiteral("Save As New Record");
    QTest::newRow("save as info") << 4 << QStringLiteral("Saves as new record in database");
}

void TestDatabaseSaveWidget::theTexts()
{
    QFETCH(int, row);
    const DatabaseSaveWidget dialog;
    QTEST(label(dialog, row)->text(), "text");
}

void TestDatabaseSaveWidget::theOptionsAreLargeAndBold()
{
    const DatabaseSaveWidget dialog;
    QCOMPARE(label(dialog, 0)->font(), ApplicationFont::getWidgetFontLarge(true));
    QCOMPARE(label(dialog, 3)->font(), ApplicationFont::getWidgetFontLarge(true));
}

void TestDatabaseSaveWidget::allTextsAreTranslated()
{
    const EverythingTranslated translated;
    const DatabaseSaveWidget dialog;
    const auto labels = dialog.findChildren<QLabel*>();
    QCOMPARE(labels.count(), 5);
    for (const QLabel* text : labels) {
        QCOMPARE(text->text(), EverythingTranslated::text());
    }
    const QLayout* buttons = innerLayout(dialog)->itemAt(2)->layout();
    for (const int index : { 0, 1 }) {
        QCOMPARE(qobject_cast<QPushButton*>(buttons->itemAt(index)->widget())->text(),
                 EverythingTranslated::text());
    }
}

void TestDatabaseSaveWidget::theButtonsHaveThePushButtonSheet()
{
    const DatabaseSaveWidget dialog;
    for (const char* text : { "OK", "Cancel" }) {
        QVERIFY(button(dialog, text) != nullptr);
        QCOMPARE(button(dialog, text)->styleSheet(), PushButtonSheet);
    }
}

void TestDatabaseSaveWidget::theGridIsExact()
{
    const DatabaseSaveWidget dialog;
    const QGridLayout* grid = gridOf(dialog);
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->count(), 7);
    QCOMPARE(grid->rowCount(), 5);
    QVERIFY(saveRadio(dialog) != nullptr);
    QVERIFY(saveAsRadio(dialog) != nullptr);
    QVERIFY(grid->itemAtPosition(2, 0)->spacerItem() != nullptr);
    QCOMPARE(grid->itemAtPosition(1, 0), nullptr);
    QCOMPARE(grid->itemAtPosition(4, 0), nullptr);
}

void TestDatabaseSaveWidget::theLayoutsAroundTheGridAreExact()
{
    const DatabaseSaveWidget dialog;
    const auto* outer = qobject_cast<QVBoxLayout*>(dialog.layout());
    QVERIFY(outer != nullptr);
    QCOMPARE(outer->count(), 2);
    QCOMPARE(outer->spacing(), 30);
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(outer->itemAt(0)->widget(), titleBarOf(dialog));

    const auto* inner = qobject_cast<QVBoxLayout*>(innerLayout(dialog));
    QVERIFY(inner != nullptr);
    QCOMPARE(inner->count(), 3);
    QCOMPARE(inner->spacing(), 7);
    QCOMPARE(inner->itemAt(1)->spacerItem()->sizeHint().height(), 30);
    const auto* buttons = qobject_cast<QHBoxLayout*>(inner->itemAt(2)->layout());
    QVERIFY(buttons != nullptr);
    QCOMPARE(buttons->count(), 2);
    QCOMPARE(buttons->itemAt(0)->widget(), button(dialog, "OK"));
    QCOMPARE(buttons->itemAt(1)->widget(), button(dialog, "Cancel"));
}

void TestDatabaseSaveWidget::is380WideAndAtMost242High()
{
    DatabaseSaveWidget dialog;
    QCOMPARE(dialog.minimumWidth(), 380);
    QCOMPARE(dialog.maximumWidth(), 380);
    QCOMPARE(dialog.maximumHeight(), 242);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.width(), 380);
    QVERIFY2(dialog.height() <= 242, qPrintable(QString::number(dialog.height())));
}

void TestDatabaseSaveWidget::saveIsCheckedAtFirst()
{
    const DatabaseSaveWidget dialog;
    QVERIFY(saveRadio(dialog)->isChecked());
    QVERIFY(!saveAsRadio(dialog)->isChecked());
}

void TestDatabaseSaveWidget::theResponseFollowsResultAndRadioButtons_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("saveAs");
    QTest::addColumn<int>("response");

    QTest::newRow("accepted, save") << 1 << false << 1;
    QTest::newRow("accepted, save as") << 1 << true << 2;
    QTest::newRow("rejected, save") << 0 << false << 0;
    QTest::newRow("rejected, save as") << 0 << true << 0;
    QTest::newRow("another result") << 2 << true << 0;
}

void TestDatabaseSaveWidget::theResponseFollowsResultAndRadioButtons()
{
    QFETCH(int, result);
    QFETCH(bool, saveAs);
    DatabaseSaveWidget dialog;
    QCOMPARE(dialog.getResponse(), 0);
    if (saveAs) {
        dialog.checkSaveAsRadio();
    }
    dialog.done(result);
    QTEST(dialog.getResponse(), "response");
}

void TestDatabaseSaveWidget::acceptedWithoutAnOptionIsCancelled()
{
    DatabaseSaveWidget dialog;
    saveRadio(dialog)->setAutoExclusive(false);
    saveRadio(dialog)->setChecked(false);
    dialog.accept();
    QCOMPARE(dialog.getResponse(), 0);
}

void TestDatabaseSaveWidget::theSlotsCheckTheirRadioButton()
{
    DatabaseSaveWidget dialog;
    QVERIFY(QMetaObject::invokeMethod(&dialog, "checkSaveAsRadio"));
    QVERIFY(saveAsRadio(dialog)->isChecked());
    QVERIFY(!saveRadio(dialog)->isChecked());
    QVERIFY(QMetaObject::invokeMethod(&dialog, "checkSaveRadio"));
    QVERIFY(saveRadio(dialog)->isChecked());
    QVERIFY(!saveAsRadio(dialog)->isChecked());
}

void TestDatabaseSaveWidget::okAtOnceIsOne()
{
    QCOMPARE(ask(tapOk), 1);
}

void TestDatabaseSaveWidget::aTapOnATextChoosesItsOption_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("other");
    QTest::addColumn<int>("response");

    QTest::newRow("save") << 0 << 3 << 1;
    QTest::newRow("save info") << 1 << 3 << 1;
    QTest::newRow("save as") << 3 << 0 << 2;
    QTest::newRow("save as info") << 4 << 0 << 2;
}

void TestDatabaseSaveWidget::aTapOnATextChoosesItsOption()
{
    QFETCH(int, row);
    QFETCH(int, other);
    QFETCH(int, response);
    QCOMPARE(ask([row](DatabaseSaveWidget* dialog) {
                 Finger().tap(label(*dialog, row));
                 tapOk(dialog);
             }),
             response);
    // Also back from the other option.
    QCOMPARE(ask([row, other](DatabaseSaveWidget* dialog) {
                 Finger().tap(label(*dialog, other));
                 Finger().tap(label(*dialog, row));
                 tapOk(dialog);
             }),
             response);
}

void TestDatabaseSaveWidget::aTapOnARadioButtonChoosesIt()
{
    QCOMPARE(ask([](DatabaseSaveWidget* dialog) {
                 Finger().tap(saveAsRadio(*dialog));
                 tapOk(dialog);
             }),
             2);
}

void TestDatabaseSaveWidget::everyWayToCancelReturnsZero_data()
{
    QTest::addColumn<Script>("cancel");

    QTest::newRow("Cancel") << Script(
        [](DatabaseSaveWidget* dialog) { Finger().tap(button(*dialog, "Cancel")); });
    QTest::newRow("Escape") << Script([](DatabaseSaveWidget* dialog) {
        QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
    });
    QTest::newRow("close button") << Script([](DatabaseSaveWidget* dialog) {
        Finger().tap(titleBarOf(*dialog)->findChild<QPushButton*>());
    });
    QTest::newRow("the window system")
        << Script([](DatabaseSaveWidget* dialog) { dialog->close(); });
}

void TestDatabaseSaveWidget::everyWayToCancelReturnsZero()
{
    QFETCH(Script, cancel);
    QCOMPARE(ask(cancel), 0);
}

void TestDatabaseSaveWidget::cancelledIsZeroAlsoAfterAChoice()
{
    QCOMPARE(ask([](DatabaseSaveWidget* dialog) {
                 Finger().tap(label(*dialog, 4));
                 Finger().tap(button(*dialog, "Cancel"));
             }),
             0);
}

void TestDatabaseSaveWidget::returnPressesOk()
{
    QCOMPARE(ask([](DatabaseSaveWidget* dialog) {
                 QTest::keyClick(dialog->windowHandle(), Qt::Key_Return);
             }),
             1);
}

void TestDatabaseSaveWidget::theKeyboardReachesEverything()
{
    QCOMPARE(ask([](DatabaseSaveWidget* dialog) {
                 dialog->activateWindow();
                 QVERIFY(QTest::qWaitForWindowActive(dialog));
                 QCOMPARE(QApplication::focusWidget(), saveRadio(*dialog));
                 QTest::keyClick(dialog->windowHandle(), Qt::Key_Down);
                 QVERIFY(saveAsRadio(*dialog)->isChecked());
                 QTest::keyClick(dialog->windowHandle(), Qt::Key_Tab);
                 QCOMPARE(QApplication::focusWidget(), button(*dialog, "OK"));
                 QTest::keyClick(dialog->windowHandle(), Qt::Key_Tab);
                 QCOMPARE(QApplication::focusWidget(), button(*dialog, "Cancel"));
                 QTest::keyClick(dialog->windowHandle(), Qt::Key_Backtab);
                 QTest::keyClick(dialog->windowHandle(), Qt::Key_Space);
             }),
             2);
}

void TestDatabaseSaveWidget::theDialogIsModalAndHasNoParent()
{
    bool modal = false;
    const QWidget* parent = nullptr;
    ask([&](DatabaseSaveWidget* dialog) {
        modal = dialog->isModal();
        parent = dialog->parentWidget();
        dialog->reject();
    });
    QVERIFY(modal);
    QCOMPARE(parent, nullptr);
}

void TestDatabaseSaveWidget::theRadioButtonsAre24Pixels()
{
    DatabaseSaveWidget dialog;
    dialog.show();
    QVERIFY(saveRadio(dialog)->width() >= 24);
    QVERIFY(saveRadio(dialog)->height() >= 24);
    const QIcon checked(QStringLiteral(":/module_icons/ModuleIcons/radio-button_checked.png"));
    const QImage shown = saveRadio(dialog)->grab().toImage();
    const QImage other = saveAsRadio(dialog)->grab().toImage();
    QVERIFY(shown.copy(0, 0, 24, 24) != other.copy(0, 0, 24, 24));
    saveAsRadio(dialog)->setChecked(true);
    QCOMPARE(saveRadio(dialog)->grab().toImage().copy(0, 0, 24, 24), other.copy(0, 0, 24, 24));
}

void TestDatabaseSaveWidget::theRadioButtonsHaveNames()
{
    const DatabaseSaveWidget dialog;
    QCOMPARE(saveRadio(dialog)->accessibleName(), QStringLiteral("Save Current Record"));
    QCOMPARE(saveAsRadio(dialog)->accessibleName(), QStringLiteral("Save As New Record"));
}

void TestDatabaseSaveWidget::theCloseButtonOfTheTitleBarKeepsItsSize()
{
    DatabaseSaveWidget dialog;
    dialog.show();
    QCOMPARE(titleBarOf(dialog)->findChild<QPushButton*>()->size(), QSize(34, 31));
}

void TestDatabaseSaveWidget::everyTextFits_data()
{
    QTest::addColumn<bool>("longTexts");

    QTest::newRow("as it is") << false;
    QTest::newRow("translations half as long again") << true;
}

void TestDatabaseSaveWidget::everyTextFits()
{
    QFETCH(bool, longTexts);
    const auto translation = longTexts ? std::make_unique<LongTranslation>() : nullptr;
    DatabaseSaveWidget dialog;
    dialog.setFont(ApplicationFont::getWidgetFont());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.height() <= 242);
    QCOMPARE(textsThatDoNotFit(dialog), QString());
    QVERIFY(label(dialog, 0)->geometry().bottom() < label(dialog, 1)->geometry().top());
    QVERIFY(label(dialog, 4)->geometry().bottom() < innerLayout(dialog)->itemAt(2)->geometry().y());
}

void TestDatabaseSaveWidget::isMirroredForLanguagesFromRightToLeft()
{
    DatabaseSaveWidget dialog;
    dialog.setLayoutDirection(Qt::RightToLeft);
    dialog.show();
    QVERIFY(saveRadio(dialog)->x() > label(dialog, 0)->x());
    QVERIFY(button(dialog, "OK")->x() > button(dialog, "Cancel")->x());
}

void TestDatabaseSaveWidget::theTextsHaveTheirComments()
{
    const TranslationRecorder recorder("DatabaseSaveWidget");
    const DatabaseSaveWidget dialog;
    QStringList texts = recorder.texts();
    texts.sort();
    QCOMPARE(
        texts.join(QLatin1Char('\n')),
        QStringLiteral("Cancel / Cancel button for saving to a database.\n"
                       "OK / Ok button for saving to a database.\n"
                       "Overwrites current record in database / Save info label\n"
                       "SAVE TO DATABASE / Header label to save record to the database.\n"
                       "Save As New Record / Label to save as a new record into the database.\n"
                       "Save Current Record / Label to save current record into the database.\n"
                       "Saves as new record in database / Save As info label"));
}

UW_TEST_MAIN(TestDatabaseSaveWidget)

#include "tst_databasesavewidget.moc"
