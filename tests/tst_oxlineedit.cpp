// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxlineedit.h"

#include "support/fieldform.h"
#include "support/finger.h"
#include "support/test.h"

#include <QApplication>
#include <QSignalSpy>

class TestOxLineEdit : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void canBeMadeWithItsText();
    void reportsEveryPressAfterTheBaseHasHandledIt();
    void reportsThePressOfATapAndNotItsRelease();
    void reportsNoPressWhileItIsDisabled();
    void reportsTheLossAfterTheBaseHasHandledIt();
    void selectsNothingOnGainingTheFocusByATap();
};

void TestOxLineEdit::canBeMadeWithItsText()
{
    QWidget parent;
    const auto* field = new OxLineEdit(QStringLiteral("text"), &parent);

    QCOMPARE(field->text(), QStringLiteral("text"));
    QCOMPARE(field->parentWidget(), &parent);
    QCOMPARE(field->objectName(), QStringLiteral("OxLineEdit"));
    QCOMPARE(OxLineEdit(QStringLiteral("text")).objectName(), QStringLiteral("OxLineEdit"));
}

void TestOxLineEdit::reportsEveryPressAfterTheBaseHasHandledIt()
{
    OxLineEdit field(QStringLiteral("some text"));
    int cursor = -1;
    connect(&field, &OxLineEdit::mousePressedSignal, this,
            [&] { cursor = field.cursorPosition(); });
    QSignalSpy pressed(&field, &OxLineEdit::mousePressedSignal);

    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
        QTest::mousePress(&field, button, {}, QPoint(2, field.height() / 2));
    }

    QCOMPARE(pressed.count(), 3);
    QCOMPARE(cursor, 0);
}

void TestOxLineEdit::reportsThePressOfATapAndNotItsRelease()
{
    auto* field = new OxLineEdit;
    const FieldForm form(field);
    QSignalSpy pressed(field, &OxLineEdit::mousePressedSignal);
    Finger finger;

    finger.press(field);
    QCOMPARE(pressed.count(), 1);
    finger.release();
    QCOMPARE(pressed.count(), 1);
}

void TestOxLineEdit::reportsNoPressWhileItIsDisabled()
{
    auto* field = new OxLineEdit;
    const FieldForm form(field);
    field->setEnabled(false);
    QSignalSpy pressed(field, &OxLineEdit::mousePressedSignal);

    Finger().tap(field);

    QCOMPARE(pressed.count(), 0);
}

void TestOxLineEdit::reportsTheLossAfterTheBaseHasHandledIt()
{
    auto* field = new OxLineEdit;
    FieldForm form(field);
    form.enter();
    QTest::keyClicks(field, QStringLiteral("a"));
    QStringList order;
    connect(field, &OxLineEdit::focusLost, this, [&] { order += QStringLiteral("lost"); });
    connect(field, &OxLineEdit::editingFinished, this, [&] { order += QStringLiteral("edited"); });

    form.leave();

    QCOMPARE(order, QStringList({ QStringLiteral("edited"), QStringLiteral("lost") }));
}

void TestOxLineEdit::selectsNothingOnGainingTheFocusByATap()
{
    auto* field = new OxLineEdit(QStringLiteral("text"));
    const FieldForm form(field);

    Finger().tap(field);
    QCoreApplication::processEvents();

    QVERIFY(field->hasFocus());
    QVERIFY(!field->hasSelectedText());
}

UW_TEST_MAIN(TestOxLineEdit)

#include "tst_oxlineedit.moc"
