// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxinputdialog.h"

#include "oxdoublespinbox.h"
#include "oxspinbox.h"
#include "oxtitlebar.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace {

using Script = std::function<void(OxInputDialog*)>;

QString title()
{
    return QStringLiteral("Print");
}

QString label()
{
    return QStringLiteral("Copies");
}

QPushButton* standardButton(OxInputDialog* dialog, QDialogButtonBox::StandardButton which)
{
    return dialog->findChild<QDialogButtonBox*>()->button(which);
}

void tapOk(OxInputDialog* dialog)
{
    Finger().tap(standardButton(dialog, QDialogButtonBox::Ok));
}

void tapCancel(OxInputDialog* dialog)
{
    Finger().tap(standardButton(dialog, QDialogButtonBox::Cancel));
}

void tapCloseButton(OxInputDialog* dialog)
{
    Finger().tap(dialog->findChild<OxTitleBar*>()->findChild<QPushButton*>());
}

void pressKey(OxInputDialog* dialog, Qt::Key key)
{
    QTest::keyClick(dialog->windowHandle(), key);
}

void typeText(OxInputDialog* dialog, const QString& text)
{
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, character,
                            Qt::NoModifier);
    }
    Q_UNUSED(dialog)
}

int askInt(bool* cancelled, const Script& script)
{
    return whileModal<OxInputDialog>(
        [cancelled] {
            return OxInputDialog::getInt(nullptr, title(), label(), 5, 0, 10, cancelled,
                                         Qt::FramelessWindowHint);
        },
        script);
}

double askDouble(double value, double minimum, double maximum, bool* cancelled,
                 const Script& script)
{
    return whileModal<OxInputDialog>(
        [=] {
            return OxInputDialog::getDouble(nullptr, title(), label(), value, minimum, maximum,
                                            cancelled, Qt::FramelessWindowHint);
        },
        script);
}

QString askText(bool* cancelled, const Script& script,
                const QString& text = QStringLiteral("Layer 1"))
{
    return whileModal<OxInputDialog>(
        [=] {
            return OxInputDialog::getText(nullptr, title(), label(), text, cancelled,
                                          Qt::FramelessWindowHint);
        },
        script);
}

const QString MessageSheet = QStringLiteral(
    "QWidget#MessageBoxWidget { background-color: #f2f2f2; border: 1px solid #fd7800; } ");

} // namespace

Q_DECLARE_METATYPE(Script)

class TestOxInputDialog : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedOxInputWidget();
    void closingNeitherDeletesItNorQuits();
    void hasTheHousesIconAndTitle();
    void theTitleBarShowsTheInformationIconAndTheTitle();
    void theTitleBarHasTheBarStyleAsItsOwnSheet();
    void theLabelHasAMarginOfTwelve();
    void theButtonsAreOkAndCancelInARow();
    void theButtonsLookLikeTheMessageBoxes();
    void theSheetIsTheMessageBoxesAndStylesNothingHere();
    void isEmptyUntilALayoutIsSet();

    void theFieldOfEachLayout_data();
    void theFieldOfEachLayout();
    void theFieldIsNamedByTheLabel_data() { theFieldOfEachLayout_data(); }
    void theFieldIsNamedByTheLabel();
    void theTextFieldIsAPlainLineEdit();
    void theSpinBoxesHaveRangeValueAndNoArrows();
    void theDecimalFieldKeepsTheDefaultDecimals();
    void theLayoutsAreExact();
    void aValueOutsideTheRangeIsClamped();
    void aFieldThatWasNotMadeReadsAsNothing();

    void okWithoutAChangeReturnsTheValueAndNotCancelled();
    void everyWayToCancelReturnsZeroAndCancelled_data();
    void everyWayToCancelReturnsZeroAndCancelled();
    void okOnAnEmptiedTextReturnsAnEmptyTextThatIsNotNull();
    void okOnATextThatWasNullReturnsATextThatIsNotNull();
    void aCancelledTextIsNull();
    void aCancelledDecimalIsZeroEvenOutsideTheRange();
    void theFlagMayBeNull();
    void typingStartsInTheFieldAndReplacesWhatIsThere_data();
    void typingStartsInTheFieldAndReplacesWhatIsThere();
    void enterPressesOkAndTakesWhatWasTyped();
    void theDialogIsModalAndHasTheGivenFlags();
    void closeRequestsOfTheWindowSystemCancel();
    void isPaintedWithTheDefaultBackground();
};

