// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxlineedit.h"

#include "support/test.h"

#include <QApplication>
#include <QSignalSpy>

class TestOxLineEdit : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void reportsEveryPressAfterTheBaseHasHandledIt();
};

void TestOxLineEdit::isNamedAfterItsClass()
{
    QCOMPARE(OxLineEdit().objectName(), QStringLiteral("OxLineEdit"));
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

UW_TEST_MAIN(TestOxLineEdit)

#include "tst_oxlineedit.moc"