void TestOxInputDialog::isNamedOxInputWidget()
{
    QCOMPARE(OxInputDialog().objectName(), QStringLiteral("OxInputWidget"));
}

void TestOxInputDialog::closingNeitherDeletesItNorQuits()
{
    const OxInputDialog dialog;
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
}

void TestOxInputDialog::hasTheHousesIconAndTitle()
{
    const OxInputDialog dialog(nullptr, {}, title(), label());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Sigilant PRO"));
    QCOMPARE(dialog.windowIcon().pixmap(32).toImage(),
             QIcon(QStringLiteral(":/Icon/ApplicationIcons/popup.ico")).pixmap(32).toImage());
    QVERIFY(!dialog.windowIcon().pixmap(32).isNull());
}

void TestOxInputDialog::theTitleBarShowsTheInformationIconAndTheTitle()
{
    OxInputDialog dialog(nullptr, {}, title(), label());
    const auto* bar = dialog.findChild<OxTitleBar*>();
    QCOMPARE(bar->parentWidget(), &dialog);
    const auto labels = bar->findChildren<QLabel*>();
    QCOMPARE(labels.at(0)->pixmap(Qt::ReturnByValue).toImage(),
             QPixmap(QStringLiteral(":/Navigation/NavigationIcons/info_29.png")).toImage());
    QVERIFY(!labels.at(0)->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(labels.at(1)->text(), title());
}

void TestOxInputDialog::theTitleBarHasTheBarStyleAsItsOwnSheet()
{
    OxInputDialog dialog;
    QCOMPARE(dialog.findChild<OxTitleBar*>()->styleSheet(), OxTitleBar::barStyle());
}

void TestOxInputDialog::theLabelHasAMarginOfTwelve()
{
    OxInputDialog dialog(nullptr, {}, title(), label());
    const auto* text = dialog.findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(text->text(), label());
    QCOMPARE(text->margin(), 12);
}

void TestOxInputDialog::theButtonsAreOkAndCancelInARow()
{
    OxInputDialog dialog;
    const auto* box = dialog.findChild<QDialogButtonBox*>();
    QCOMPARE(int(box->standardButtons()), 0x400400);
    QCOMPARE(box->orientation(), Qt::Horizontal);
    QCOMPARE(box->contentsMargins(), QMargins(12, 12, 12, 12));
}

void TestOxInputDialog::theButtonsLookLikeTheMessageBoxes()
{
    OxInputDialog dialog;
    const auto buttons = dialog.findChild<QDialogButtonBox*>()->buttons();
    QCOMPARE(buttons.count(), 2);
    for (const QAbstractButton* button : buttons) {
        QCOMPARE(button->minimumSize(), QSize(80, 30));
        QCOMPARE(
            button->styleSheet(),
            QStringLiteral("QPushButton { border: 2px solid #fd7800; color: white; font: bold; "
                           "\nbackground-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                           "stop: 0 #5a5959, stop: 1 #060606);\nborder-radius: 6px; outline: "
                           "0;\n}"));
    }
}

void TestOxInputDialog::theSheetIsTheMessageBoxesAndStylesNothingHere()
{
    const OxInputDialog dialog;
    QCOMPARE(dialog.styleSheet(), MessageSheet);
}

void TestOxInputDialog::isEmptyUntilALayoutIsSet()
{
    const OxInputDialog dialog(nullptr, {}, title(), label());
    QCOMPARE(dialog.layout(), nullptr);
    QVERIFY(dialog.findChildren<QLineEdit*>().isEmpty());
}

void TestOxInputDialog::theFieldOfEachLayout_data()
{
    QTest::addColumn<Script>("setLayout");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QSize>("minimumSize");

    QTest::newRow("text") << Script([](OxInputDialog* d) { d->setTextLayout(title()); })
                          << QByteArray("QLineEdit") << QSize(430, 35);
    QTest::newRow("whole number") << Script([](OxInputDialog* d) { d->setIntLayout(5, 0, 10); })
                                  << QByteArray("OxSpinBox") << QSize(300, 35);
    QTest::newRow("decimal") << Script([](OxInputDialog* d) { d->setDoubleLayout(1.5, 0, 10); })
                             << QByteArray("OxDoubleSpinBox") << QSize(300, 35);
}

void TestOxInputDialog::theFieldOfEachLayout()
{
    QFETCH(Script, setLayout);
    QFETCH(QByteArray, className);
    QFETCH(QSize, minimumSize);
    OxInputDialog dialog;
    setLayout(&dialog);
    const QLayout* inner = dialog.layout()->itemAt(2)->layout();
    const QWidget* field = inner->itemAt(0)->widget();
    QCOMPARE(QByteArray(field->metaObject()->className()), className);
    QCOMPARE(field->minimumSize(), minimumSize);
}

void TestOxInputDialog::theFieldIsNamedByTheLabel()
{
    QFETCH(Script, setLayout);
    OxInputDialog dialog(nullptr, {}, QStringLiteral("Layer"), QStringLiteral("Name & number:"));
    setLayout(&dialog);
    QWidget* field = dialog.layout()->itemAt(2)->layout()->itemAt(0)->widget();
    QCOMPARE(QAccessible::queryAccessibleInterface(field)->text(QAccessible::Name),
             QStringLiteral("Name & number:"));
}

void TestOxInputDialog::theTextFieldIsAPlainLineEdit()
{
    OxInputDialog dialog;
    dialog.setTextLayout(QStringLiteral("Layer 1"));
    QCOMPARE(dialog.getTextValue(), QStringLiteral("Layer 1"));
    QCOMPARE(dialog.findChildren<QLineEdit*>().count(), 1);
}

void TestOxInputDialog::theSpinBoxesHaveRangeValueAndNoArrows()
{
    OxInputDialog whole;
    whole.setIntLayout(5, -3, 10);
    const auto* spinBox = whole.findChild<OxSpinBox*>();
    QCOMPARE(spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(spinBox->minimum(), -3);
    QCOMPARE(spinBox->maximum(), 10);
    QCOMPARE(whole.getIntValue(), 5);

    OxInputDialog decimal;
    decimal.setDoubleLayout(2.25, -1.5, 9.75);
    const auto* doubleSpinBox = decimal.findChild<OxDoubleSpinBox*>();
    QCOMPARE(doubleSpinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(doubleSpinBox->minimum(), -1.5);
    QCOMPARE(doubleSpinBox->maximum(), 9.75);
    QCOMPARE(decimal.getDoubleValue(), 2.25);
}

void TestOxInputDialog::theDecimalFieldKeepsTheDefaultDecimals()
{
    OxInputDialog dialog;
    dialog.setDoubleLayout(1, 0, 2);
    QCOMPARE(dialog.findChild<OxDoubleSpinBox*>()->decimals(), QDoubleSpinBox().decimals());
}

void TestOxInputDialog::theLayoutsAreExact()
{
    OxInputDialog dialog;
    dialog.setTextLayout({});
    const auto* outer = qobject_cast<QVBoxLayout*>(dialog.layout());
    QVERIFY(outer != nullptr);
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(outer->count(), 4);
    QCOMPARE(outer->itemAt(0)->widget(), dialog.findChild<OxTitleBar*>());
    QCOMPARE(outer->itemAt(0)->alignment(), Qt::AlignTop);
    QVERIFY(qobject_cast<QLabel*>(outer->itemAt(1)->widget()) != nullptr);
    QCOMPARE(outer->itemAt(1)->alignment(), Qt::AlignLeft);
    QCOMPARE(outer->itemAt(3)->widget(), dialog.findChild<QDialogButtonBox*>());
    QCOMPARE(outer->itemAt(3)->alignment(), Qt::AlignRight | Qt::AlignBottom);
    const int stretches[] { 0, 0, 132, 0 };
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(outer->stretch(i), stretches[i]);
    }

    const auto* inner = qobject_cast<QVBoxLayout*>(outer->itemAt(2)->layout());
    QVERIFY(inner != nullptr);
    QCOMPARE(inner->contentsMargins(), QMargins(12, 6, 12, 6));
    QCOMPARE(inner->count(), 1);
    QCOMPARE(inner->itemAt(0)->alignment(), Qt::AlignCenter);
    QCOMPARE(inner->stretch(0), 0);
}

void TestOxInputDialog::aValueOutsideTheRangeIsClamped()
{
    OxInputDialog whole;
    whole.setIntLayout(50, 0, 10);
    QCOMPARE(whole.getIntValue(), 10);
    OxInputDialog decimal;
    decimal.setDoubleLayout(-7.5, -1.5, 10);
    QCOMPARE(decimal.getDoubleValue(), -1.5);
}

void TestOxInputDialog::aFieldThatWasNotMadeReadsAsNothing()
{
    const OxInputDialog dialog;
    QVERIFY(dialog.getTextValue().isNull());
    QCOMPARE(dialog.getIntValue(), 0);
    QCOMPARE(dialog.getDoubleValue(), 0.0);
}

void TestOxInputDialog::okWithoutAChangeReturnsTheValueAndNotCancelled()
{
    bool cancelled = true;
    QCOMPARE(askInt(&cancelled, tapOk), 5);
    QVERIFY(!cancelled);
    cancelled = true;
    QCOMPARE(askText(&cancelled, tapOk), QStringLiteral("Layer 1"));
    QVERIFY(!cancelled);
    cancelled = true;
    QCOMPARE(askDouble(1.5, 0, 3, &cancelled, tapOk), 1.5);
    QVERIFY(!cancelled);
}

void TestOxInputDialog::everyWayToCancelReturnsZeroAndCancelled_data()
{
    QTest::addColumn<Script>("cancel");

    QTest::newRow("Cancel") << Script(tapCancel);
    QTest::newRow("close button") << Script(tapCloseButton);
    QTest::newRow("Escape") << Script([](OxInputDialog* d) { pressKey(d, Qt::Key_Escape); });
    QTest::newRow("slot") << Script([](OxInputDialog* d) { d->closeButton(); });
}

void TestOxInputDialog::everyWayToCancelReturnsZeroAndCancelled()
{
    QFETCH(Script, cancel);
    bool cancelled = false;
    QCOMPARE(askInt(&cancelled, cancel), 0);
    QVERIFY(cancelled);
}

void TestOxInputDialog::okOnAnEmptiedTextReturnsAnEmptyTextThatIsNotNull()
{
    bool cancelled = true;
    const QString text = askText(&cancelled, [](OxInputDialog* dialog) {
        pressKey(dialog, Qt::Key_Delete); // the whole text is selected
        tapOk(dialog);
    });
    QVERIFY(text.isEmpty());
    QVERIFY(!text.isNull());
    QVERIFY(!cancelled);
}

void TestOxInputDialog::okOnATextThatWasNullReturnsATextThatIsNotNull()
{
    bool cancelled = true;
    const QString text = askText(&cancelled, tapOk, QString());
    QVERIFY(text.isEmpty());
    QVERIFY(!text.isNull());
    QVERIFY(!cancelled);
}

void TestOxInputDialog::aCancelledTextIsNull()
{
    bool cancelled = false;
    QVERIFY(askText(&cancelled, tapCancel).isNull());
    QVERIFY(cancelled);
}

void TestOxInputDialog::aCancelledDecimalIsZeroEvenOutsideTheRange()
{
    bool cancelled = false;
    QCOMPARE(askDouble(7, 5, 10, &cancelled, tapCancel), 0.0);
    QVERIFY(cancelled);
}

void TestOxInputDialog::theFlagMayBeNull()
{
    QCOMPARE(askInt(nullptr, tapOk), 5);
    QCOMPARE(askInt(nullptr, tapCancel), 0);
    QVERIFY(askText(nullptr, tapCancel).isNull());
    QCOMPARE(askDouble(7, 5, 10, nullptr, tapOk), 7.0);
}

void TestOxInputDialog::typingStartsInTheFieldAndReplacesWhatIsThere_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("text") << 0;
    QTest::newRow("whole number") << 1;
    QTest::newRow("decimal") << 2;
}

void TestOxInputDialog::typingStartsInTheFieldAndReplacesWhatIsThere()
{
    QFETCH(int, kind);
    const Script typeSeven = [](OxInputDialog* dialog) {
        QTRY_VERIFY(dialog->isActiveWindow());
        typeText(dialog, QStringLiteral("7"));
        tapOk(dialog);
    };
    if (kind == 0) {
        QCOMPARE(askText(nullptr, typeSeven), QStringLiteral("7"));
    } else if (kind == 1) {
        QCOMPARE(askInt(nullptr, typeSeven), 7);
    } else {
        QCOMPARE(askDouble(1.5, 0, 10, nullptr, typeSeven), 7.0);
    }
}

void TestOxInputDialog::enterPressesOkAndTakesWhatWasTyped()
{
    bool cancelled = true;
    const int value = askInt(&cancelled, [](OxInputDialog* dialog) {
        QTRY_VERIFY(dialog->isActiveWindow());
        typeText(dialog, QStringLiteral("9"));
        pressKey(dialog, Qt::Key_Enter);
    });
    QCOMPARE(value, 9);
    QVERIFY(!cancelled);
}

void TestOxInputDialog::theDialogIsModalAndHasTheGivenFlags()
{
    QWidget parent;
    Qt::WindowFlags flags;
    bool modal = false;
    whileModal<OxInputDialog>([&parent] { OxInputDialog::getText(&parent, title(), label()); },
                              [&](OxInputDialog* dialog) {
                                  flags = dialog->windowFlags();
                                  modal = dialog->isModal();
                                  dialog->closeButton();
                              });
    QVERIFY(modal);
    QVERIFY(flags.testFlag(Qt::FramelessWindowHint));
    QVERIFY(flags.testFlag(Qt::Dialog));
}

void TestOxInputDialog::closeRequestsOfTheWindowSystemCancel()
{
    bool cancelled = false;
    QCOMPARE(askInt(&cancelled, [](OxInputDialog* dialog) { dialog->close(); }), 0);
    QVERIFY(cancelled);
}

void TestOxInputDialog::isPaintedWithTheDefaultBackground()
{
    OxInputDialog dialog(nullptr, Qt::FramelessWindowHint, title(), label());
    dialog.setTextLayout(QStringLiteral("Layer 1"));
    dialog.resize(500, 240);
    const QImage picture = dialog.grab().toImage();
    const QColor background = dialog.palette().color(QPalette::Window);
    QCOMPARE(picture.pixelColor(0, 150), background);
    QCOMPARE(picture.pixelColor(3, 236), background);
    QVERIFY(background != QColor(0xf2, 0xf2, 0xf2));
}

UW_TEST_MAIN(TestOxInputDialog)

#include "tst_oxinputdialog.moc"
